#pragma once
// Einrechnen and Kleinpunkte as the user opens them from the menu. Expected
// points come from data/werte.py.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

using EinrechnenUmgebung = MenueUmgebung;

}  // namespace kolm::calc::testing

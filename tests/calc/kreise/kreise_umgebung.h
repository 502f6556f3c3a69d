#pragma once
// The circle dialogs as the user opens them from the menu.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

using KreiseUmgebung = MenueUmgebung;

}  // namespace kolm::calc::testing

#pragma once
// The angle and tie dialogs as the user opens them from the menu.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

using AnschlussUmgebung = MenueUmgebung;

}  // namespace kolm::calc::testing

#pragma once
// The printed point list: the grid as it is shown, empty rows left out.
#include "core/state/zustand.h"
#include "forms/control.h"
#include "forms/services.h"

namespace kolm::points {

// Prints the header row of the grid and every row whose point columns are
// not all blank, through the printer service. False without a printer or
// when the job was cancelled.
bool PunkteListeDrucken(forms::Services& dienste, const core::Zustand& z, const forms::Control& grid);

}  // namespace kolm::points

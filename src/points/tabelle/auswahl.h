#pragma once
// The rows selected in the point grid as point numbers: what the bulk
// operations and the conversions work on.
#include <optional>

#include "core/state/zustand.h"
#include "forms/control.h"
#include "forms/forms.h"

namespace kolm::points {

struct Punktbereich {
  int erste = 0, letzte = 0;  // erste <= letzte
  bool enthaelt(int n) const { return n >= erste && n <= letzte; }
};

// First and last point of the selected rows of a point grid, the header
// left out and cut to 0 .. AnzahlPunkte.
Punktbereich MarkierteZeilen(const core::Zustand& z, const forms::Control& grid);

// The same for the grid of the loaded PunkteTabelle; nothing when it is
// not loaded.
std::optional<Punktbereich> MarkiertePunkte(const core::Zustand& z, const forms::Forms& forms);

}  // namespace kolm::points

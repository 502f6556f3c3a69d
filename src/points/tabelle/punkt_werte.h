#pragma once
// Coordinates typed or pasted into the grid reach a slot here.
#include "core/state/zustand.h"

namespace kolm::points {

// Stores A, B, C in slot nummer (0 .. AnzahlPunkte; others are ignored) and
// sets its Nummer. A slot that was empty takes the designation, colour and
// caption offset of a new point as it is filled; one whose values all
// become 0 is cleared as an empty slot. Marks the table changed.
void PunktWerteSetzen(core::Zustand& z, int nummer, double a, double b, double c);

// One coordinate by its grid column (SpalteA .. SpalteC), the others kept.
void PunktWertSetzen(core::Zustand& z, int nummer, int spalte, double wert);

}  // namespace kolm::points

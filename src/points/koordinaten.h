#pragma once
// What A, B and C of a point mean in the active table, and how a point is
// shown: captions, the multi-line and the one-line point text, and the
// polar/rectangular conversion with the table's settings.
#include <string>

#include "calc/kernel/winkel.h"
#include "core/records/records.h"
#include "core/state/zustand.h"

namespace kolm::points {

// The angle settings of the active table.
kernel::Winkelsystem WinkelsystemVon(const core::Zustand& z);

// Captions of the three coordinates, e.g. "X =", "Y =", "Z ="; with access
// keys "&X =" etc. for input fields. C is "H =" under M31, else "Z =".
struct Koordinatennamen {
  std::string a, b, c;
};
Koordinatennamen KoordinatenBeschriftung(const core::Zustand& z, bool zugriffstaste = false);
// The same for the other form of the table (polar shown as rectangular and
// back), as the "other form" check boxes of the input dialogs switch to.
Koordinatennamen AndereBeschriftung(const core::Zustand& z, bool zugriffstaste = false);

// Lines ended by CR, values in StandardFormat: "X = 1.000" / "Y = 2.000"
// (and "Z = ..." with Dritte); polar "e = " / "Phi = "; M31 "Y = " / "X = "
// / "H = ".
std::string PunktText(const core::Zustand& z, const core::Punkt& p);

// One line for lists and the drag window: designation, " ", number, "  ",
// then "X= a  Y= b" (or "e= a  Phi= b", "Y= a  X= b") and with Dritte
// "   Z= c" or "   H= c". The number in NummernFormat.
std::string PunktZeile(const core::Zustand& z, const core::Punkt& p);

// Text of designation k, empty for an index outside 0 .. 99 or a blank entry.
std::string Bezeichnung(const core::Zustand& z, int k);

// Converts A and B of a point between polar and rectangular form by the
// settings of the table.
void PolarZuRechtwinklig(const core::Zustand& z, double& a, double& b);
void RechtwinkligZuPolar(const core::Zustand& z, double& a, double& b);

}  // namespace kolm::points

#pragma once
// Polar to rectangular and back for the whole table or the rows selected in
// the point grid (Werkzeuge > Koordinatensystem).
#include "core/state/zustand.h"
#include "points/tabelle/auswahl.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

enum class Umwandlung { PolarZuRechtwinklig, RechtwinkligZuPolar };

// Converts A and B of every non-empty point in the range by the table's
// settings; empty slots stay empty.
void PunkteUmwandeln(core::Zustand& z, Umwandlung art, Punktbereich bereich);

// The menu command. With PunkteTabelle open only its selected rows are
// converted; otherwise (or when every row is selected) the whole table, and
// then Main's CheckPolar follows the new form. Marks the table changed and
// refreshes Berechnen, Grafik, PunkteTabelle and Berechnungen.
void UmwandlungBefehl(core::Anwendung& anwendung, Umwandlung art);

}  // namespace kolm::points

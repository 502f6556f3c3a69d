#pragma once
// The demo project "Demo Projekt" written by the program's own writers, and
// read back by its own readers to check it.
#include <string>
#include <vector>

#include "core/records/records.h"
#include "core/state/zustand.h"
#include "quantities/lv/lv_datenbank.h"
#include "strasse.h"

namespace kolm::demo {

inline constexpr const char* kProjektName = "Demo Projekt";

// The quantities the cross-sections carry, each tied to one LV position.
enum Menge : int {
  kMengeOberboden = 0,
  kMengeAbtrag,
  kMengeAuftrag,
  kMengeFrostschutz,
  kMengeTragschicht,
  kMengeDeckschicht,
  kAnzahlMengen
};

// The LV positions in the order of Menge.
const std::vector<quantities::LVPosition>& LVPositionen();

// One table as it was written: its catalogue row and its content.
struct TabellenInhalt {
  core::Tabelle zeile;
  std::vector<core::Punkt> punkte;  // used slots, ascending
  std::vector<core::Verbindung> verbindungen;
  std::vector<core::Beschriftung> beschriftungen;  // used slots, ascending
  std::vector<core::Berechnung> berechnungen;
};

struct DemoModell {
  std::vector<Querprofil> profile;  // 0+000 .. 0+080
  Lageplan plan;
  std::vector<TabellenInhalt> tabellen;  // in catalogue order
  int doppelprofil = -1;  // row of the second table on the points of 0+040
  int lageplan = -1;
};

// Writes the whole project into `ordner` (which must exist and be empty).
// Throws std::runtime_error when a file could not be written.
DemoModell DemoErzeugen(const std::string& ordner);

// Reads the project in `ordner` back through the program's readers and
// checks it against the model and against the rules of the road design.
// Throws std::runtime_error naming the first fault.
void DemoPruefen(const std::string& ordner, const DemoModell& modell);

// Area (closed, trapezoid sums) or length (open) of a chain of points, as
// the area calculation computes them.
double KettenErgebnis(const core::Zustand& z, const core::Berechnung& b);

}  // namespace kolm::demo

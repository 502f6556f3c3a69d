#include "points/tabelle/umwandlung.h"

#include <algorithm>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "points/koordinaten.h"

namespace kolm::points {

void PunkteUmwandeln(core::Zustand& z, Umwandlung art, Punktbereich bereich) {
  const int letzte = std::min(bereich.letzte, static_cast<int>(z.Punkte.size()) - 1);
  for (int n = std::max(bereich.erste, 0); n <= letzte; ++n) {
    if (z.PunktLeer(n)) continue;
    core::Punkt& p = z.Punkte[static_cast<size_t>(n)];
    if (art == Umwandlung::PolarZuRechtwinklig) PolarZuRechtwinklig(z, p.A, p.B);
    else RechtwinkligZuPolar(z, p.A, p.B);
  }
}

void UmwandlungBefehl(core::Anwendung& anwendung, Umwandlung art) {
  core::Zustand& z = anwendung.zustand();
  const Punktbereich alle{0, z.AnzahlPunkte};
  const std::optional<Punktbereich> markiert = MarkiertePunkte(z, anwendung.forms());
  const bool ganz = !markiert || (markiert->erste == alle.erste && markiert->letzte == alle.letzte);
  PunkteUmwandeln(z, art, markiert ? *markiert : alle);
  if (ganz) {
    const bool polar = art == Umwandlung::RechtwinkligZuPolar;
    if (core::MainForm* main = anwendung.main()) {
      main->control("CheckPolar").setValue(polar ? 1 : 0);  // Main takes it into the table's flags
    } else {
      z.Polar = polar ? core::Wahr : core::Falsch;
      if (core::Tabelle* zeile = z.AktiveZeile()) zeile->Polar = z.Polar;
    }
  }
  z.TabelleGeaendert = core::Wahr;
  anwendung.RefreshBerechnen();
  anwendung.RefreshGrafik();
  anwendung.RefreshPunkteTabelle();
  anwendung.RefreshBerechnungen();
}

}  // namespace kolm::points

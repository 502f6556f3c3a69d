#include "points/tabelle/punkt_verschieben.h"

#include "core/app/anwendung.h"
#include "points/eingabe/punkt_speichern.h"
#include "points/eingabe/ueberschreibliste.h"

namespace kolm::points {

bool PunktVerschieben(core::Anwendung& anwendung, int von, int nach) {
  core::Zustand& z = anwendung.zustand();
  const int slots = static_cast<int>(z.Punkte.size());
  const auto gueltig = [&](int n) { return n >= 0 && n <= z.AnzahlPunkte && n < slots; };
  if (!gueltig(von) || !gueltig(nach) || von == nach || z.PunktLeer(von)) return false;
  if (!UeberschreibenErlaubt(anwendung, nach, "Punkt verschieben")) return false;
  if (!z.PunktLeer(nach)) UeberschriebenMerken(anwendung, z.Punkte[static_cast<size_t>(nach)], nach);
  core::Punkt p = z.Punkte[static_cast<size_t>(von)];
  p.Nummer = static_cast<core::Integer>(nach);
  z.Punkte[static_cast<size_t>(nach)] = p;
  z.PunktLoeschen(von);
  z.TabelleGeaendert = core::Wahr;
  anwendung.RefreshPunkt(von);
  anwendung.RefreshPunkt(nach);
  anwendung.RefreshGrafik();
  return true;
}

}  // namespace kolm::points

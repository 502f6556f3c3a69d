#include "points/tabelle/zeilen.h"

#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

bool IstPunktZeile(const core::Zustand& z, int zeile) {
  const int n = PunktVonZeile(zeile);
  return n >= 0 && n <= z.AnzahlPunkte && n < static_cast<int>(z.Punkte.size());
}

Zeilentexte Kopftexte(const core::Zustand& z) {
  const Koordinatennamen namen = KoordinatenBeschriftung(z);
  return {"Punkt Nr.", "Bezeichnung", namen.a, namen.b, z.Dritte ? namen.c : std::string()};
}

Zeilentexte PunktTexte(const core::Zustand& z, int nummer) {
  Zeilentexte t;
  t[SpalteNummer] = numbers::ZahlText(nummer, z.Einstellungen.NummernFormat);
  if (nummer < 0 || nummer >= static_cast<int>(z.Punkte.size()) || z.PunktLeer(nummer)) return t;
  const core::Punkt& p = z.Punkte[static_cast<size_t>(nummer)];
  const std::string& muster = z.Einstellungen.StandardFormat;
  t[SpalteBezeichnung] = Bezeichnung(z, p.KurzBez);
  t[SpalteA] = numbers::ZahlText(p.A, muster);
  t[SpalteB] = numbers::ZahlText(p.B, muster);
  if (z.Dritte) t[SpalteC] = numbers::ZahlText(p.C, muster);
  return t;
}

}  // namespace kolm::points

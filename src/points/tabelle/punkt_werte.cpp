#include "points/tabelle/punkt_werte.h"

#include "points/tabelle/zeilen.h"

namespace kolm::points {

void PunktWerteSetzen(core::Zustand& z, int nummer, double a, double b, double c) {
  if (nummer < 0 || nummer > z.AnzahlPunkte || nummer >= static_cast<int>(z.Punkte.size())) return;
  z.TabelleGeaendert = core::Wahr;
  if (a == 0 && b == 0 && c == 0) {
    z.PunktLoeschen(nummer);
    return;
  }
  core::Punkt& p = z.Punkte[static_cast<size_t>(nummer)];
  if (z.PunktLeer(nummer)) {
    p.KurzBez = z.StandardKurzBezWert();
    p.Farbe = z.StandardPunktFarbWert();
    p.TextDx = z.StandardTextDx;
    p.TextDy = z.StandardTextDy;
  }
  p.Nummer = static_cast<core::Integer>(nummer);
  p.A = a;
  p.B = b;
  p.C = c;
}

void PunktWertSetzen(core::Zustand& z, int nummer, int spalte, double wert) {
  if (nummer < 0 || nummer >= static_cast<int>(z.Punkte.size())) return;
  const core::Punkt& p = z.Punkte[static_cast<size_t>(nummer)];
  double a = p.A, b = p.B, c = p.C;
  switch (spalte) {
    case SpalteA: a = wert; break;
    case SpalteB: b = wert; break;
    case SpalteC: c = wert; break;
    default: return;
  }
  PunktWerteSetzen(z, nummer, a, b, c);
}

}  // namespace kolm::points

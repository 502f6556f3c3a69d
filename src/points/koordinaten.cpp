#include "points/koordinaten.h"

#include "core/settings/einstellungen.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

kernel::Winkelsystem WinkelsystemVon(const core::Zustand& z) {
  return {z.WinkelFaktor, z.M31 != 0, z.Falschdrehend != 0};
}

namespace {
Koordinatennamen Namen(bool polar, bool m31, bool zugriff) {
  const std::string amp = zugriff ? "&" : "";
  Koordinatennamen n;
  if (polar) {
    n.a = amp + "e =";
    n.b = amp + "Phi =";
  } else if (m31) {
    n.a = amp + "Y =";
    n.b = amp + "X =";
  } else {
    n.a = amp + "X =";
    n.b = amp + "Y =";
  }
  n.c = amp + (m31 ? "H =" : "Z =");
  return n;
}

std::string Wert(const core::Zustand& z, double x) {
  return numbers::ZahlText(x, z.Einstellungen.StandardFormat);
}
}  // namespace

Koordinatennamen KoordinatenBeschriftung(const core::Zustand& z, bool zugriffstaste) {
  return Namen(z.Polar != 0, z.M31 != 0, zugriffstaste);
}

Koordinatennamen AndereBeschriftung(const core::Zustand& z, bool zugriffstaste) {
  return Namen(z.Polar == 0, z.M31 != 0, zugriffstaste);
}

std::string PunktText(const core::Zustand& z, const core::Punkt& p) {
  const Koordinatennamen n = KoordinatenBeschriftung(z);
  std::string text = n.a + " " + Wert(z, p.A) + "\r" + n.b + " " + Wert(z, p.B);
  if (z.Dritte) text += "\r" + n.c + " " + Wert(z, p.C);
  return text;
}

std::string Bezeichnung(const core::Zustand& z, int k) {
  if (k < 0 || k >= static_cast<int>(z.Kurzbezeichnungen.size())) return "";
  return z.Kurzbezeichnungen[k].Text;
}

std::string PunktZeile(const core::Zustand& z, const core::Punkt& p) {
  const char* a = z.Polar ? "e= " : z.M31 ? "Y= " : "X= ";
  const char* b = z.Polar ? "  Phi= " : z.M31 ? "  X= " : "  Y= ";
  std::string zeile = Bezeichnung(z, p.KurzBez) + " " +
                      numbers::ZahlText(p.Nummer, z.Einstellungen.NummernFormat) + "  " + a +
                      Wert(z, p.A) + b + Wert(z, p.B);
  if (z.Dritte) zeile += std::string(z.M31 ? "   H= " : "   Z= ") + Wert(z, p.C);
  return zeile;
}

void PolarZuRechtwinklig(const core::Zustand& z, double& a, double& b) {
  kernel::PolarZuRechtwinklig(a, b, WinkelsystemVon(z));
}

void RechtwinkligZuPolar(const core::Zustand& z, double& a, double& b) {
  kernel::RechtwinkligZuPolar(a, b, WinkelsystemVon(z));
}

}  // namespace kolm::points

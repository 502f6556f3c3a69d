#include "calc/eilinie/ei_wendelinie.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "calc/kernel/klotoide.h"
#include "calc/kernel/wendelinie.h"
#include "core/app/anwendung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {

const char* const kEilinie = "Eilinie";
const char* const kWendelinie = "Wendelinie";

}  // namespace

EiWendelinieForm::EiWendelinieForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "FormEiWendelinie", kEilinie, kEilinie) {
  Parameter(0, "R&1=");
  Parameter(1, "R&2=");
  Parameter(2, "&D=");
  Skalar(0, "Klotoidenparameter");
  Skalar(1, "L1");
  Skalar(2, "L2");
  Skalar(3, "L1 - L2");
  // The pictures of the two cases beside the fields; one is shown.
  add(ControlKind::PictureBox, "Image1").at(0, 2, 4, 1);
  add(ControlKind::PictureBox, "Image2").at(0, 2, 4, 1);
  EilinieZeichnen(control("Image1").picture());
  WendelinieZeichnen(control("Image2").picture());
  // Carries the sign; the menu entry writes it, nobody sees it.
  add(ControlKind::Label, "F").caption("Hier wird der Wert für F% eingetragen").at(4, 0).hidden();
  FGeaendert();
}

void EiWendelinieForm::FSetzen(const std::string& text) {
  forms::Control& f = control("F");
  if (f.captionText() == text) return;  // a label raises Change only on a new caption
  f.setCaption(text);
  FGeaendert();
}

bool EiWendelinieForm::IstEilinie() const { return control("F").captionText() == "1"; }

void EiWendelinieForm::FGeaendert() {
  const bool ei = IstEilinie();
  const std::string c = ei ? kEilinie : kWendelinie;
  setCaption(c);
  control("Image1").setVisible(ei);
  control("Image2").setVisible(!ei);
  control("ErgLabel", 3).setCaption(ei ? "L1 - L2" : "L1 + L2");
  setHelpTopic(c);  // the sketch follows the case
  Fehlermeldung("Bei der Berechnung zur " + c +
                    " sind Fehler aufgetreten. Geben Sie bitte vernünftige Parameter an und versuchen Sie es erneut!",
                c + " berechnen");
}

bool EiWendelinieForm::Rechnen() {
  const double f = numbers::Val(control("F").captionText());
  double a = 0, l1 = 0, l2 = 0, e = 0;
  if (!kernel::WendelinieRechnen(Param(0), Param(1), Param(2), f, a, l1, l2, e)) return false;
  const std::string& ergebnis = zustand().Einstellungen.ErgebnisFormat;
  SkalarZeigen(0, Standard(a));
  SkalarZeigen(1, numbers::ZahlText(l1, ergebnis));
  SkalarZeigen(2, numbers::ZahlText(l2, ergebnis));
  SkalarZeigen(3, numbers::ZahlText(e, ergebnis));
  return true;
}

// ---- The pictures

namespace {

constexpr forms::Rgb Schwarz = 0x000000u, Blau = 0x1A4FC4u, Grau = 0x888888u, Rot = 0xC0392Bu;
constexpr double BildB = 240, BildH = 180;

struct Kreis {
  double x = 0, y = 0, r = 0;
};

// Clothoid points from arc length von to bis (both >= 0) on parameter a;
// spiegeln puts them on the second branch, point-symmetric to the origin.
void KurveAnhaengen(std::vector<forms::Pt>& kurve, double a, double von, double bis, bool spiegeln) {
  constexpr int Schritte = 48;
  for (int i = 0; i <= Schritte; ++i) {
    const double s = von + (bis - von) * i / Schritte;
    double x = 0, y = 0;
    if (!kernel::KlotoidePunkt(a, s, x, y)) continue;
    kurve.push_back(spiegeln ? forms::Pt{-x, -y} : forms::Pt{x, y});
  }
}

// The osculating circle of radius r on the clothoid of parameter a.
Kreis Kruemmungskreis(double a, double r, bool spiegeln) {
  const double l = a * a / r;
  const double tau = l / (2 * r);
  double x = 0, y = 0;
  kernel::KlotoidePunkt(a, l, x, y);
  Kreis k{x - r * std::sin(tau), y + r * std::cos(tau), r};
  if (spiegeln) k = {-k.x, -k.y, r};
  return k;
}

// Fits the model into the box with one scale for both axes, y up.
struct Einpassen {
  double f = 1, dx = 0, dy = 0;
  Einpassen(const Kreis& k1, const Kreis& k2, double rand) {
    const double links = std::min(k1.x - k1.r, k2.x - k2.r), rechts = std::max(k1.x + k1.r, k2.x + k2.r);
    const double unten = std::min(k1.y - k1.r, k2.y - k2.r), oben = std::max(k1.y + k1.r, k2.y + k2.r);
    f = std::min((BildB - 2 * rand) / (rechts - links), (BildH - 2 * rand) / (oben - unten));
    dx = BildB / 2 - f * (links + rechts) / 2;
    dy = BildH / 2 - f * (unten + oben) / 2;
  }
  forms::Pt operator()(forms::Pt p) const { return {dx + f * p.x, dy + f * p.y}; }
  Kreis operator()(const Kreis& k) const { return {dx + f * k.x, dy + f * k.y, f * k.r}; }
};

// A short name centred on p; the box is 240 by 180 units of about a pixel.
void Beschriftung(forms::DisplayList& bild, forms::Pt p, const char* text, forms::Rgb farbe) {
  bild.setFont(forms::Font{"Arial", 9, false, true});
  bild.setPen(farbe, 1, forms::LineStyle::Solid);
  bild.text(p.x - 3.5 * static_cast<double>(std::string_view(text).size()), p.y + 7, text);
}

void Mittelpunkt(forms::DisplayList& bild, const Kreis& k) {
  bild.setPen(Schwarz, 4, forms::LineStyle::Solid);
  bild.point(k.x, k.y);
}

// Circles, radii, the clothoid and the gap D on the line of the centres.
void Zeichnen(forms::DisplayList& bild, const Kreis& klein, const Kreis& gross, const std::vector<forms::Pt>& kurve,
              bool innen) {
  const Einpassen t(klein, gross, 12);
  const Kreis k = t(klein), g = t(gross);
  bild.clear(0xFFFFFFu);
  bild.setScale(0, BildH, BildB, 0);
  bild.setPen(Schwarz, 1, forms::LineStyle::Solid);
  bild.circle(k.x, k.y, k.r, 0, 0);
  bild.circle(g.x, g.y, g.r, 0, 0);
  Mittelpunkt(bild, k);
  Mittelpunkt(bild, g);
  bild.setPen(Blau, 2.2, forms::LineStyle::Solid);
  for (size_t i = 1; i < kurve.size(); ++i) {
    const forms::Pt p = t(kurve[i - 1]), q = t(kurve[i]);
    bild.line(p.x, p.y, q.x, q.y);
  }
  // The gap lies on the line of the centres: beyond the smaller circle for
  // the egg line, between the two circles for the inflection line.
  const double ux0 = k.x - g.x, uy0 = k.y - g.y, d = std::hypot(ux0, uy0);
  const double ux = ux0 / d, uy = uy0 / d;
  const forms::Pt pk = innen ? forms::Pt{k.x + k.r * ux, k.y + k.r * uy} : forms::Pt{k.x - k.r * ux, k.y - k.r * uy};
  const forms::Pt pg{g.x + g.r * ux, g.y + g.r * uy};
  bild.setPen(Grau, 1, forms::LineStyle::Dash);
  bild.line(g.x, g.y, innen ? pk.x : k.x, innen ? pk.y : k.y);
  // Radii at a slant, away from the gap and the curve.
  const double richtung = std::atan2(uy, ux);
  const double wk = richtung + (innen ? 2.0 : 1.9), wg = richtung + (innen ? 3.4 : -1.9);
  bild.setPen(Grau, 1, forms::LineStyle::Solid);
  bild.line(k.x, k.y, k.x + k.r * std::cos(wk), k.y + k.r * std::sin(wk));
  bild.line(g.x, g.y, g.x + g.r * std::cos(wg), g.y + g.r * std::sin(wg));
  const double sk = std::sin(wk), ck = std::cos(wk), sg = std::sin(wg), cg = std::cos(wg);
  Beschriftung(bild, {k.x + 0.5 * k.r * ck - 9 * sk, k.y + 0.5 * k.r * sk + 9 * ck}, "R1", Schwarz);
  Beschriftung(bild, {g.x + 0.5 * g.r * cg - 9 * sg, g.y + 0.5 * g.r * sg + 9 * cg}, "R2", Schwarz);
  bild.setPen(Rot, 2, forms::LineStyle::Solid);
  bild.line(pk.x, pk.y, pg.x, pg.y);
  const double nx = -uy, ny = ux;  // ticks across the gap
  for (const forms::Pt& p : {pk, pg}) bild.line(p.x - 5 * nx, p.y - 5 * ny, p.x + 5 * nx, p.y + 5 * ny);
  const double mx = (pk.x + pg.x) / 2, my = (pk.y + pg.y) / 2;
  if (innen)
    Beschriftung(bild, {mx + 13 * ux, my + 13 * uy}, "D", Rot);
  else
    Beschriftung(bild, {mx + 14 * nx, my + 14 * ny}, "D", Rot);
}

}  // namespace

void EilinieZeichnen(forms::DisplayList& bild) {
  constexpr double A = 65, R1 = 28, R2 = 78;
  std::vector<forms::Pt> kurve;
  KurveAnhaengen(kurve, A, A * A / R2, A * A / R1, false);
  Zeichnen(bild, Kruemmungskreis(A, R1, false), Kruemmungskreis(A, R2, false), kurve, true);
}

void WendelinieZeichnen(forms::DisplayList& bild) {
  constexpr double A = 40, R1 = 35, R2 = 55;
  std::vector<forms::Pt> kurve;
  KurveAnhaengen(kurve, A, A * A / R2, 0, true);
  KurveAnhaengen(kurve, A, 0, A * A / R1, false);
  Zeichnen(bild, Kruemmungskreis(A, R1, false), Kruemmungskreis(A, R2, true), kurve, false);
}

}  // namespace kolm::calc

#include "calc/einrechnen/schritt_dialog.h"

#include <cmath>

#include "calc/kernel/winkel.h"
#include "points/koordinaten.h"
#include "points/numbers/konstanten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;

namespace {
const char* const kEintraege[] = {"zwei Punkte: A, E", "A und Verhältnis", "A und Prozent",      "A und Steigung",
                                  "A und Winkel",      "A und Vektor",     "Senkrecht durch A", "Waagrecht durch A"};
}  // namespace

void GeradeRichten(const core::Zustand& z, int eintrag, const core::Punkt& a, core::Punkt& e, double t1, double t2) {
  if (eintrag != 4) {
    core::Punkt p1 = a;  // entries 0 to 7 leave the first point alone
    calc::GeradeAuswerten(z, eintrag, p1, e, t1, t2);
    return;
  }
  const double Pi = numbers::Pi;
  const double w = kernel::WinkelNormieren(t1 * z.WinkelFaktor);
  const bool rechtsdrehend = (z.M31 != 0) != (z.Falschdrehend != 0);
  const double u = rechtsdrehend ? Pi / 2 - w : w;
  // The tangent gives only the slope: the half circle picks the way along a.
  if (w <= Pi / 2 || w >= 3 * Pi / 2) {
    e.A = a.A + 1;
    e.B = a.B + std::tan(u);
  } else {
    e.A = a.A - 1;
    e.B = a.B - std::tan(u);
  }
}

SchrittDialog::SchrittDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name, std::string caption)
    : RechenDialog(forms, anwendung, name, std::move(caption), name), gerade_(*this, 1) {}

void SchrittDialog::GeradeAnlegen(int zeile) {
  a_ = EingabePunkt("G1P1", "FrameG1P1", "Punkt A");
  add(ControlKind::Label, "LabelG1P1Nr").caption("&A Nr.:").in("FrameG1P1").at(0, 2);
  e_ = EingabePunkt("G1P2", "FrameG1P2", "Punkt E");
  add(ControlKind::Label, "LabelG1P2Nr").caption("&E Nr.:").in("FrameG1P2").at(0, 2);
  add(ControlKind::Frame, "Gerade1").caption("Gerade g").at(zeile, 0, 1, 2);
  gerade_.Anlegen("Gerade1", [this](forms::Control& feld, forms::EventArgs& args) { ParamTaste(feld, args); });
  control("ComboGerade1").setList({std::begin(kEintraege), std::end(kEintraege)});
  Fehlermeldung("Kein Einrechnen möglich, da keine Richtung vorhanden ist!");
}

void SchrittDialog::Load() {
  RechenDialog::Load();
  gerade_.Laden();
  // The access keys of the result captions stand only until the first result.
  for (const char* name : {"LabelA", "LabelB"}) control(name).setCaption("&" + control(name).captionText());
}

bool SchrittDialog::GeradeHolen() {
  GeradeRichten(zustand(), gerade_.Eintrag(), A(), E(), numbers::ZahlLesen(control("TextG1_1").text()),
                numbers::ZahlLesen(control("TextG1_2").text()));
  return !(E().A == A().A && E().B == A().B);
}

void SchrittDialog::Schritt(const core::Punkt& p, double da, double db) {
  const core::Zustand& z = zustand();
  double e = da, phi = db;
  points::RechtwinkligZuPolar(z, e, phi);
  e = Param(0);
  points::PolarZuRechtwinklig(z, e, phi);
  Ergebnis().A = p.A + e;
  Ergebnis().B = p.B + phi;
}

}  // namespace kolm::calc

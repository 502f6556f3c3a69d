#include "calc/klotoide/klotoide.h"

#include <cmath>

#include "calc/kernel/klotoide.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

namespace {
// The field filled in by the calculation has its own pattern, whatever the settings.
constexpr const char* FesteForm = "######.000";
constexpr int ErgebnisFelder = 10;

// A step of the calculation that overflows, divides by zero or takes the
// root of a negative number fails; the old program left by its handler.
bool Geht(double wert) { return std::isfinite(wert); }
}  // namespace

KlotoideForm::KlotoideForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "FormKlotoide", "Klotoidenberechnung", "FormKlotoide") {
  Parameter(0, "&L=");
  Parameter(1, "&A=");
  Parameter(2, "&R=");
  Skalar(0, "τ =");
  Skalar(1, "ΔR =");
  Skalar(2, "M (x,y)");
  Skalar(3, "");
  Skalar(4, "Tk");
  Skalar(5, "Tl");
  Skalar(6, "X,Y");
  Skalar(7, "");
  Skalar(8, "Sehne =");
  Skalar(9, "σ =");
  control("FrameErgebnis").caption("Ergebnisse");

  // The frame's Schließen gives way to Abbrechen, next to Löschen.
  control("Schließen").asCancel(false).hidden();
  const forms::Placement& p = control("Schließen").placement();
  add(forms::ControlKind::CommandButton, "Löschen").caption("L&öschen").at(p.row + 1, 0);
  add(forms::ControlKind::CommandButton, "Abbrechen").caption("Abbre&chen").at(p.row + 1, 1).asCancel();
  on("Löschen", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) { Loeschen(); });
  on("Abbrechen", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) { this->forms().unload(*this); });
  control("Berechnen").disabled();
  on("Param", forms::Event::Change, [this](forms::Control&, forms::EventArgs&) { ZweiVonDrei(); });
}

void KlotoideForm::Load() {
  RechenDialog::Load();
  ZweiVonDrei();
}

void KlotoideForm::ZweiVonDrei() {
  int gefuellt = 0;
  for (int i = 0; i < 3; ++i)
    if (!numbers::IstLeer(control("Param", i).text())) ++gefuellt;
  if (gefuellt == 3) return;
  for (int i = 0; i < 3; ++i) {
    const bool offen = gefuellt < 2 || !numbers::IstLeer(control("Param", i).text());
    control("Param", i).setEnabled(offen);
    control("Label", i).setEnabled(offen);
  }
  forms::Control& berechnen = control("Berechnen");
  berechnen.setEnabled(gefuellt == 2);
  if (gefuellt == 2) berechnen.setDefault(true);
}

void KlotoideForm::Loeschen() {
  for (int i = 0; i < 3; ++i) control("Param", i).setText("");
  for (int i = 0; i < 3; ++i) {
    control("Param", i).setEnabled(true);
    control("Label", i).setEnabled(true);
  }
  for (int i = 0; i < ErgebnisFelder; ++i) SkalarZeigen(i, "");
  control("Berechnen").setEnabled(false);
}

bool KlotoideForm::Rechnen() {
  double L = Param(0), A = Param(1), R = Param(2), tau = 0;
  // The empty field decides, tested in the order R, A, L.
  int gesucht = -1;
  double* ausgefuellt = nullptr;
  if (numbers::IstLeer(control("Param", 2).text())) {
    tau = (L * L / (A * A)) / 2;
    R = A * A / L;
    gesucht = 2, ausgefuellt = &R;
  } else if (numbers::IstLeer(control("Param", 1).text())) {
    tau = (L / R) / 2;
    A = std::sqrt(L * R);
    gesucht = 1, ausgefuellt = &A;
  } else if (numbers::IstLeer(control("Param", 0).text())) {
    tau = (A * A / (R * R)) / 2;
    L = A * A / R;
    gesucht = 0, ausgefuellt = &L;
  }
  if (ausgefuellt) {
    if (!Geht(tau) || !Geht(*ausgefuellt)) return false;
    control("Param", gesucht).setText(numbers::ZahlText(*ausgefuellt, FesteForm));
  }

  // The series without a step limit: it alternates, so it ends, unless a
  // term overflows first.
  double xs = 0, ys = 0;
  if (kernel::KlotoideReihe(tau, kernel::KlotoideOhneGrenze, xs, ys) == 0) return false;
  const double x = xs * L, y = ys * L;
  if (!Geht(x) || !Geht(y)) return false;

  // R and A again from the series' data. Three typed fields (a straight)
  // keep what was typed: that run ends later, at the tangents. A tau of 0
  // from a length of 0 fails here, with only the filled-in field written.
  if (ausgefuellt) {
    R = (L / 2) / tau;
    A = std::sqrt(L * R);
    if (!Geht(R) || !Geht(A)) return false;
  }

  // The angle passes through the user's unit on its way into the sines.
  const double wf = zustand().WinkelFaktor;
  const double t = tau / wf;
  if (!Geht(t)) return false;
  const double w = t * wf;
  const std::string& ergebnisForm = zustand().Einstellungen.ErgebnisFormat;
  auto zeigen = [&](int i, double wert) { SkalarZeigen(i, numbers::ZahlText(wert, ergebnisForm)); };

  const double xM = x - R * std::sin(w);
  const double yM = y + R * std::cos(w);
  const double dR = yM - R;
  if (!Geht(xM) || !Geht(yM) || !Geht(dR)) return false;
  SkalarZeigen(0, Standard(t));
  zeigen(1, dR);
  zeigen(2, xM);
  zeigen(3, yM);

  const double tk = y / std::sin(w);
  if (!Geht(tk)) return false;
  zeigen(4, tk);
  const double tl = x - y / std::tan(w);
  if (!Geht(tl)) return false;
  zeigen(5, tl);
  zeigen(6, x);
  zeigen(7, y);

  const double sehne = std::sqrt(x * x + y * y);
  if (!Geht(sehne)) return false;
  zeigen(8, sehne);
  const double phi = std::atan(y / x) / wf;
  if (!Geht(phi)) return false;
  SkalarZeigen(9, Standard(phi));
  return true;
}

}  // namespace kolm::calc

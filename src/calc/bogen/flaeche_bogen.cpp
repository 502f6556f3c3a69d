#include "calc/bogen/flaeche_bogen.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;
using kernel::klassisch::Zuweisen;

std::optional<Kreissegment> KreissegmentAus(double S, double wert, bool mitRadius) {
  Kreissegment k;
  k.S = S;
  const double h = S / 2;
  if (mitRadius) {
    k.R = wert;
    if (2 * k.R < S) return std::nullopt;
    Zuweisen(k.P, k.R - std::sqrt(k.R * k.R - h * h));
  } else {
    k.P = wert;
    Zuweisen(k.R, (h * h + k.P * k.P) / 2 / k.P);
  }
  double x = 0;
  Zuweisen(x, h / k.R);
  k.alpha = 2 * kernel::ArcusSinus(x);
  Zuweisen(k.b, k.R * k.alpha);
  Zuweisen(k.T, k.R * std::tan(k.alpha / 2));
  Zuweisen(k.F, (k.R * k.R / 2) * (k.alpha - std::sin(k.alpha)));
  return k;
}

FlaecheBogenDialog::FlaecheBogenDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name,
                                       std::string caption)
    : RechenDialog(forms, anwendung, name, std::move(caption), name) {}

void FlaecheBogenDialog::SegmentAnlegen(int param, int zeile) {
  param_ = param;
  Parameter(param, "&R=");
  add(ControlKind::Frame, "FrameRadius").caption("Gegeben").at(zeile, 2);
  add(ControlKind::OptionButton, "OptionRadius").caption("Radius").in("FrameRadius").at(0, 0);
  add(ControlKind::OptionButton, "OptionSegment").caption("Segmenthöhe &P").in("FrameRadius").at(0, 1);
  on("OptionRadius", Event::Click,
     [this](forms::Control&, forms::EventArgs&) { control("Label", param_).setCaption("&R="); });
  on("OptionSegment", Event::Click,
     [this](forms::Control&, forms::EventArgs&) { control("Label", param_).setCaption("P="); });
  Skalar(0, "Radius");
  Skalar(1, "Tangente");
  Skalar(2, "α");
  Skalar(3, "Bogen b");
  Skalar(4, "Sehne S");
  Skalar(5, "P (Ys)");
  Skalar(6, "Fläche");
  forms::Control& rahmen = control("FrameErgebnis");
  rahmen.caption("Kreissegment");
  rahmen.at(rahmen.placement().row, 0, 1, 3);
}

void FlaecheBogenDialog::Load() {
  RechenDialog::Load();
  control("OptionRadius").setValue(1);
}

bool FlaecheBogenDialog::Rechnen() {
  const std::optional<Kreissegment> k =
      KreissegmentAus(Sehne(), Param(param_), control("OptionSegment").value() == 0);
  if (!k) {
    Fehlermeldung("Radius ist zu klein!");
    return false;
  }
  const core::Zustand& z = zustand();
  const std::string& ergebnis = z.Einstellungen.ErgebnisFormat;
  SkalarZeigen(0, Standard(k->R));
  SkalarZeigen(1, Standard(k->T));
  SkalarZeigen(2, Standard(k->alpha / z.WinkelFaktor));
  SkalarZeigen(3, numbers::ZahlText(k->b, ergebnis));
  SkalarZeigen(4, numbers::ZahlText(k->S, ergebnis));
  SkalarZeigen(5, numbers::ZahlText(k->P, ergebnis));
  SkalarZeigen(6, numbers::ZahlText(k->F, ergebnis));
  return true;
}

FlaecheBogenBForm::FlaecheBogenBForm(forms::Forms& forms, core::Anwendung& anwendung)
    : FlaecheBogenDialog(forms, anwendung, "FlächeBogenB", "Flächenberechnung Kreissegment mit BA, BE") {
  EingabePunkt(1, "Bogenanfang");
  EingabePunkt(2, "Bogenende");
  SegmentAnlegen(0, 2);
}

double FlaecheBogenBForm::Sehne() {
  const core::Punkt &ba = Eingabe(0), &be = Eingabe(1);
  return kernel::klassisch::Abstand(ba.A, ba.B, be.A, be.B);
}

FlaecheBogenSForm::FlaecheBogenSForm(forms::Forms& forms, core::Anwendung& anwendung)
    : FlaecheBogenDialog(forms, anwendung, "FlächeBogenS", "Flächenberechnung Kreissegment mit S") {
  Parameter(0, "&S=");
  SegmentAnlegen(1, 1);
}

double FlaecheBogenSForm::Sehne() { return Param(0); }

}  // namespace kolm::calc

#include "calc/bogen/bogen_elemente.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;
using kernel::klassisch::Zuweisen;

Bogenelemente ElementeAus(double R, double T, double alpha, std::optional<double> sehne) {
  Bogenelemente e;
  e.R = R;
  e.T = T;
  e.alpha = alpha;
  const double t = std::tan(alpha / 2);
  Zuweisen(e.b, R * alpha);
  if (sehne)
    e.S = *sehne;
  else
    Zuweisen(e.S, 2 * R * std::sin(alpha / 2));
  e.Xs = e.S / 2;
  Zuweisen(e.Ys, (T - e.S / 2) / t);
  Zuweisen(e.ds, std::sqrt(T * T + R * R) - R);
  Zuweisen(e.ts, e.ds / t);
  return e;
}

BogenElementeDialog::BogenElementeDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name,
                                         std::string caption)
    : RechenDialog(forms, anwendung, name, std::move(caption), name) {}

void BogenElementeDialog::RadiusOderTangente(int param, int zeile, int zeilen) {
  radiusParam_ = param;
  control("Label", param).setCaption("&R=");
  add(ControlKind::Frame, "FrameRadius").caption("Gegeben").at(zeile, 2, zeilen, 1);
  add(ControlKind::OptionButton, "OptionRadius").caption("Radius").in("FrameRadius").at(0, 0);
  add(ControlKind::OptionButton, "OptionTangente").caption("Tangente").in("FrameRadius").at(0, 1);
  on("OptionRadius", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    control("Label", radiusParam_).setCaption("&R=");
    RadiusGewaehlt(true);
  });
  on("OptionTangente", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    control("Label", radiusParam_).setCaption("&T=");
    RadiusGewaehlt(false);
  });
}

bool BogenElementeDialog::MitRadius() const { return control("OptionTangente").value() == 0; }

void BogenElementeDialog::ElementeAnlegen() {
  Skalar(0, "Radius");
  Skalar(1, "Tangente");
  Skalar(2, "α");
  Skalar(3, "Bogen b");
  Skalar(4, "Sehne S");
  Skalar(5, "Xs");
  Skalar(6, "Ys");
  Skalar(7, "ds");
  Skalar(8, "ts");
  forms::Control& rahmen = control("FrameErgebnis");
  rahmen.caption("Bogenelemente");
  // Across the column of the options as well.
  rahmen.at(rahmen.placement().row, 0, 1, 3);
}

void BogenElementeDialog::ElementeZeigen(const Bogenelemente& e) {
  const core::Zustand& z = zustand();
  const std::string& ergebnis = z.Einstellungen.ErgebnisFormat;
  SkalarZeigen(0, Standard(e.R));
  SkalarZeigen(1, Standard(e.T));
  SkalarZeigen(2, Standard(e.alpha / z.WinkelFaktor));
  SkalarZeigen(3, numbers::ZahlText(e.b, ergebnis));
  SkalarZeigen(4, numbers::ZahlText(e.S, ergebnis));
  SkalarZeigen(5, numbers::ZahlText(e.Xs, ergebnis));
  SkalarZeigen(6, numbers::ZahlText(e.Ys, ergebnis));
  SkalarZeigen(7, numbers::ZahlText(e.ds, ergebnis));
  SkalarZeigen(8, numbers::ZahlText(e.ts, ergebnis));
}

void BogenElementeDialog::Load() {
  RechenDialog::Load();
  control("OptionRadius").setValue(1);
}

}  // namespace kolm::calc

#include "calc/bogen/bogen_elemente_s.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;
using kernel::klassisch::Zuweisen;

BogenElementeSForm::BogenElementeSForm(forms::Forms& forms, core::Anwendung& anwendung)
    : BogenElementeDialog(forms, anwendung, "BogenElementeS", "Bogenelemente mit Sehne") {
  Parameter(0, "&S=");
  Parameter(1, "&R=");
  add(ControlKind::Frame, "FrameSehne").caption("Gegeben").at(0, 2);
  add(ControlKind::OptionButton, "OptionSehne").caption("Sehne").in("FrameSehne").at(0, 0);
  add(ControlKind::OptionButton, "OptionBogen").caption("Bogen").in("FrameSehne").at(0, 1);
  RadiusOderTangente(1, 1);
  control("FrameRadius").setCaption("und");
  ElementeAnlegen();
  on("OptionSehne", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    control("Label", 0).setCaption("&S=");
    control("OptionTangente").setEnabled(true);
  });
  on("OptionBogen", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    control("Label", 0).setCaption("&B=");
    // From an arc length and a tangent there is no closed solution.
    control("OptionRadius").setValue(1);
    control("OptionTangente").setEnabled(false);
  });
}

void BogenElementeSForm::Load() {
  BogenElementeDialog::Load();
  control("OptionSehne").setValue(1);
}

bool BogenElementeSForm::Rechnen() {
  const double gegeben = Param(0), wert = Param(1);
  if (gegeben == 0 || wert == 0) {
    Fehlermeldung(kUngueltig);
    return false;
  }
  double R = 0, T = 0, alpha = 0, x = 0;
  if (control("OptionBogen").value() != 0) {
    R = wert;
    Zuweisen(alpha, gegeben / R);
    Zuweisen(T, R * std::tan(alpha / 2));
  } else if (MitRadius()) {
    R = wert;
    Zuweisen(x, (gegeben / 2) / R);
    alpha = 2 * kernel::ArcusSinus(x);
    Zuweisen(T, R * std::tan(alpha / 2));
  } else {
    T = wert;
    Zuweisen(x, (gegeben / 2) / T);
    alpha = 2 * kernel::ArcusCosinus(x);
    Zuweisen(R, T / std::tan(alpha / 2));
  }
  ElementeZeigen(ElementeAus(R, T, alpha));
  return true;
}

}  // namespace kolm::calc

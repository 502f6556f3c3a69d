#include "calc/bogen/bogen_elemente_w.h"

#include <cmath>

#include "calc/kernel/klassisch.h"

namespace kolm::calc {

using kernel::klassisch::Zuweisen;

BogenElementeWForm::BogenElementeWForm(forms::Forms& forms, core::Anwendung& anwendung)
    : BogenElementeDialog(forms, anwendung, "BogenElementeW", "Bogenelemente mit Winkel") {
  Parameter(0, "α=");
  Parameter(1, "&R=");
  RadiusOderTangente(1, 1);
  ElementeAnlegen();
}

bool BogenElementeWForm::Rechnen() {
  const double alpha = Param(0) * zustand().WinkelFaktor;
  const double wert = Param(1);
  // Exactly: 200 gon with the program's Pi has a cosine of exactly -1.
  if (std::fabs(std::cos(alpha)) == 1 || wert == 0) {
    Fehlermeldung(kUngueltig);
    return false;
  }
  double R = 0, T = 0;
  if (MitRadius()) {
    R = wert;
    Zuweisen(T, R * std::tan(alpha / 2));
  } else {
    T = wert;
    Zuweisen(R, T / std::tan(alpha / 2));
  }
  ElementeZeigen(ElementeAus(R, T, alpha));
  return true;
}

}  // namespace kolm::calc

#include "calc/kreisabsteckung/kreis_absteck_xys.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"

namespace kolm::calc {

KreisAbsteckXYSForm::KreisAbsteckXYSForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "KreisAbsteckXYS", "Kreisbogenabsteckung mit x, y, s", "KreisAbsteckXYS") {
  Parameter(0, "&R=");
  Parameter(1, "&S=");
  Parameter(2, "&B=");
  Skalar(0, "x =");
  Skalar(1, "y =");
  control("FrameErgebnis").setCaption("Ergebnis");
  Fehlermeldung("Ungültige Parameter!");
}

bool KreisAbsteckXYSForm::Rechnen() {
  const double r = Param(0), s = Param(1), b = Param(2);
  if (r == 0 || s == 0 || b == 0) return false;
  // Central angle of the whole chord; a chord longer than the diameter
  // gives 0 by the arc sine's rule and is not refused.
  const double phi = 2 * kernel::ArcusSinus((s / 2) / r);
  const double w = b / r;
  const double sehne = 2 * r * std::sin(w / 2);
  // The chord to the point leaves the start at half its central angle from
  // the tangent, the whole chord at half of phi: u lies between them.
  const double u = (phi - w) / 2;
  double x = 0, y = 0;
  kernel::klassisch::Zuweisen(x, sehne * std::cos(u));
  kernel::klassisch::Zuweisen(y, sehne * std::sin(u));
  SkalarZeigen(0, Standard(x));
  SkalarZeigen(1, Standard(y));
  return true;
}

}  // namespace kolm::calc

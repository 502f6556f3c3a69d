#include "calc/distanz.h"

#include <cmath>

#include "core/app/anwendung.h"
#include "points/koordinaten.h"

namespace kolm::calc {

DistanzForm::DistanzForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Distanz", "Distanz zwischen 2 Punkten", "") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  Skalar(0, "Distanz");
  Skalar(1, "Winkel");
  Skalar(2, "Steigung");
  Skalar(3, "Delta X");
  Skalar(4, "Delta Y");
}

void DistanzForm::Load() {
  RechenDialog::Load();
  const bool m31 = zustand().M31 != 0;
  control("ErgLabel", 3).setCaption(m31 ? "Delta Y" : "Delta X");
  control("ErgLabel", 4).setCaption(m31 ? "Delta X" : "Delta Y");
}

bool DistanzForm::Rechnen() {
  double da = Eingabe(1).A - Eingabe(0).A;
  double db = Eingabe(1).B - Eingabe(0).B;
  SkalarZeigen(3, Standard(da));
  SkalarZeigen(4, Standard(db));
  points::RechtwinkligZuPolar(zustand(), da, db);
  SkalarZeigen(0, Standard(da));
  SkalarZeigen(1, Standard(db));
  // The polar angle of the system in use, so rise over run only where the
  // angle runs from the axis to the right counter-clockwise.
  const double richtung = db * zustand().WinkelFaktor;
  SkalarZeigen(2, std::cos(richtung) != 0 ? Standard(100 * std::tan(richtung)) : "zu groß");
  return true;
}

}  // namespace kolm::calc

#include "calc/kreise/umkreis_mittelpunkt.h"

#include "calc/kernel/kreise.h"

namespace kolm::calc {

UmkreisMittelpunktForm::UmkreisMittelpunktForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "UmkreisMittelpunkt", "Umkreis-Mittelpunkt aus drei Punkten",
                   "UmkreisMittelpunkt") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  EingabePunkt(3, "Punkt P3");
  ErgebnisPunkt(-1, "Ergebnis: Kreis", {"M", "", false});
  Skalar(0, "Radius");
  Fehlermeldung("Kein Kreis vorhanden!");
}

void UmkreisMittelpunktForm::Beschriften() {
  // The centre's polar captions carry a hyphen that the common rule lacks.
  if (zustand().Polar == 0) return;
  control("LabelA").setCaption("M-e =");
  control("LabelB").setCaption("M-Phi =");
}

bool UmkreisMittelpunktForm::Rechnen() {
  const core::Punkt &p1 = Eingabe(0), &p2 = Eingabe(1), &p3 = Eingabe(2);
  core::Punkt& m = Ergebnis();
  double r = 0;
  if (!kernel::UmkreisRechnen(p1.A, p1.B, p2.A, p2.B, p3.A, p3.B, m.A, m.B, r)) return false;
  SkalarZeigen(0, Standard(r));
  return true;
}

}  // namespace kolm::calc

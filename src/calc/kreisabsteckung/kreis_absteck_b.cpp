#include "calc/kreisabsteckung/kreis_absteck_b.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "calc/kernel/winkel.h"

namespace kolm::calc {

KreisAbsteckBForm::KreisAbsteckBForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "KreisAbsteckB", "Kreisbogenabsteckung mit b", "KreisAbsteckB") {
  EingabePunkt(1, "Kreis-Mittelpunkt");
  EingabePunkt(2, "Bogenanfang");
  Parameter(0, "&B=");
  // The sense stands beside the field, in the row the parameter took.
  add(forms::ControlKind::Label, "LabelDrehsinn").caption("B>0 rechtsdrehend    B<0 linksdrehend").at(2, 2);
  ErgebnisPunkt(-1, "Ergebnis Punkt am Bogen");
  Fehlermeldung("Ungültige Parameter!");
}

bool KreisAbsteckBForm::Rechnen() {
  const core::Punkt &m = Eingabe(0), &ba = Eingabe(1);
  const double r = kernel::klassisch::Abstand(m.A, m.B, ba.A, ba.B);
  const double b = Param(0);
  if (r == 0 || b == 0) return false;
  // A positive arc turns from a toward -b: clockwise as the plan is drawn.
  const double t = kernel::Richtung(ba.B - m.B, ba.A - m.A) - b / r;
  double a = 0, bb = 0;
  if (!kernel::klassisch::Zuweisen(a, m.A + r * std::cos(t)) ||
      !kernel::klassisch::Zuweisen(bb, m.B + r * std::sin(t)))
    return false;
  Ergebnis().A = a;
  Ergebnis().B = bb;
  return true;
}

}  // namespace kolm::calc

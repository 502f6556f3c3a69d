#include "calc/anschluss/direkter_anschluss.h"

#include "calc/kernel/anschluss.h"
#include "core/app/anwendung.h"
#include "points/koordinaten.h"

namespace kolm::calc {

DirekterAnschlussForm::DirekterAnschlussForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "DirekterAnschluß", "Direkter Anschluß", "DirekterAnschluß") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  Parameter(0, "&e=");
  // The old captions were a and b in the Symbol font: they showed as Greek.
  Parameter(1, "α");
  Parameter(2, "β");
  ErgebnisPunkt(-1, "Ergebnis: Standpunkt S");
  // A box without a title of its own bears the program's name.
  Fehlermeldung("Mit diesen Parametern ist kein direkter Anschluß berechenbar!", forms::ProgrammName);
}

bool DirekterAnschlussForm::Rechnen() {
  // The station starts as P1; its c and number stay as they were.
  core::Punkt& s = Ergebnis();
  s.A = Eingabe(0).A;
  s.B = Eingabe(0).B;
  double a2 = Eingabe(1).A, b2 = Eingabe(1).B;
  return kernel::DirekterAnschlussRechnen(s.A, s.B, Param(1), Param(0), a2, b2, Param(2),
                                          points::WinkelsystemVon(zustand()));
}

}  // namespace kolm::calc

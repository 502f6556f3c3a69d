#include "calc/anschluss/indirekter_anschluss.h"

#include "calc/kernel/anschluss.h"
#include "core/app/anwendung.h"
#include "points/koordinaten.h"

namespace kolm::calc {

IndirekterAnschlussForm::IndirekterAnschlussForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "IndirekterAnschluß", "Indirekter Anschluß", "IndirekterAnschluß") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  Parameter(0, "&a=");
  // The old captions were a, b and l in the Symbol font: they showed as Greek.
  Parameter(1, "α");
  Parameter(2, "β");
  Parameter(3, "λ");
  ErgebnisPunkt(-1, "Ergebnis: Standpunkt S");
  // A box without a title of its own bears the program's name.
  Fehlermeldung("Mit diesen Parametern ist kein indirekter Anschluß berechenbar!", forms::ProgrammName);
}

bool IndirekterAnschlussForm::Rechnen() {
  // The station starts as P1; its c and number stay as they were.
  core::Punkt& s = Ergebnis();
  s.A = Eingabe(0).A;
  s.B = Eingabe(0).B;
  return kernel::IndirekterAnschlussRechnen(s.A, s.B, Param(0), Param(1), Param(2), Eingabe(1).A, Eingabe(1).B,
                                            Param(3), points::WinkelsystemVon(zustand()));
}

}  // namespace kolm::calc

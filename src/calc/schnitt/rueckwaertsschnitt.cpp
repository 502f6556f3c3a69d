#include "calc/schnitt/rueckwaertsschnitt.h"

#include "calc/kernel/winkelschnitte.h"
#include "points/koordinaten.h"

namespace kolm::calc {

RueckwaertsschnittForm::RueckwaertsschnittForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Rückwärtsschnitt", "Rückwärtsschnitt", "Rückwärtsschnitt") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  EingabePunkt(3, "Punkt P3");
  Parameter(0, "Winkel zwischen P1-S-P2:");
  Parameter(1, "Winkel zwischen P2-S-P3:");
  ErgebnisPunkt(-1, "Ergebnis: Standpunkt S");
  // A box without a title of its own bears the program's name.
  Fehlermeldung("Mit diesen Parametern kann kein Rückwärtsschnitt eingerechnet werden!", forms::ProgrammName);
}

bool RueckwaertsschnittForm::Rechnen() {
  // P1 is the working pair; the station keeps its own height.
  core::Punkt& s = Ergebnis();
  s.A = Eingabe(0).A;
  s.B = Eingabe(0).B;
  return kernel::RueckwaertsschnittRechnen(s.A, s.B, Eingabe(1).A, Eingabe(1).B, Eingabe(2).A, Eingabe(2).B,
                                           Param(0), Param(1), points::WinkelsystemVon(zustand()));
}

}  // namespace kolm::calc

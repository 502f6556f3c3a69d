#include "calc/schnitt/vorwaertsschnitt.h"

#include "calc/kernel/winkelschnitte.h"
#include "points/koordinaten.h"

namespace kolm::calc {

VorwaertsschnittForm::VorwaertsschnittForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "Vorwärtsschnitt", "Vorwärtsschnitt", "Vorwärtsschnitt") {
  EingabePunkt(1, "Punkt P1");
  EingabePunkt(2, "Punkt P2");
  // Greek letters stand where the old screens drew a and b in the Symbol font.
  Parameter(1, "α");
  Parameter(2, "β");
  // Beside the two fields: the angles turn in opposite senses.
  add(forms::ControlKind::Label, "Hinweis").caption("Winkel haben nicht den gleichen Drehsinn!").at(2, 2, 2, 1);
  ErgebnisPunkt(-1, "Ergebnis: Standpunkt S");
  // A box without a title of its own bears the program's name.
  Fehlermeldung("Mit diesen Parametern kann kein Vorwärtsschnitt eingerechnet werden!", forms::ProgrammName);
}

bool VorwaertsschnittForm::Rechnen() {
  // P1 is the working pair; the result keeps its own height.
  core::Punkt& s = Ergebnis();
  s.A = Eingabe(0).A;
  s.B = Eingabe(0).B;
  return kernel::VorwaertsschnittRechnen(s.A, s.B, Eingabe(1).A, Eingabe(1).B, Param(1), Param(2),
                                         points::WinkelsystemVon(zustand()));
}

}  // namespace kolm::calc

#include "calc/kreise/kreis_kreis.h"

#include "calc/kernel/kreise.h"

namespace kolm::calc {

KreisKreisForm::KreisKreisForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "KreisKreis", "Schnittpunkte zweier Kreise", "KreisKreis") {
  EingabePunkt(1, "M&1 Nr.:");
  Parameter(0, "&Radius");
  EingabePunkt(2, "M&2 Nr.:");
  Parameter(1, "R&adius");
  ErgebnisPunkt(0, "Ergebnis 1.Punkt", {"", "1", false});
  ErgebnisPunkt(1, "Ergebnis 2.Punkt", {"", "2", false});
  control("Speichern", 1).setCaption("S&peichern");
  Fehlermeldung("Kein Kreisschnitt vorhanden!");
}

bool KreisKreisForm::Rechnen() {
  // Only a and b are written: the heights of the records stay as they were.
  core::Punkt &s1 = Ergebnis(0), &s2 = Ergebnis(1);
  s1.A = Eingabe(0).A;
  s1.B = Eingabe(0).B;
  s2.A = Eingabe(1).A;
  s2.B = Eingabe(1).B;
  return kernel::SchnittKreisKreis(s1.A, s1.B, Param(0), s2.A, s2.B, Param(1));
}

}  // namespace kolm::calc

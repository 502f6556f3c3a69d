#include "calc/kreise/kreis_tangenten.h"

#include "calc/kernel/kreise.h"

namespace kolm::calc {

KreisTangentenForm::KreisTangentenForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "KreisTangenten", "Tangenten an Kreis", "KreisTangenten") {
  EingabePunkt(1, "&M Nr.:");
  Parameter(0, "&Radius");
  EingabePunkt(2, "&P Nr.:");
  ErgebnisPunkt(0, "Ergebnis 1.Punkt", {"", "1", false});
  ErgebnisPunkt(1, "Ergebnis 2.Punkt", {"", "2", false});
  control("Speichern", 1).setCaption("S&peichern");
  Skalar(0, "t =");
  control("FrameErgebnis").setCaption("Tangentenlänge");
  Fehlermeldung("Keine Tangenten vorhanden!");
}

bool KreisTangentenForm::Rechnen() {
  // Only a and b are written: the heights of the records stay as they were.
  // On failure the kernel leaves both records at 0, and so they stay.
  core::Punkt &s1 = Ergebnis(0), &s2 = Ergebnis(1);
  s1.A = Eingabe(0).A;
  s1.B = Eingabe(0).B;
  s2.A = Eingabe(1).A;
  s2.B = Eingabe(1).B;
  double t = 0;
  if (!kernel::TangentenRechnen(s1.A, s1.B, Param(0), s2.A, s2.B, t)) return false;
  SkalarZeigen(0, Standard(t));
  return true;
}

}  // namespace kolm::calc

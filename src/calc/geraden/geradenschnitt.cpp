#include "calc/geraden/geradenschnitt.h"

#include "calc/kernel/schnitte.h"

namespace kolm::calc {

GeradenschnittForm::GeradenschnittForm(forms::Forms& forms, core::Anwendung& anwendung)
    : GeradenDialog(forms, anwendung, "FormGeradenschnitt", "Geradenschnitt", "FormGeradenschnitt") {
  GeradeAnlegen(1, 1);
  GeradeAnlegen(2, 3);
  ErgebnisPunkt(-1, "Ergebnis: Schnittpunkt S", {"", "", false});
  Fehlermeldung("Kein Geradenschnitt vorhanden!", "Geradenschnitt");
}

bool GeradenschnittForm::Rechnen() {
  double d1a = 0, d1b = 0, d2a = 0, d2b = 0;
  Auswerten(0, d1a, d1b);
  Auswerten(1, d2a, d2b);
  const core::Punkt &g1 = Anfang(0), &g2 = Anfang(1);
  core::Punkt& s = Ergebnis();
  return kernel::SchnittGeraden(g1.A, g1.B, d1a, d1b, g2.A, g2.B, d2a, d2b, s.A, s.B);
}

}  // namespace kolm::calc

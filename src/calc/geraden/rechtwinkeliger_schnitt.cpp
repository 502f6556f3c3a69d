#include "calc/geraden/rechtwinkeliger_schnitt.h"

#include "calc/kernel/schnitte.h"

namespace kolm::calc {

RechtwinkeligerSchnittForm::RechtwinkeligerSchnittForm(forms::Forms& forms, core::Anwendung& anwendung)
    : GeradenDialog(forms, anwendung, "Form3PktGeradenschnitt", "Rechtwinkeliger Geradenschnitt",
                    "Form3PktGeradenschnitt") {
  GeradeAnlegen(1, 1);
  p_ = EingabePunkt(1, "Punkt P");
  ErgebnisPunkt(-1, "Ergebnis: Lotfußpunkt S", {"", "", false});
  Fehlermeldung("Kein Geradenschnitt vorhanden!", "Rechtwinkeliger Geradenschnitt");
}

bool RechtwinkeligerSchnittForm::Rechnen() {
  double da = 0, db = 0;
  Auswerten(0, da, db);
  const core::Punkt &g = Anfang(0), &p = Eingabe(p_);
  core::Punkt& s = Ergebnis();
  // The perpendicular through P: the line's direction turned a quarter.
  return kernel::SchnittGeraden(g.A, g.B, da, db, p.A, p.B, -db, da, s.A, s.B);
}

}  // namespace kolm::calc

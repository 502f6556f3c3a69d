#include "calc/geraden/parallelen_schnitt.h"

#include "calc/kernel/schnitte.h"

namespace kolm::calc {

ParallelenSchnittForm::ParallelenSchnittForm(forms::Forms& forms, core::Anwendung& anwendung)
    : GeradenDialog(forms, anwendung, "FormParallelenSchnitt", "Gerade Parallelen Schnitt", "FormParallelenSchnitt") {
  GeradeAnlegen(1, 1);
  GeradeAnlegen(2, 3);
  p_ = EingabePunkt(1, "Punkt P");
  ErgebnisPunkt(-1, "Ergebnis: Schnittpunkt S", {"", "", false});
  Fehlermeldung("Kein Geradenschnitt vorhanden!", "Geradenschnitt");
  on("Berechnen", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) {
    // P is never converted: in a polar table its distance and angle stand
    // for a and b, and its record is left as it was. Users rely on that.
    roh_ = Eingabe(p_);
    Berechnen();
    Eingabe(p_) = roh_;
  });
}

bool ParallelenSchnittForm::Rechnen() {
  double d1a = 0, d1b = 0, d2a = 0, d2b = 0;
  Auswerten(0, d1a, d1b);
  Auswerten(1, d2a, d2b);
  const core::Punkt& p = zustand().Polar != 0 ? roh_ : Eingabe(p_);
  const core::Punkt& g2 = Anfang(1);
  core::Punkt& s = Ergebnis();
  return kernel::SchnittGeraden(p.A, p.B, d1a, d1b, g2.A, g2.B, d2a, d2b, s.A, s.B);
}

}  // namespace kolm::calc

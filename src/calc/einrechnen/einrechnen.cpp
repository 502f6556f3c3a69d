#include "calc/einrechnen/einrechnen.h"

#include "points/koordinaten.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {
constexpr char kPolar[] = "Polares Einrechnen";
constexpr char kFortlaufend[] = "Fortlaufendes Einrechnen";
}  // namespace

EinrechnenForm::EinrechnenForm(forms::Forms& forms, core::Anwendung& anwendung)
    : SchrittDialog(forms, anwendung, "Einrechnen", kPolar) {
  GeradeAnlegen(30);
  Parameter(0, "&Distanz: e=");
  ErgebnisPunkt(-1, "Ergebnis", {"", "", false});
  add(ControlKind::OptionButton, "OptionPolar").caption("&Polar").at(31, 0);
  add(ControlKind::OptionButton, "OptionFortlaufend").caption("&Fortlaufend").at(31, 1);
  on("OptionPolar", Event::Click, [this](forms::Control&, forms::EventArgs&) { setCaption(kPolar); });
  on("OptionFortlaufend", Event::Click, [this](forms::Control&, forms::EventArgs&) { setCaption(kFortlaufend); });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) { BerechnenKlick(); });
}

void EinrechnenForm::Load() {
  SchrittDialog::Load();
  control("OptionPolar").setValue(1);
  setCaption(kPolar);
}

bool EinrechnenForm::Rechnen() {
  erfolg_ = false;
  aA_ = A().A;
  aB_ = A().B;
  if (!GeradeHolen()) return false;
  Schritt(A(), E().A - A().A, E().B - A().B);
  erfolg_ = true;
  return true;
}

void EinrechnenForm::BerechnenKlick() {
  const bool polar = zustand().Polar != 0;
  const bool fortlaufend = control("OptionFortlaufend").value() != 0;
  erfolg_ = false;
  Berechnen();  // the records of A and E are back in the table's form
  if (!fortlaufend) return;
  if (erfolg_) {
    // The result, already in the table's form, is the next start.
    A().A = Ergebnis().A;
    A().B = Ergebnis().B;
    A().Nummer = -1;
    control("G1P1Nr").setText("");
    control("G1P1").setCaption(points::PunktText(zustand(), A()));
    control("PktNr").setFocus();
  } else if (polar) {
    // A continued run that fails leaves A rectangular, as users know it.
    A().A = aA_;
    A().B = aB_;
  }
}

}  // namespace kolm::calc

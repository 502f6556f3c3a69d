#include "calc/einrechnen/kleinpunkte.h"

#include "calc/frame/punkt_holen.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {
const char* const kRichtungen[] = {"&vorwärts", "&zurück", "&links", "&rechts"};
}  // namespace

KleinpunkteForm::KleinpunkteForm(forms::Forms& forms, core::Anwendung& anwendung)
    : SchrittDialog(forms, anwendung, "Kleinpunkte", "Kleinpunkte") {
  GeradeAnlegen(30);
  p_ = EingabePunkt(1, "Ausgangspunkt P");
  Parameter(0, "&Distanz: e=");
  ErgebnisPunkt(-1, "Ergebnis", {"", "", false});
  add(ControlKind::Frame, "FrameRichtung").at(31, 0, 1, 2);
  for (int i = 0; i < 4; ++i)
    add(ControlKind::OptionButton, "OptionRichtung", i).caption(kRichtungen[i]).in("FrameRichtung").at(i / 2, i % 2);
  // Typing a distance and pressing Enter calculates, without the mouse.
  on("OptionRichtung", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    control("Berechnen").setDefault(true);
  });
  on("Param", Event::KeyPress, [this](forms::Control& feld, forms::EventArgs& args) {
    ParamTaste(feld, args);
    control("Berechnen").setDefault(true);
  });
  // A fetched A is also where the steps begin.
  on("G1P1Nr", Event::Change, [this](forms::Control& feld, forms::EventArgs&) {
    PunktHolen(zustand(), feld.text(), A());
    control("G1P1").setCaption(points::PunktText(zustand(), A()));
    control("Berechnen").setDefault(true);
    control("PP1Nr").setText(feld.text());
  });
  on("GetG1P1", Event::Click, [this](forms::Control&, forms::EventArgs&) { AGeholt(); });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) { BerechnenKlick(); });
}

void KleinpunkteForm::Load() {
  SchrittDialog::Load();
  control("OptionRichtung", 0).setValue(1);
}

void KleinpunkteForm::AGeholt() {
  if (!PunktEingeben(0)) return;  // cancelled
  const std::string nr = control("G1P1Nr").text();
  if (!numbers::IstLeer(nr)) {
    control("PP1Nr").setText(nr);  // a number: P fetches it too
    return;
  }
  // By hand: the record and its label go to P as they are.
  control("PP1Nr").setText(nr);
  P() = A();
  control("PP1").setCaption(control("G1P1").captionText());
}

int KleinpunkteForm::Richtung() const {
  for (int i = 0; i < 4; ++i)
    if (control("OptionRichtung", i).value() != 0) return i;
  return 0;
}

bool KleinpunkteForm::Rechnen() {
  erfolg_ = false;
  pA_ = P().A;
  pB_ = P().B;
  if (!GeradeHolen()) return false;
  const double da = E().A - A().A, db = E().B - A().B;
  // Left and right on the plane as drawn, whatever the system.
  switch (Richtung()) {
    case 1: Schritt(P(), -da, -db); break;
    case 2: Schritt(P(), -db, da); break;
    case 3: Schritt(P(), db, -da); break;
    default: Schritt(P(), da, db); break;
  }
  erfolg_ = true;
  return true;
}

void KleinpunkteForm::BerechnenKlick() {
  const bool polar = zustand().Polar != 0;
  erfolg_ = false;
  Berechnen();  // the records are back in the table's form
  if (erfolg_) {
    // The result, already in the table's form, is the next start.
    P().A = Ergebnis().A;
    P().B = Ergebnis().B;
    P().Nummer = -1;
    control("PP1Nr").setText("");
    control("PP1").setCaption(points::PunktText(zustand(), P()));
  } else if (polar) {
    // A failed run leaves P rectangular, as users know it.
    P().A = pA_;
    P().B = pB_;
  }
}

}  // namespace kolm::calc

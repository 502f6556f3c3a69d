#include "calc/kreise/gerade_kreis.h"


#include "calc/kernel/kreise.h"
#include "core/app/anwendung.h"
#include "points/koordinaten.h"
#include "points/variablen.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {

// Row of the line group, below the points and results the frame places.
constexpr int GeradenZeile = 30;

}  // namespace

GeradeKreisForm::GeradeKreisForm(forms::Forms& forms, core::Anwendung& anwendung)
    : RechenDialog(forms, anwendung, "GeradeKreis", "Kreis-Geraden Schnittpunkt", "GeradeKreis") {
  EingabePunkt(1, "&M Nr.:");
  Parameter(0, "&Radius");
  EingabePunkt("G1P1", "FrameG1P1", "Punkt P1");
  add(ControlKind::Label, "LabelG1P1Nr").caption("P&1 Nr.:").in("FrameG1P1").at(0, 2);
  EingabePunkt("G1P2", "FrameG1P2", "Punkt P2");
  add(ControlKind::Label, "LabelG1P2Nr").caption("P&2 Nr.:").in("FrameG1P2").at(0, 2);
  ErgebnisPunkt(0, "Ergebnis 1.Punkt", {"", "1", false});
  ErgebnisPunkt(1, "Ergebnis 2.Punkt", {"", "2", false});
  control("Speichern", 1).setCaption("S&peichern");
  Fehlermeldung("Kein Kreis-Geradenschnitt vorhanden!");

  add(ControlKind::Frame, "Gerade1").caption("Gerade g").at(GeradenZeile, 0, 1, 2);
  gerade1_.Anlegen("Gerade1", [this](forms::Control& feld, forms::EventArgs& args) { ParamTaste(feld, args); });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    const bool polar = zustand().Polar != 0;
    // Only the line's points go back to polar: the centre's record stays
    // rectangular, exactly as its one conversion made it. Converting it back
    // and forth would turn it by the difference of the program's Pi to pi.
    core::Punkt mitte = Eingabe(0);
    if (polar) points::PolarZuRechtwinklig(zustand(), mitte.A, mitte.B);
    Berechnen();
    if (polar) {
      Eingabe(0).A = mitte.A;
      Eingabe(0).B = mitte.B;
    }
  });
}

void GeradeKreisForm::Load() {
  RechenDialog::Load();
  gerade1_.Laden();
}

bool GeradeKreisForm::Rechnen() {
  core::Punkt &g1 = Eingabe(1), &g2 = Eingabe(2);
  gerade1_.Auswerten(zustand(), g1, g2);
  // Only a and b are written: the heights of the records stay as they were.
  core::Punkt &s1 = Ergebnis(0), &s2 = Ergebnis(1);
  s1.A = Eingabe(0).A;
  s1.B = Eingabe(0).B;
  s2.A = g1.A;
  s2.B = g1.B;
  return kernel::SchnittGeradeKreis(s1.A, s1.B, Param(0), s2.A, s2.B, g2.A - g1.A, g2.B - g1.B);
}

}  // namespace kolm::calc

#include "calc/kreise/gerade_kreis.h"

#include <cmath>

#include "calc/kernel/kreise.h"
#include "core/app/anwendung.h"
#include "points/koordinaten.h"
#include "points/numbers/konstanten.h"
#include "points/numbers/numbers.h"
#include "points/variablen.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {

// Row of the line group, below the points and results the frame places.
constexpr int GeradenZeile = 30;

struct Eintrag {
  const char* caption;
  bool p1, p2;
  const char *t1, *t2;  // nullptr: the field is hidden
};

constexpr Eintrag kEintraege[] = {
    {"zwei Punkte", true, true, nullptr, nullptr},
    {"P1 und Verhältnis", true, false, "Steigungs&verhältnis:", "zu"},
    {"P1 und Prozent", true, false, "Steigung in &Prozent:", nullptr},
    {"P1 und Steigung", true, false, "Steigungsfaktor &k:", nullptr},
    {"P1 und Winkel", true, false, "Steigungs&winkel:", nullptr},
    {"P1 und Vektor", true, false, "Richtungsvektor &U =", "&V ="},
    {"Senkrecht durch P1", true, false, nullptr, nullptr},
    {"Waagrecht durch P1", true, false, nullptr, nullptr},
    {"y = kx + d", false, false, "Steigungsfaktor &k =", "&d ="},
};

}  // namespace

void GeradeAuswerten(const core::Zustand& z, int eintrag, core::Punkt& p1, core::Punkt& p2, double t1, double t2) {
  const double a = p1.A, b = p1.B;
  switch (eintrag) {
    case 1: p2.A = a + t2; p2.B = b + t1; break;
    case 2: p2.A = a + 100; p2.B = b + t1; break;
    case 3: p2.A = a + 1; p2.B = b + t1; break;
    case 4: {
      // From the axis the system's angles start from, in the system's sense.
      const double w = t1 * z.WinkelFaktor;
      const bool rechtsdrehend = (z.M31 != 0) != (z.Falschdrehend != 0);
      p2.A = a + 1;
      p2.B = b + std::tan(rechtsdrehend ? numbers::Pi / 2 - w : w);
      break;
    }
    case 5: p2.A = a + t1; p2.B = b + t2; break;
    case 6: p2.A = a; p2.B = b + 1; break;
    case 7: p2.A = a + 1; p2.B = b; break;
    case 8:
      p1.A = 0;
      p1.B = t2;
      p2.A = 1;
      p2.B = t1 + t2;
      break;
    default: break;  // two points as fetched
  }
}

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
  forms::Control& combo = add(ControlKind::ComboBox, "ComboGerade1").in("Gerade1").at(0, 0, 1, 2);
  for (const Eintrag& e : kEintraege) combo.addItem(e.caption);
  for (int i = 1; i <= 2; ++i) {
    const std::string n = std::to_string(i);
    add(ControlKind::Label, "LabelG1_" + n).in("Gerade1").at(i, 0);
    add(ControlKind::TextBox, "TextG1_" + n).in("Gerade1").at(i, 1).width(12);
    on("TextG1_" + n, Event::GotFocus, [](forms::Control& feld, forms::EventArgs&) {
      feld.setSelection(0, static_cast<int>(feld.text().size()));
    });
    on("TextG1_" + n, Event::KeyPress, [this](forms::Control& feld, forms::EventArgs& args) { ParamTaste(feld, args); });
    on("TextG1_" + n, Event::Change, [this](forms::Control&, forms::EventArgs&) {
      control("Berechnen").setDefault(true);
    });
  }
  on("ComboGerade1", Event::Click, [this](forms::Control&, forms::EventArgs&) { GeradeGewaehlt(); });
  on("Berechnen", Event::Click, [this](forms::Control&, forms::EventArgs&) {
    const bool polar = zustand().Polar != 0;
    Berechnen();
    // Only the line's points go back to polar: the centre's record stays
    // rectangular, as the users of this dialog have always known it.
    if (polar) points::PolarZuRechtwinklig(zustand(), Eingabe(0).A, Eingabe(0).B);
  });
}

void GeradeKreisForm::Load() {
  RechenDialog::Load();
  control("ComboGerade1").setListIndex(0);
  GeradeGewaehlt();
}

void GeradeKreisForm::GeradeGewaehlt() {
  const int i = control("ComboGerade1").listIndex();
  if (i < 0 || i > 8) return;
  const Eintrag& e = kEintraege[i];
  for (const char* name : {"G1P1Nr", "GetG1P1", "G1P1", "LabelG1P1Nr"}) control(name).setVisible(e.p1);
  for (const char* name : {"G1P2Nr", "GetG1P2", "G1P2", "LabelG1P2Nr"}) control(name).setVisible(e.p2);
  const char* texte[] = {e.t1, e.t2};
  for (int k = 0; k < 2; ++k) {
    const std::string n = std::to_string(k + 1);
    control("LabelG1_" + n).setCaption(texte[k] ? texte[k] : "");
    control("LabelG1_" + n).setVisible(texte[k] != nullptr);
    control("TextG1_" + n).setVisible(texte[k] != nullptr);
  }
}

bool GeradeKreisForm::Rechnen() {
  core::Punkt &g1 = Eingabe(1), &g2 = Eingabe(2);
  GeradeAuswerten(zustand(), control("ComboGerade1").listIndex(), g1, g2,
                  numbers::ZahlLesen(control("TextG1_1").text()), numbers::ZahlLesen(control("TextG1_2").text()));
  // Only a and b are written: the heights of the records stay as they were.
  core::Punkt &s1 = Ergebnis(0), &s2 = Ergebnis(1);
  s1.A = Eingabe(0).A;
  s1.B = Eingabe(0).B;
  s2.A = g1.A;
  s2.B = g1.B;
  return kernel::SchnittGeradeKreis(s1.A, s1.B, Param(0), s2.A, s2.B, g2.A - g1.A, g2.B - g1.B);
}

}  // namespace kolm::calc

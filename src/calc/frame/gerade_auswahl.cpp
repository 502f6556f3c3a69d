#include "calc/frame/gerade_auswahl.h"

#include <cmath>

#include "points/numbers/konstanten.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

using forms::ControlKind;
using forms::Event;

namespace {

struct Art {
  const char* caption;  // "P1" stands for the first point's name
  bool p1, p2;
  const char *t1, *t2;  // nullptr: the field is hidden
};

constexpr Art kEintraege[] = {
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
constexpr int kAnzahl = static_cast<int>(sizeof kEintraege / sizeof kEintraege[0]);

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

GeradeAuswahl::GeradeAuswahl(forms::Form& form, int gerade, int erster)
    : form_(form), gerade_(gerade), erster_(erster) {}

std::string GeradeAuswahl::Name(const std::string& stamm) const {
  // "ComboGerade" + 1, "TextG" + 1 + "_1", "G" + 1 + "P1"...
  std::string n = stamm;
  const auto pos = n.find('#');
  return n.replace(pos, 1, std::to_string(gerade_));
}

void GeradeAuswahl::Anlegen(const std::string& rahmen, Taste taste) {
  forms::Control& combo = form_.add(ControlKind::ComboBox, Name("ComboGerade#")).in(rahmen).at(0, 0, 1, 2);
  for (const Art& e : kEintraege) {
    std::string text = e.caption;
    const auto pos = text.find("P1");
    if (pos != std::string::npos) text.replace(pos + 1, 1, std::to_string(erster_));
    combo.addItem(text);
  }
  for (int i = 1; i <= 2; ++i) {
    const std::string n = std::to_string(i);
    form_.add(ControlKind::Label, Name("LabelG#_") + n).in(rahmen).at(i, 0);
    const std::string feld = Name("TextG#_") + n;
    form_.add(ControlKind::TextBox, feld).in(rahmen).at(i, 1).width(12);
    form_.on(feld, Event::GotFocus, [](forms::Control& f, forms::EventArgs&) {
      f.setSelection(0, static_cast<int>(f.text().size()));
    });
    form_.on(feld, Event::KeyPress, [taste](forms::Control& f, forms::EventArgs& args) { taste(f, args); });
    form_.on(feld, Event::Change, [this](forms::Control&, forms::EventArgs&) {
      form_.control("Berechnen").setDefault(true);
    });
  }
  form_.on(Name("ComboGerade#"), Event::Click, [this](forms::Control&, forms::EventArgs&) { Zeigen(); });
}

void GeradeAuswahl::Laden() {
  form_.control(Name("ComboGerade#")).setListIndex(0);
  Zeigen();
}

int GeradeAuswahl::Eintrag() const { return form_.control(Name("ComboGerade#")).listIndex(); }

void GeradeAuswahl::Zeigen() {
  const int i = Eintrag();
  if (i < 0 || i >= kAnzahl) return;
  const Art& e = kEintraege[i];
  for (const char* stamm : {"G#P1Nr", "GetG#P1", "G#P1", "LabelG#P1Nr"}) form_.control(Name(stamm)).setVisible(e.p1);
  for (const char* stamm : {"G#P2Nr", "GetG#P2", "G#P2", "LabelG#P2Nr"}) form_.control(Name(stamm)).setVisible(e.p2);
  const char* texte[] = {e.t1, e.t2};
  for (int k = 0; k < 2; ++k) {
    const std::string n = std::to_string(k + 1);
    form_.control(Name("LabelG#_") + n).setCaption(texte[k] ? texte[k] : "");
    form_.control(Name("LabelG#_") + n).setVisible(texte[k] != nullptr);
    form_.control(Name("TextG#_") + n).setVisible(texte[k] != nullptr);
  }
}

void GeradeAuswahl::Auswerten(const core::Zustand& z, core::Punkt& p1, core::Punkt& p2) const {
  GeradeAuswerten(z, Eintrag(), p1, p2, numbers::ZahlLesen(form_.control(Name("TextG#_1")).text()),
                  numbers::ZahlLesen(form_.control(Name("TextG#_2")).text()));
}

}  // namespace kolm::calc

#pragma once
// A running program without windows for the calculation dialogs' tests, and
// a small dialog of the family: the point at a given distance from P1
// toward P2.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "calc/frame/rechen_dialog.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "forms/scripted.h"
#include "points/punkte_verdrahtung.h"

namespace kolm::calc::testing {

class Probe : public RechenDialog {
 public:
  Probe(forms::Forms& f, core::Anwendung& a) : RechenDialog(f, a, "Probe", "Probe", "Probe-Skizze") {
    EingabePunkt(1, "Punkt P1");
    EingabePunkt(2, "Punkt P2");
    Parameter(0, "&s=");
    ErgebnisPunkt(-1, "Ergebnis: Punkt S");
    Fehlermeldung("Die Punkte fallen zusammen!", "Probe: Fehler");
  }
  std::vector<core::Punkt> gesehen;  // the inputs as the kernel got them

 protected:
  bool Rechnen() override {
    const core::Punkt &p1 = Eingabe(0), &p2 = Eingabe(1);
    gesehen = {p1, p2};
    const double da = p2.A - p1.A, db = p2.B - p1.B, d = std::sqrt(da * da + db * db);
    if (d == 0) return false;
    Ergebnis().A = p1.A + da / d * Param(0);
    Ergebnis().B = p1.B + db / d * Param(0);
    return true;
  }
};

// A dialog without a sketch and with two numbered result points.
class Zwei : public RechenDialog {
 public:
  Zwei(forms::Forms& f, core::Anwendung& a) : RechenDialog(f, a, "Zwei", "Zwei", "") {
    EingabePunkt("G1P1", "Gerade1", "Gerade 1");
    ErgebnisPunkt(0, "Lösung 1", {"", "1", false});
    ErgebnisPunkt(1, "Lösung 2", {"", "2", false});
  }

 protected:
  bool Rechnen() override {
    Ergebnis(0).A = Eingabe(0).A + 1;
    Ergebnis(0).B = Eingabe(0).B;
    Ergebnis(1).A = Eingabe(0).A - 1;
    Ergebnis(1).B = Eingabe(0).B;
    return true;
  }
};

struct Umgebung {
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  core::Zustand zustand;
  core::Anwendung anwendung{zustand, forms};

  Umgebung() {
    forms.setHost(&host);
    core::RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<core::MainForm*>(forms.load("Main")));
    points::PunktEingabeRegistrieren(forms, anwendung);
    forms.registerForm("Probe", [this](forms::Forms& f) { return std::make_unique<Probe>(f, anwendung); });
    forms.registerForm("Zwei", [this](forms::Forms& f) { return std::make_unique<Zwei>(f, anwendung); });
  }

  Probe& probe() { return static_cast<Probe&>(*forms.show("Probe")); }
  Zwei& zwei() { return static_cast<Zwei&>(*forms.show("Zwei")); }

  void punkt(int n, double a, double b, double c = 0) {
    core::Punkt& p = zustand.Punkte[static_cast<size_t>(n)];
    p.Nummer = static_cast<core::Integer>(n);
    p.A = a;
    p.B = b;
    p.C = c;
  }

  std::vector<forms::ShownMessage>& meldungen() { return dienste.messages.shown(); }
  // The one box shown since the last check, cleared for the next; the
  // title only where one is given.
  void meldung(const std::string& text, const std::string& titel = "",
               forms::Icon icon = forms::Icon::Exclamation) {
    ASSERT_EQ(meldungen().size(), 1u) << text;
    EXPECT_EQ(meldungen()[0].message.text, text);
    if (!titel.empty()) { EXPECT_EQ(meldungen()[0].message.title, titel); }
    EXPECT_EQ(meldungen()[0].message.icon, icon);
    meldungen().clear();
  }
};

}  // namespace kolm::calc::testing

// The auto-save dialog as the user fills it.
#include <gtest/gtest.h>

#include "core/app/anwendung.h"
#include "core/dialogs/auto_speichern.h"
#include "core/main/main_form.h"
#include "forms/scripted.h"

namespace kolm::core {
namespace {

struct Dialog {
  forms::ScriptedServices dienste;
  forms::Forms forms{dienste.services};
  Zustand zustand;
  Anwendung anwendung{zustand, forms};
  Dialog() {
    RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<MainForm*>(forms.load("Main")));
    forms.registerForm("AutoSpeichern", [this](forms::Forms& f) {
      return std::make_unique<AutoSpeichernForm>(f, anwendung);
    });
  }
  forms::Form& oeffnen() { return *forms.show("AutoSpeichern"); }
};

TEST(AutoSpeichern, OkWithTheBoxSetTurnsTheTimerOnWithTheMinutes) {
  Dialog d;
  forms::Form& f = d.oeffnen();
  EXPECT_EQ(f.control("CheckSpeichern").value(), 0);
  f.control("CheckSpeichern").click();
  f.control("Intervall").setText("10");
  f.control("OK").click();
  EXPECT_EQ(d.zustand.Intervall, 10);
  EXPECT_TRUE(d.anwendung.main()->control("TimerAuto").enabled());
  EXPECT_TRUE(d.anwendung.main()->control("MnuOptionenAutoSpeichern").checked());
  EXPECT_EQ(d.forms.FormGeladen("AutoSpeichern"), -1);
  forms::Form& again = d.oeffnen();
  EXPECT_EQ(again.control("CheckSpeichern").value(), 1);
  EXPECT_EQ(again.control("Intervall").text(), "10");
}

TEST(AutoSpeichern, OnlyTheLastFourCharactersCountAndZeroOrNoBoxTurnsItOff) {
  Dialog d;
  forms::Form& f = d.oeffnen();
  f.control("CheckSpeichern").setValue(1);
  f.control("Intervall").setText("123456");  // "3456"
  f.control("OK").click();
  EXPECT_EQ(d.zustand.Intervall, 3456);
  forms::Form& g = d.oeffnen();
  g.control("Intervall").setText("0");
  g.control("OK").click();
  EXPECT_EQ(d.zustand.Intervall, 0);
  EXPECT_FALSE(d.anwendung.main()->control("TimerAuto").enabled());
  forms::Form& h = d.oeffnen();
  h.control("CheckSpeichern").setValue(0);
  h.control("Intervall").setText("7");
  h.control("OK").click();
  EXPECT_EQ(d.zustand.Intervall, 0) << "without the box nothing is saved by itself";
}

TEST(AutoSpeichern, TheSpinButtonCountsAndCancelChangesNothing) {
  Dialog d;
  d.anwendung.IntervallSetzen(3);
  forms::Form& f = d.oeffnen();
  f.control("SpinIntervall").raise(forms::Event::SpinUp);
  f.control("SpinIntervall").raise(forms::Event::SpinUp);
  EXPECT_EQ(f.control("Intervall").text(), "5");
  f.control("Intervall").setText("0");
  f.control("SpinIntervall").raise(forms::Event::SpinDown);
  EXPECT_EQ(f.control("Intervall").text(), "0");
  f.control("Cancel").click();
  EXPECT_EQ(d.zustand.Intervall, 3);
}

}  // namespace
}  // namespace kolm::core

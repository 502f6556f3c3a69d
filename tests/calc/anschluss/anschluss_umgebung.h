#pragma once
// The calculation dialogs wired as the program wires them, for the tests of
// the angle and tie dialogs.
#include <string>

#include "calc/verdrahtung.h"
#include "calc/frame/umgebung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {

struct AnschlussUmgebung : Umgebung {
  AnschlussUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  // The dialog as the menu entry opens it.
  RechenDialog& oeffnen(const std::string& menue, const std::string& form) {
    anwendung.main()->control(menue).click();
    forms::Form* f = forms.find(form);
    EXPECT_NE(f, nullptr);
    return *static_cast<RechenDialog*>(f);
  }
  // Types a point into the Punkteingabe the next modal opening shows.
  void tippen(const std::string& a, const std::string& b) {
    host.onModal([a, b](forms::Form& f) {
      f.control("TextA").setText(a);
      f.control("TextB").setText(b);
      f.control("OK").click();
    });
  }
  static double zahl(const std::string& text) { return numbers::ZahlLesen(text); }
};

}  // namespace kolm::calc::testing

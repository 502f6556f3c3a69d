#pragma once
// Einrechnen and Kleinpunkte as the user opens them from the menu, with the
// helpers their tests share. Expected points come from data/werte.py.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "../frame/umgebung.h"
#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {

constexpr double kPi = 3.141592654;

struct EinrechnenUmgebung : Umgebung {
  EinrechnenUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  RechenDialog& oeffnen(const std::string& menue, const std::string& form) {
    anwendung.main()->control(menue).click();
    forms::Form* f = forms.find(form);
    EXPECT_NE(f, nullptr) << form;
    return static_cast<RechenDialog&>(*f);
  }
  // A rectangular point (a, b) as the polar table holds it: gon, system 0.
  void polarPunkt(int n, double a, double b) {
    double t = std::atan2(b, a);
    if (t < 0) t += 2 * kPi;
    punkt(n, std::hypot(a, b), t * 200 / kPi);
  }
  static double zahl(const forms::Control& c) { return numbers::ZahlLesen(c.captionText()); }
};

}  // namespace kolm::calc::testing

#pragma once
// The line-intersection dialogs as the user opens them from the menu, with
// the points their tests share: g1 through points 1 (10, 20) and 2 (50, 40),
// g2 through points 3 (20, 60) and 4 (60, 0). Worked values: data/werte.py.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "calc/frame/umgebung.h"
#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {

constexpr double kPi = 3.141592654;

struct GeradenUmgebung : Umgebung {
  GeradenUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  RechenDialog& oeffnen(const std::string& menue, const std::string& form) {
    anwendung.main()->control(menue).click();
    forms::Form* f = forms.find(form);
    EXPECT_NE(f, nullptr) << form;
    return static_cast<RechenDialog&>(*f);
  }
  // The four points of g1 and g2, rectangular or as a polar table holds them.
  void geraden(bool polar = false) {
    const double p[4][2] = {{10, 20}, {50, 40}, {20, 60}, {60, 0}};
    for (int i = 0; i < 4; ++i) {
      if (polar)
        polarPunkt(i + 1, p[i][0], p[i][1]);
      else
        punkt(i + 1, p[i][0], p[i][1]);
    }
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

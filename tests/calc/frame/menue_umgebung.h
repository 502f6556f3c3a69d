#pragma once
// The calculation dialogs wired as the program wires them and opened from
// their menu entries, with the helpers the tests of every family share.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "calc/frame/umgebung.h"
#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {

constexpr double kPi = 3.141592654;
constexpr double kGon = kPi / 200, kGrad = kPi / 180;

struct MenueUmgebung : Umgebung {
  MenueUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  // The dialog as its menu entry opens it.
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
  // Types a point into the Punkteingabe the next modal opening shows.
  void tippen(const std::string& a, const std::string& b) {
    host.onModal([a, b](forms::Form& f) {
      f.control("TextA").setText(a);
      f.control("TextB").setText(b);
      f.control("OK").click();
    });
  }
  static double zahl(const forms::Control& c) { return numbers::ZahlLesen(c.captionText()); }
  static double zahl(const std::string& text) { return numbers::ZahlLesen(text); }
  // Fills the fields as the user types them: {"PP1Nr", "1"}, {"Param(0)", "25"};
  // a combo box takes the index of its entry: {"ComboGerade1", "7"}.
  using Felder = std::vector<std::pair<std::string, std::string>>;
  static void eintragen(forms::Form& d, const Felder& felder) {
    for (const auto& [name, text] : felder) {
      const size_t klammer = name.find('(');
      forms::Control& c = klammer == std::string::npos
                              ? d.control(name)
                              : d.control(name.substr(0, klammer), std::stoi(name.substr(klammer + 1)));
      if (name.rfind("Combo", 0) == 0)
        c.setListIndex(std::stoi(text));
      else
        c.setText(text);
    }
  }
  // Erg(0), Erg(1), ... show these texts; "" is not checked.
  static void felder(const forms::Form& d, const std::vector<std::string>& erwartet) {
    for (size_t i = 0; i < erwartet.size(); ++i)
      if (!erwartet[i].empty()) {
        EXPECT_EQ(d.control("Erg", static_cast<int>(i)).captionText(), erwartet[i]) << "Erg(" << i << ")";
      }
  }
};

}  // namespace kolm::calc::testing

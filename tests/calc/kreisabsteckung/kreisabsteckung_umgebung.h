#pragma once
// The setting-out dialogs as the user opens them from the menu.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

struct KreisAbsteckUmgebung : MenueUmgebung {
  static constexpr double kGon = kPi / 200;
  static constexpr double kGrad = kPi / 180;
  // A rectangular point (a, b) as a polar table of system 0 holds it, the
  // angle in the unit of faktor, which also becomes the table's unit.
  void polarPunkt(int n, double a, double b, double faktor) {
    zustand.Polar = core::Wahr;
    zustand.WinkelFaktor = faktor;
    double t = std::atan2(b, a);
    if (t < 0) t += 2 * kPi;
    punkt(n, std::hypot(a, b), t / faktor);
  }
};

}  // namespace kolm::calc::testing

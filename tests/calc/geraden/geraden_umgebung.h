#pragma once
// The line-intersection dialogs as the user opens them from the menu, with
// the points their tests share: g1 through points 1 (10, 20) and 2 (50, 40),
// g2 through points 3 (20, 60) and 4 (60, 0). Worked values: data/werte.py.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {

struct GeradenUmgebung : MenueUmgebung {
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
};

}  // namespace kolm::calc::testing

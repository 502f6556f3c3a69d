#include "calc/kernel/klotoide.h"

#include <cmath>

namespace kolm::kernel {

int KlotoideReihe(double tau, int schrittGrenze, double& xSumme, double& ySumme) {
  if (!std::isfinite(tau)) return 0;
  double xs = 1, ys = 0, term = 1, k = 0, n = 1;
  int schritte = 0;
  do {
    ++schritte;
    // The old code left by its error handler when a product overflowed.
    k = k + 1;
    n = n + 2;
    const double produkt2 = (n - 2) * tau * term;
    if (!std::isfinite(produkt2)) return 0;
    const double term2 = produkt2 / k / n;
    ys = ys + term2;
    k = k + 1;
    n = n + 2;
    const double produkt = (n - 2) * tau * (-term2);
    if (!std::isfinite(produkt)) return 0;
    term = produkt / k / n;
    xs = xs + term;
    if (!std::isfinite(xs) || !std::isfinite(ys)) return 0;
  } while (!(std::fabs(term) <= 1E-7) && schritte < schrittGrenze);
  xSumme = xs;
  ySumme = ys;
  return schritte;
}

bool KlotoidePunkt(double A, double L, double& x, double& y) {
  if (A * A == 0) return false;
  const double tau = (L * L / (A * A)) / 2;
  double xs = 0, ys = 0;
  if (KlotoideReihe(tau, KlotoideSchrittGrenze, xs, ys) == 0) return false;
  const double px = xs * L, py = ys * L;
  if (!std::isfinite(px) || !std::isfinite(py)) return false;
  x = px;
  y = py;
  return true;
}

}  // namespace kolm::kernel

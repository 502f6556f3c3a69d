#include "calc/kernel/winkel.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "points/numbers/konstanten.h"

namespace kolm::kernel {

using numbers::Pi;

double Richtung(double y, double x) {
  if (y != 0) {
    if (x == 0) return y > 0 ? Pi / 2 : -Pi / 2;
    // An overflowing quotient failed the statement: the direction stayed 0.
    const double q = y / x;
    if (!std::isfinite(q)) return 0;
    if (x > 0) return std::atan(q);
    return y < 0 ? std::atan(q) - Pi : std::atan(q) + Pi;
  }
  return x < 0 ? Pi : 0;
}

double WinkelNormieren(double w) {
  const double t = w / 2 / Pi;
  const double bruch = t - std::floor(t);
  return bruch * 2 * Pi;
}

void PolarZuRechtwinklig(double& a, double& b, const Winkelsystem& s) {
  const double e = a;
  double p = b * s.winkelFaktor;
  if (s.falschdrehend) p = Pi / 2 - p;
  if (s.m31) {
    a = e * std::sin(p);
    b = e * std::cos(p);
  } else {
    a = e * std::cos(p);
    b = e * std::sin(p);
  }
}

void RechtwinkligZuPolar(double& a, double& b, const Winkelsystem& s) {
  // Squares that overflow fail the statement: e stays 0.
  double e = 0;
  klassisch::Zuweisen(e, std::sqrt(a * a + b * b));
  double p = s.m31 ? Richtung(a, b) : Richtung(b, a);
  if (s.falschdrehend) p = Pi / 2 - p;
  p = WinkelNormieren(p);
  a = e;
  b = p / s.winkelFaktor;
}

}  // namespace kolm::kernel

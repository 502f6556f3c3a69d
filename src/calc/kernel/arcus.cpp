#include "calc/kernel/arcus.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "points/numbers/konstanten.h"

namespace kolm::kernel {

using numbers::Pi;

double ArcusSinus(double x) {
  if (x == 1) return Pi / 2;
  if (x == -1) return -Pi / 2;
  // The root of a negative number failed and the function returned 0.
  if (!(std::fabs(x) < 1)) return 0;
  const double wurzel = std::sqrt(1 - x * x);
  if (wurzel == 0) return 0;
  return std::atan(x / wurzel);
}

// Deliberately not acos: negative for x < 0 and 0 for x = 0, because every
// caller is built around that.
double ArcusCosinus(double x) {
  if (x == 0 || !(std::fabs(x) <= 1)) return 0;
  // A quotient that overflows (x a tiny denormal) fails as the division by 0 does.
  const double q = std::sqrt(1 - x * x) / x;
  if (!std::isfinite(q)) return 0;
  return std::atan(q);
}

double WinkelAusSeiten(double a1, double b1, double a2, double b2, double a3, double b3) {
  const double s = klassisch::Abstand(a1, b1, a3, b3);
  const double p = klassisch::Abstand(a1, b1, a2, b2);
  const double q = klassisch::Abstand(a2, b2, a3, b3);
  double c = 0;
  if (p == 0 || q == 0) {
    c = 1;
  } else {
    // An underflowing 2*p*q fails the division; c keeps its 0.
    klassisch::Zuweisen(c, (p * p + q * q - s * s) / (2 * p * q));
  }
  if (c == 0) return Pi / 2;
  // ArcusCosinus is negative for c < 0, so Pi is added back.
  if (c < 0) return Pi + ArcusCosinus(c);
  return ArcusCosinus(c);
}

}  // namespace kolm::kernel

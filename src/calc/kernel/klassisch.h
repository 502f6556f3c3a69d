#pragma once
// How the kernel keeps the classic outcome of a failed statement: the old
// code ran with errors suppressed, so a division by zero, the root of a
// negative number or an overflow skipped the statement and left its target
// as it was. Checking the result for finiteness gives that outcome and keeps
// NaN and infinity out of every result.

#include <cmath>

namespace kolm::kernel::klassisch {

// ziel = wert, unless wert is not finite; true if stored.
inline bool Zuweisen(double& ziel, double wert) {
  if (!std::isfinite(wert)) return false;
  ziel = wert;
  return true;
}

// Distance of (a1, b1) and (a2, b2); 0 where the squares overflow, as the
// skipped statement leaves a fresh local at 0.
inline double Abstand(double a1, double b1, double a2, double b2) {
  double d = 0;
  Zuweisen(d, std::sqrt((a2 - a1) * (a2 - a1) + (b2 - b1) * (b2 - b1)));
  return d;
}

}  // namespace kolm::kernel::klassisch

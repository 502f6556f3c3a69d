#include "points/numbers/integer.h"

#include <cmath>

namespace kolm::numbers {

double RundeHalbGerade(double x) {
  if (!std::isfinite(x)) return x;
  const double unten = std::floor(x);
  const double rest = x - unten;  // exact: both share the binary scale of x
  if (rest < 0.5) return unten;
  if (rest > 0.5) return unten + 1;
  return std::fmod(unten, 2.0) == 0 ? unten : unten + 1;
}

std::optional<Integer> CInt(double x) {
  const double r = RundeHalbGerade(x);
  if (!(r >= -32768.0 && r <= 32767.0)) return std::nullopt;
  return static_cast<Integer>(r);
}

std::optional<Long> CLng(double x) {
  const double r = RundeHalbGerade(x);
  if (!(r >= -2147483648.0 && r <= 2147483647.0)) return std::nullopt;
  return static_cast<Long>(r);
}

double Int(double x) { return std::floor(x); }

double Fix(double x) { return std::trunc(x); }

}  // namespace kolm::numbers

#pragma once
// Decimal digits of a Double, the common ground of every number-to-text
// conversion: rounding happens on these digits, never by multiplying the
// binary value, so 2.675 rounds to 2.68 as it reads.
#include <string>

namespace kolm::numbers::detail {

// value = 0.ziffern × 10^punkt; ziffern has no leading or trailing zeros and
// is empty for zero.
struct Ziffern {
  std::string ziffern;
  int punkt = 0;
};

// |x| as at most 15 significant digits (the classic precision), taken from
// the shortest text that reads back as x and rounded half away from zero.
// x must be finite; the sign is dropped.
Ziffern Zerlege(double x);

// Rounds half away from zero to `stellen` digits after the decimal point
// (negative: to tens, hundreds ...). A value below the last place becomes 0.
void RundeNachkomma(Ziffern& z, int stellen);

// Rounds half away from zero to `stellen` >= 1 significant digits.
void RundeSignifikant(Ziffern& z, int stellen);

}  // namespace kolm::numbers::detail

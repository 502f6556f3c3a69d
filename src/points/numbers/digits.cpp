#include "points/numbers/digits.h"

#include <charconv>
#include <cmath>

namespace kolm::numbers::detail {
namespace {

void OhneEndnullen(Ziffern& z) {
  while (!z.ziffern.empty() && z.ziffern.back() == '0') z.ziffern.pop_back();
  if (z.ziffern.empty()) z.punkt = 0;
}

// Keeps the first n digits and rounds on digit n; n may be 0, when the
// result is either 0 or one unit one place above the first digit.
void RundeAufLaenge(Ziffern& z, std::size_t n) {
  if (n >= z.ziffern.size()) return;
  const bool auf = z.ziffern[n] >= '5';
  z.ziffern.resize(n);
  if (auf) {
    std::size_t i = z.ziffern.size();
    while (i > 0 && z.ziffern[i - 1] == '9') z.ziffern[--i] = '0';
    if (i == 0) {
      z.ziffern.insert(z.ziffern.begin(), '1');
      ++z.punkt;
    } else {
      ++z.ziffern[i - 1];
    }
  }
  OhneEndnullen(z);
}

}  // namespace

Ziffern Zerlege(double x) {
  Ziffern z;
  x = std::fabs(x);
  if (x == 0 || !std::isfinite(x)) return z;
  // Shortest round trip in scientific form: "d.ddde+XX".
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::scientific);
  const char* p = buf;
  int exp10 = 0;
  for (; p != res.ptr && *p != 'e'; ++p)
    if (*p != '.') z.ziffern.push_back(*p);
  if (p != res.ptr) std::from_chars(*(p + 1) == '+' ? p + 2 : p + 1, res.ptr, exp10);
  z.punkt = exp10 + 1;
  OhneEndnullen(z);
  RundeSignifikant(z, 15);
  return z;
}

void RundeNachkomma(Ziffern& z, int stellen) {
  const long n = static_cast<long>(z.punkt) + stellen;
  if (z.ziffern.empty()) return;
  if (n < 0) {
    z = Ziffern{};
    return;
  }
  RundeAufLaenge(z, static_cast<std::size_t>(n));
}

void RundeSignifikant(Ziffern& z, int stellen) {
  RundeAufLaenge(z, static_cast<std::size_t>(stellen < 1 ? 1 : stellen));
}

}  // namespace kolm::numbers::detail

#include "core/tables/zahlen.h"

#include <cmath>

#include "points/numbers/numbers.h"

namespace kolm::core::tabellen_zahlen {

std::string SingleAlsText(float x, std::string_view dezimal) {
  if (!std::isfinite(x)) return numbers::ZahlAlsText(x, dezimal);
  // Seven significant digits first, then the general number form.
  const double sieben = numbers::Val(numbers::Format(x, "0.000000E+00"));
  return numbers::ZahlAlsText(sieben, dezimal);
}

}  // namespace kolm::core::tabellen_zahlen

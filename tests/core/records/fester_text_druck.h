#pragma once
// Fixed texts printed readably in test failures, NULs shown as \0.
#include <ostream>

#include "core/records/records.h"

namespace kolm::core {

template <std::size_t N>
void PrintTo(const FesterText<N>& t, std::ostream* os) {
  *os << '"';
  for (char c : t.Text()) {
    if (c == '\0') *os << "\\0";
    else *os << c;
  }
  *os << '"';
}

}  // namespace kolm::core

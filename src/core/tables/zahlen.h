#pragma once
// The one number text the table files need that the number library does
// not serve itself: the default text of a Single.
#include <string>
#include <string_view>

namespace kolm::core::tabellen_zahlen {

// The default text of a Single: at most 7 significant digits, so the
// binary tail of a float never shows ("8.1", not "8.10000038146973").
std::string SingleAlsText(float x, std::string_view dezimal);

}  // namespace kolm::core::tabellen_zahlen

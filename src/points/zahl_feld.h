#pragma once
// Reading the number of a field the user typed into. The plain number rule
// gives 0 for text that is no number; a number beyond the range of a Double
// ("1e400") is an overflow, which the user is told about.
#include <optional>
#include <string>
#include <string_view>

#include "forms/services.h"

namespace kolm::points {

// The value of the field's text, or nothing after showing
// "Error 6 Overflow: Zahlenbereich überschritten!" when it overflows.
std::optional<double> FeldZahl(forms::MessageService* meldungen, std::string_view text);

}  // namespace kolm::points

#pragma once
// Date and time to text by the classic date patterns, such as
// "dd.mm.yyyy hh:nn:ss" for the time of a volume computation.
#include <string>
#include <string_view>

namespace kolm::numbers {

// A local calendar date and time of day; fields as written, not checked.
struct Zeitpunkt {
  int jahr = 1899, monat = 12, tag = 30;
  int stunde = 0, minute = 0, sekunde = 0;
};

// The local time now, to the second.
Zeitpunkt Jetzt();

// Formats by a date pattern: "d"/"dd" day, "m"/"mm" month (minute right
// after an hour), "yy"/"yyyy" year, "h"/"hh" hour, "n"/"nn" minute, "s"/"ss"
// second; the one-letter forms without leading zero. "\c" and "..." are
// literal, any other character stands as it is. Letters are matched without
// regard to case.
std::string DatumText(const Zeitpunkt& t, std::string_view muster);

}  // namespace kolm::numbers

#pragma once
// Reading numbers from text. The plain parse is the classic Val; every
// number typed or stored as text goes through Val or ZahlLesen.
#include <optional>
#include <string_view>

namespace kolm::numbers {

// Plain parse, as the classic Val: blanks, tabs and line feeds are dropped
// wherever they stand ("12 34" is 1234); then an optional sign, digits with
// at most one ".", an optional exponent "E", "e", "D" or "d" with sign and
// digits. Reading stops without error at the first character that does not
// fit ("1,5" is 1, "1.2.3" is 1.2). "&H1F" and "&O17" read hexadecimal and
// octal; up to four hex digits are a 16-bit Integer, so "&HFFFF" is -1, up to
// eight a 32-bit Long (a trailing "&" makes it a Long at once). No digits
// give 0. Never NaN or infinity, never -0: a value beyond the Double range
// ("1E+400", more than eight hex digits) gives 0, one too small for it 0.
double Val(std::string_view text);

// As Val, but a value beyond the Double range gives nothing, where the
// classic Val stopped with "Error 6 Overflow".
std::optional<double> ValGeprueft(std::string_view text);

// The comma-tolerant reader of every input field: each "," becomes "." and
// the result is read by Val. "12,5" is 12.5, "1,234.5" is 1.234, "-,5" -0.5.
double ZahlLesen(std::string_view text);
std::optional<double> ZahlLesenGeprueft(std::string_view text);

// True for the empty text, for blanks only and for NUL characters only; a
// mix of both, or a tab, is not empty.
bool IstLeer(std::string_view text);

}  // namespace kolm::numbers

#pragma once
// The classic whole-number conversions: 16-bit Integer and 32-bit Long with
// rounding half to even and overflow detection, Int and Fix.
#include <cstdint>
#include <optional>
#include <string_view>

namespace kolm::numbers {

using Integer = std::int16_t;
using Long = std::int32_t;

// What a number field reports when a value does not fit.
inline constexpr std::string_view UeberlaufMeldung = "Error 6 Overflow: Zahlenbereich überschritten!";

// Rounds to a whole number, halves to the even neighbour: 2.5 -> 2,
// 3.5 -> 4, -2.5 -> -2, 0.5 -> 0. NaN and infinities come back unchanged.
double RundeHalbGerade(double x);

// Conversion to Integer (-32768 .. 32767) after RundeHalbGerade; nothing on
// overflow, NaN or infinity. 32767.5 overflows (it rounds to 32768), while
// -32768.5 gives -32768.
std::optional<Integer> CInt(double x);

// The same for Long (-2147483648 .. 2147483647).
std::optional<Long> CLng(double x);

// Largest whole number not above x (Int(-2.5) is -3). NaN and infinities
// come back unchanged.
double Int(double x);

// x with its fraction cut off, toward zero (Fix(-2.5) is -2).
double Fix(double x);

}  // namespace kolm::numbers

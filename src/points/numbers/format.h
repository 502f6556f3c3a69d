#pragma once
// Numbers to text: the picture patterns of the settings and dialogs, the
// formatters of the fields, and the general number form.
#include <string>
#include <string_view>

namespace kolm::numbers {

// The characters a pattern's "." and "," stand for in the output.
struct Zahlzeichen {
  std::string dezimal = ".";
  std::string gruppe = ",";
};

// Formats x by a picture pattern, as the classic Format:
// - "0" a digit always shown, "#" a digit shown when significant; the
//   integer part shows all its digits, however few "#" there are; "." the
//   decimal point, shown whenever the pattern has one ("#.##" gives "5." for
//   5 and "." for 0); "%" multiplies by 100.
// - "," between digit placeholders groups thousands; "," after the last
//   digit of the integer part divides by 1000 instead.
// - "E-", "E+", "e-", "e+" followed by digit placeholders: exponent form,
//   the sign shown for negative exponents only ("-") or always ("+"), at
//   least one exponent digit.
// - Up to three sections split by ";": positive, negative, zero. An empty
//   section falls back to the first; in the first a negative number gets a
//   leading "-", in its own section it does not. Exactly zero (also -0) takes
//   the zero section; a negative number that rounds to zero keeps its sign
//   ("-0.00").
// - "\c" and "..." are literal text; any other character stands as it is.
// Rounding is half away from zero on the decimal digits (at most 15
// significant) of x: 2.675 gives 2.68 with "0.00". An empty pattern gives
// the general number form. NaN and infinities give "1.#INF", "-1.#INF",
// "1.#QNAN", "-1.#IND" as the classic runtime prints them.
std::string Format(double x, std::string_view muster, const Zahlzeichen& zeichen = {});

// The field formatter: Format, then every "," becomes ".", so the decimal
// point is "." whatever the locale ("#,##0.00" shows 1234.5 as "1.234.50").
std::string ZahlText(double x, std::string_view muster);

// As ZahlText, but exactly 0 (and -0) gives the empty text.
std::string ZahlOderLeer(double x, std::string_view muster);

// The general number form, the classic default conversion of a Double to
// text: up to 15 significant digits, no trailing zeros, "0.5" for one half,
// exponent form with at least two exponent digits below 1E-4 and from 1E+15
// on ("1E-05", "1.5E+15"); 0 and -0 give "0". The decimal character is the
// one given.
std::string ZahlAlsText(double x, std::string_view dezimal);

}  // namespace kolm::numbers

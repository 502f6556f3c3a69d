#pragma once
// The system's decimal character, where the rules depend on the locale: the
// default conversion of a Double to text and copying to the clipboard.
#include <string>
#include <string_view>

namespace kolm::numbers {

// The decimal character of the user: the environment variable
// KOLM_DEZIMALZEICHEN when set and not empty (its first character), else the
// decimal point of the locale's LC_NUMERIC, "." when that says nothing. The
// process locale is left as it was.
std::string SystemDezimalzeichen();

// The default conversion of a Double to text (the general number form of
// ZahlAlsText) with the system's decimal character.
std::string ZahlAlsSystemText(double x);

// Prepares a text for the clipboard: each "." becomes the decimal character
// given, each CR and each LF the pair CR LF (so CR LF becomes two pairs);
// all other characters stay.
std::string TextMitSystemKomma(std::string_view text, std::string_view dezimal);
std::string TextMitSystemKomma(std::string_view text);

}  // namespace kolm::numbers

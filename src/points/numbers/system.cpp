#include "points/numbers/system.h"

#include <clocale>
#include <cstdlib>

#include "points/numbers/format.h"

namespace kolm::numbers {
namespace {

std::string ErstesZeichen(std::string_view t) {
  const auto c = static_cast<unsigned char>(t[0]);
  const std::size_t n = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
  return std::string(t.substr(0, n));
}

}  // namespace

std::string SystemDezimalzeichen() {
  if (const char* env = std::getenv("KOLM_DEZIMALZEICHEN"); env && *env) return ErstesZeichen(env);
  // Ask the user's locale and put the process locale back, so that nothing
  // else (printf, strtod) changes behind the caller's back.
  const char* jetzt = std::setlocale(LC_NUMERIC, nullptr);
  const std::string vorher = jetzt ? jetzt : "C";
  std::string zeichen = ".";
  if (std::setlocale(LC_NUMERIC, "")) {
    const std::lconv* lc = std::localeconv();
    if (lc && lc->decimal_point && *lc->decimal_point) zeichen = ErstesZeichen(lc->decimal_point);
  }
  std::setlocale(LC_NUMERIC, vorher.c_str());
  return zeichen;
}

std::string ZahlAlsSystemText(double x) { return ZahlAlsText(x, SystemDezimalzeichen()); }

std::string TextMitSystemKomma(std::string_view text, std::string_view dezimal) {
  std::string aus;
  aus.reserve(text.size());
  for (const char c : text) {
    if (c == '.') aus += dezimal;
    else if (c == '\r' || c == '\n') aus += "\r\n";
    else aus += c;
  }
  return aus;
}

std::string TextMitSystemKomma(std::string_view text) {
  // The character 1.2 shows between its digits in the user's locale.
  return TextMitSystemKomma(text, SystemDezimalzeichen());
}

}  // namespace kolm::numbers

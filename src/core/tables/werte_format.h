#pragma once
// The one-value-a-line text format of ".ber" and of the catalogue files:
// strings in double quotes, numbers in the general number form with ".",
// each value ended by CR LF. Works on UTF-8 text; the code page is the
// caller's business at the file boundary.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kolm::core {

// Reads values one after another. A value ends at a comma or a line end; a
// value in double quotes runs to the closing quote, and what follows it up
// to the delimiter is skipped. Every call moves on, so no content can make
// a loop over it hang.
class WerteLeser {
 public:
  explicit WerteLeser(std::string_view text) : t_(text) {}

  // Nothing but blanks and tabs left.
  bool AmEnde();
  // The next value without its quotes; nothing at the end.
  std::optional<std::string_view> Naechster();
  // The rest of the current line as it stands, its line end consumed;
  // nothing when no character is left at all.
  std::optional<std::string_view> Zeile();

 private:
  static bool Trenner(char c) { return c == ',' || c == '\r' || c == '\n'; }
  void LeerraumUeberspringen();
  void TrennerUeberspringen();
  std::string_view t_;
  std::size_t p_ = 0;
};

// Appends a string value: the text in double quotes, then CR LF.
void TextWertAnhaengen(std::string& ziel, std::string_view text);
// Appends a number in the general number form with "." and CR LF.
void ZahlWertAnhaengen(std::string& ziel, double x);

}  // namespace kolm::core

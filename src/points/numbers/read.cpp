#include "points/numbers/read.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace kolm::numbers {
namespace {

// Walks the text as Val sees it: blanks, tabs and line feeds do not exist.
class Leser {
 public:
  explicit Leser(std::string_view t) : text_(t) {}
  char Zeichen() {
    while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\t' || text_[pos_] == '\n')) ++pos_;
    return pos_ < text_.size() ? text_[pos_] : '\0';
  }
  bool Ende() { Zeichen(); return pos_ >= text_.size(); }
  void Weiter() { ++pos_; }

 private:
  std::string_view text_;
  std::size_t pos_ = 0;
};

int Ziffernwert(char c, int basis) {
  int w = -1;
  if (c >= '0' && c <= '9') w = c - '0';
  else if (c >= 'a' && c <= 'f') w = c - 'a' + 10;
  else if (c >= 'A' && c <= 'F') w = c - 'A' + 10;
  return w < basis ? w : -1;
}

// "&H..." or "&O..." after the "&": the classic literal rules, a value that
// fits 16 bits read as a signed Integer, one that fits 32 bits as a Long.
std::optional<double> LiesRadix(Leser& l) {
  const char art = l.Zeichen();
  int basis;
  if (art == 'H' || art == 'h') basis = 16;
  else if (art == 'O' || art == 'o') basis = 8;
  else return 0.0;
  l.Weiter();
  std::uint64_t wert = 0;
  bool zuGross = false;
  for (int w; !l.Ende() && (w = Ziffernwert(l.Zeichen(), basis)) >= 0; l.Weiter()) {
    wert = wert * static_cast<unsigned>(basis) + static_cast<unsigned>(w);
    if (wert > 0xFFFFFFFFull) zuGross = true, wert = 0xFFFFFFFFull + 1;
  }
  if (zuGross) return std::nullopt;
  bool alsLong = false;
  if (!l.Ende() && l.Zeichen() == '&') alsLong = true;
  if (wert <= 0xFFFF && !alsLong) return static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(wert)));
  return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(wert)));
}

std::optional<double> LiesVal(std::string_view text) {
  Leser l(text);
  if (l.Ende()) return 0.0;
  if (l.Zeichen() == '&') {
    l.Weiter();
    return LiesRadix(l);
  }
  std::string zahl;  // what from_chars reads: digits, ".", "e", exponent
  if (l.Zeichen() == '-' || l.Zeichen() == '+') {
    if (l.Zeichen() == '-') zahl.push_back('-');
    l.Weiter();
  }
  bool punkt = false, nichtNull = false;
  // Order of magnitude of the first non-zero digit: integer digits from it
  // on, or minus the zeros between the point and it.
  long long groesse = 0;
  for (; !l.Ende(); l.Weiter()) {
    const char c = l.Zeichen();
    if (c >= '0' && c <= '9') {
      if (c != '0') nichtNull = true;
      if (!punkt && nichtNull) ++groesse;
      if (punkt && !nichtNull) --groesse;
      zahl.push_back(c);
    } else if (c == '.' && !punkt) {
      punkt = true;
      zahl.push_back(c);
    } else {
      break;
    }
  }
  if (!nichtNull) return 0.0;  // no digits, or zeros only
  if (!zahl.empty() && zahl.back() == '.') zahl.pop_back();
  long long exponent = 0;
  if (!l.Ende()) {
    const char c = l.Zeichen();
    if (c == 'E' || c == 'e' || c == 'D' || c == 'd') {
      l.Weiter();
      bool minus = false;
      if (!l.Ende() && (l.Zeichen() == '+' || l.Zeichen() == '-')) {
        minus = l.Zeichen() == '-';
        l.Weiter();
      }
      for (; !l.Ende() && l.Zeichen() >= '0' && l.Zeichen() <= '9'; l.Weiter())
        if (exponent < 1000000) exponent = exponent * 10 + (l.Zeichen() - '0');
      if (minus) exponent = -exponent;
    }
  }
  zahl += 'e' + std::to_string(exponent);
  double wert = 0;
  const auto res = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert);
  if (res.ec == std::errc::result_out_of_range) {
    // Out of range either way: the magnitude of the first digit tells which.
    if (groesse + exponent > 0) return std::nullopt;
    return 0.0;
  }
  if (res.ec != std::errc()) return 0.0;
  return wert == 0 ? 0.0 : wert;
}

std::string KommaZuPunkt(std::string_view text) {
  std::string t(text);
  for (char& c : t)
    if (c == ',') c = '.';
  return t;
}

}  // namespace

double Val(std::string_view text) { return LiesVal(text).value_or(0.0); }

std::optional<double> ValGeprueft(std::string_view text) { return LiesVal(text); }

double ZahlLesen(std::string_view text) { return Val(KommaZuPunkt(text)); }

std::optional<double> ZahlLesenGeprueft(std::string_view text) { return LiesVal(KommaZuPunkt(text)); }

bool IstLeer(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos ||
         text.find_first_not_of('\0') == std::string_view::npos;
}

}  // namespace kolm::numbers

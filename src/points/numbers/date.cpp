#include "points/numbers/date.h"

#include <cctype>
#include <ctime>

namespace kolm::numbers {
namespace {

std::string Zweistellig(int w) {
  std::string t = std::to_string(w < 0 ? -w : w);
  if (t.size() < 2) t.insert(0, 1, '0');
  return t;
}

}  // namespace

Zeitpunkt Jetzt() {
  const std::time_t jetzt = std::time(nullptr);
  std::tm tm{};
  localtime_r(&jetzt, &tm);
  return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

std::string DatumText(const Zeitpunkt& t, std::string_view muster) {
  std::string aus;
  bool nachStunde = false;  // an "m" right after an hour means minutes
  for (std::size_t i = 0; i < muster.size();) {
    const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(muster[i])));
    std::size_t n = 1;
    while (i + n < muster.size() && std::tolower(static_cast<unsigned char>(muster[i + n])) == c) ++n;
    auto zahl = [&](int w) { aus += n >= 2 ? Zweistellig(w) : std::to_string(w); };
    switch (c) {
      case 'd': zahl(t.tag); nachStunde = false; break;
      case 'm': zahl(nachStunde ? t.minute : t.monat); nachStunde = false; break;
      case 'n': zahl(t.minute); nachStunde = false; break;
      case 's': zahl(t.sekunde); nachStunde = false; break;
      case 'h': zahl(t.stunde); nachStunde = true; break;
      case 'y':
        if (n >= 3) aus += std::to_string(t.jahr);
        else aus += Zweistellig(t.jahr % 100);
        nachStunde = false;
        break;
      case '\\':
        n = 1;
        if (i + 1 < muster.size()) aus += muster[++i];
        break;
      case '"': {
        const std::size_t ende = muster.find('"', i + 1);
        const std::size_t bis = ende == std::string_view::npos ? muster.size() : ende;
        aus += muster.substr(i + 1, bis - i - 1);
        n = bis + 1 - i;
        break;
      }
      default:
        aus.append(muster.substr(i, n));
        break;
    }
    i += n;
  }
  return aus;
}

}  // namespace kolm::numbers

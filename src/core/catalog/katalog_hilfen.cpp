#include "core/catalog/katalog_hilfen.h"

#include <algorithm>
#include <filesystem>

#include "forms/utf8.h"

namespace kolm::core::katalog_hilfen {

std::u32string Zeichen(std::string_view utf8) {
  std::u32string z;
  std::size_t i = 0;
  while (i < utf8.size()) z += forms::utf8::Next(utf8, i);
  return z;
}

std::string Utf8(std::u32string_view zeichen) {
  std::string s;
  for (char32_t c : zeichen) s += forms::utf8::Encode(c);
  return s;
}

char32_t Klein(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + 32;
  // "À" .. "Þ" without "×"
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
  switch (c) {
    case 0x160: return 0x161;  // Š
    case 0x152: return 0x153;  // Œ
    case 0x17D: return 0x17E;  // Ž
    case 0x178: return 0xFF;   // Ÿ
    default: return c;
  }
}

int VergleichOhneGrossKlein(std::u32string_view a, std::u32string_view b) {
  const std::size_t n = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < n; ++i) {
    const char32_t x = Klein(a[i]), y = Klein(b[i]);
    if (x != y) return x < y ? -1 : 1;
  }
  if (a.size() == b.size()) return 0;
  return a.size() < b.size() ? -1 : 1;
}

bool IstZiffer(char32_t c) { return c >= U'0' && c <= U'9'; }
bool IstAsciiBuchstabe(char32_t c) { return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z'); }

std::string Ordner(std::string_view ordner) {
  constexpr char kTrenner = std::filesystem::path::preferred_separator;
  std::string s(ordner);
  std::replace(s.begin(), s.end(), '\\', kTrenner);
  if (!s.empty() && s.back() != kTrenner && s.back() != '/') s += kTrenner;
  return s;
}

}  // namespace kolm::core::katalog_hilfen

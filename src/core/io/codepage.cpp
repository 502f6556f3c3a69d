#include "core/io/codepage.h"

#include "forms/utf8.h"

namespace kolm::core::io {

namespace {
// Code points of bytes 0x80 .. 0x9F; 0 where the code page has none.
constexpr char32_t kHigh[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
}  // namespace

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (unsigned char b : bytes) {
    if (b < 0x80) {
      out += static_cast<char>(b);
    } else if (b < 0xA0) {
      const char32_t cp = kHigh[b - 0x80];
      out += forms::utf8::Encode(cp ? cp : b);
    } else {
      out += forms::utf8::Encode(b);
    }
  }
  return out;
}

std::string Utf8ToCp1252(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  size_t i = 0;
  while (i < text.size()) {
    const char32_t cp = forms::utf8::Next(text, i);
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
      out += static_cast<char>(cp);
      continue;
    }
    char mapped = '?';
    for (int k = 0; k < 32; ++k)
      if (kHigh[k] == cp || (kHigh[k] == 0 && cp == static_cast<char32_t>(0x80 + k))) {
        mapped = static_cast<char>(0x80 + k);
        break;
      }
    out += mapped;
  }
  return out;
}

}  // namespace kolm::core::io

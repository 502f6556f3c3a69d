#include "forms/utf8.h"

namespace kolm::forms::utf8 {

int Length(std::string_view text) {
  int n = 0;
  for (unsigned char c : text) n += (c & 0xC0) != 0x80;
  return n;
}

size_t ByteOffset(std::string_view text, int chars) {
  if (chars <= 0) return 0;
  int n = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
      if (n == chars) return i;
      ++n;
    }
  }
  return text.size();
}

std::string Encode(char32_t c) {
  std::string out;
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
  return out;
}

char32_t Next(std::string_view text, size_t& i) {
  unsigned char c = static_cast<unsigned char>(text[i]);
  int extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
  if (c >= 0x80 && (extra == 0 || i + extra >= text.size())) {
    ++i;
    return c;
  }
  char32_t cp = extra == 0 ? c : c & (0x3F >> extra);
  for (int k = 1; k <= extra; ++k) {
    unsigned char d = static_cast<unsigned char>(text[i + k]);
    if ((d & 0xC0) != 0x80) {
      ++i;
      return c;
    }
    cp = (cp << 6) | (d & 0x3F);
  }
  i += extra + 1;
  return cp;
}

}  // namespace kolm::forms::utf8

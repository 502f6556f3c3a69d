#include "forms/keys.h"

namespace kolm::forms::keys {

int KeyCodeOfChar(char32_t c) {
  if (c >= 'a' && c <= 'z') return static_cast<int>(c - 'a' + 'A');
  if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return static_cast<int>(c);
  switch (c) {
    case ' ': return Space;
    case '\r': case '\n': return Return;
    case '\t': return Tab;
    case '\b': return Back;
    case 27: return Escape;
    case '+': return 187;
    case '-': return 189;
    case ',': return 188;
    case '.': return 190;
    case U'ä': case U'Ä': return 222;  // German layout
    case U'ö': case U'Ö': return 192;
    case U'ü': case U'Ü': return 186;
    case U'ß': return 219;
    default: return 0;
  }
}

}  // namespace kolm::forms::keys

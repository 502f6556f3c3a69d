#include "forms/names.h"

namespace kolm::forms {

std::string NameKey(std::string_view name) {
  std::string key;
  key.reserve(name.size() + 4);
  for (size_t i = 0; i < name.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(name[i]);
    if (c == 0xC3 && i + 1 < name.size()) {
      unsigned char d = static_cast<unsigned char>(name[i + 1]);
      const char* folded = nullptr;
      switch (d) {
        case 0x84: case 0xA4: folded = "ae"; break;  // Ä ä
        case 0x96: case 0xB6: folded = "oe"; break;  // Ö ö
        case 0x9C: case 0xBC: folded = "ue"; break;  // Ü ü
        case 0x9F: folded = "ss"; break;             // ß
      }
      if (folded) {
        key += folded;
        ++i;
        continue;
      }
    }
    key += (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : static_cast<char>(c);
  }
  return key;
}

}  // namespace kolm::forms

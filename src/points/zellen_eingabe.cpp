#include "points/zellen_eingabe.h"

#include <cmath>

#include "points/numbers/numbers.h"

namespace kolm::points {

bool ZellenTaste(std::string& text, int keyAscii) {
  if (keyAscii >= '0' && keyAscii <= '9') {
    text += static_cast<char>(keyAscii);
    return true;
  }
  if (keyAscii == ',' || keyAscii == '.') {
    if (text.find_first_of(",.") != std::string::npos) return false;
    text += static_cast<char>(keyAscii);
    return true;
  }
  if (keyAscii == '-') {
    if (!text.empty() && text[0] == '-') text.erase(0, 1);
    else text.insert(0, 1, '-');
    return true;
  }
  if (keyAscii == 8) {
    if (text.empty()) return false;
    text.pop_back();
    return true;
  }
  return false;
}

std::string ZellenBearbeitungsText(double wert) {
  const bool ganz = std::floor(wert) == wert;
  return numbers::ZahlText(wert, ganz ? "#######" : "######0.######");
}

}  // namespace kolm::points

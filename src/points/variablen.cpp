#include "points/variablen.h"

#include "core/settings/einstellungen.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

int VariablenIndexVonTaste(int keyAscii) {
  if (keyAscii >= 'A' && keyAscii <= 'Z') return keyAscii - 'A';
  if (keyAscii >= 'a' && keyAscii <= 'z') return keyAscii - 'a';
  return -1;
}

VariablenWirkung VariablenTaste(core::Zustand& z, int& keyAscii, std::string& text) {
  const int index = VariablenIndexVonTaste(keyAscii);
  if (index < 0) return VariablenWirkung::Keine;
  const bool gross = keyAscii <= 'Z';
  keyAscii = 0;
  if (gross) {
    z.Variablen[index] = numbers::ZahlLesen(text);
    return VariablenWirkung::Gespeichert;
  }
  text = numbers::ZahlText(z.Variablen[index], z.Einstellungen.StandardFormat);
  return VariablenWirkung::Eingesetzt;
}

}  // namespace kolm::points

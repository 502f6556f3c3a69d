#include "calc/frame/punkt_holen.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "forms/utf8.h"
#include "points/eingabe/punkt_speichern.h"
#include "points/numbers/numbers.h"

namespace kolm::calc {

std::optional<int> NummerAusText(std::string_view text) {
  if (numbers::IstLeer(text)) return std::nullopt;
  const int laenge = forms::utf8::Length(text);
  const std::string_view letzte = text.substr(forms::utf8::ByteOffset(text, std::max(0, laenge - 4)));
  const double wert = numbers::RundeHalbGerade(numbers::ZahlLesen(letzte));
  // Four characters cannot exceed 9999 unless written with an exponent.
  if (!(std::fabs(wert) < 1e9)) return wert < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
  return static_cast<int>(wert);
}

bool PunktHolen(const core::Zustand& z, std::string_view text, core::Punkt& record) {
  return points::PunktAusListe(z, text, record);
}

}  // namespace kolm::calc

#include "points/zahl_feld.h"

#include "points/numbers/numbers.h"

namespace kolm::points {

std::optional<double> FeldZahl(forms::MessageService* meldungen, std::string_view text) {
  std::optional<double> wert = numbers::ZahlLesenGeprueft(text);
  if (!wert && meldungen)
    meldungen->show({std::string(numbers::UeberlaufMeldung), forms::ProgrammName, forms::Buttons::OK, forms::Icon::Critical});
  return wert;
}

}  // namespace kolm::points

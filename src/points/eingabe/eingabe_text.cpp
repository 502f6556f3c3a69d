#include "points/eingabe/eingabe_text.h"

#include <vector>

#include "core/app/anwendung.h"
#include "points/koordinaten.h"
#include "points/numbers/numbers.h"

namespace kolm::points {

namespace {

std::vector<std::string_view> Zeilen(std::string_view text) {
  std::vector<std::string_view> zeilen;
  size_t anfang = 0;
  for (size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && text[i] != '\r' && text[i] != '\n') continue;
    zeilen.push_back(text.substr(anfang, i - anfang));
    // CR LF is one break.
    if (i + 1 < text.size() && text[i] == '\r' && text[i + 1] == '\n') ++i;
    anfang = i + 1;
  }
  return zeilen;
}

std::string_view Beschriftung(std::string_view zeile) {
  const size_t gleich = zeile.find('=');
  if (gleich == std::string_view::npos) return {};
  std::string_view name = zeile.substr(0, gleich);
  while (!name.empty() && name.front() == ' ') name.remove_prefix(1);
  while (!name.empty() && name.back() == ' ') name.remove_suffix(1);
  return name;
}

double Wert(std::string_view zeile) {
  const size_t gleich = zeile.find('=');
  return numbers::ZahlLesen(gleich == std::string_view::npos ? zeile : zeile.substr(gleich + 1));
}

}  // namespace

std::string OhneZugriffstaste(std::string_view beschriftung) {
  std::string text;
  for (size_t i = 0; i < beschriftung.size(); ++i) {
    if (beschriftung[i] == '&') {
      if (i + 1 < beschriftung.size() && beschriftung[i + 1] == '&') text += '&', ++i;
      continue;
    }
    text += beschriftung[i];
  }
  return text;
}

std::string EingabeZeile(std::string_view beschriftung, std::string_view text) {
  return OhneZugriffstaste(beschriftung) + " " + std::string(text);
}

bool PunktAusEingabe(core::Anwendung& anwendung, std::string_view text, core::Punkt& record) {
  if (text.empty()) return false;
  const core::Zustand& z = anwendung.zustand();
  const std::vector<std::string_view> zeilen = Zeilen(text);
  double werte[3] = {0, 0, 0};
  for (size_t i = 0; i < zeilen.size() && i < 3; ++i) werte[i] = Wert(zeilen[i]);

  const std::string_view erste = Beschriftung(zeilen.front());
  const bool polarGetippt = erste == "e" || erste == "Phi";
  const bool rechtwinkligGetippt = erste == "X" || erste == "Y";
  if (polarGetippt && !z.Polar) PolarZuRechtwinklig(z, werte[0], werte[1]);
  if (rechtwinkligGetippt && z.Polar) RechtwinkligZuPolar(z, werte[0], werte[1]);
  record.A = werte[0];
  record.B = werte[1];
  record.C = werte[2];
  return true;
}

}  // namespace kolm::points

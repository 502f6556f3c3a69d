#include "core/tables/werte_format.h"

#include <algorithm>

#include "points/numbers/numbers.h"

namespace kolm::core {

bool WerteLeser::AmEnde() {
  LeerraumUeberspringen();
  return p_ >= t_.size();
}

std::optional<std::string_view> WerteLeser::Naechster() {
  if (AmEnde()) return std::nullopt;
  std::string_view wert;
  if (t_[p_] == '"') {
    const std::size_t anfang = p_ + 1;
    std::size_t ende = t_.find('"', anfang);
    if (ende == std::string_view::npos) ende = t_.size();
    wert = t_.substr(anfang, ende - anfang);
    p_ = std::min(ende + 1, t_.size());
    while (p_ < t_.size() && !Trenner(t_[p_])) ++p_;
  } else {
    const std::size_t anfang = p_;
    while (p_ < t_.size() && !Trenner(t_[p_])) ++p_;
    wert = t_.substr(anfang, p_ - anfang);
    while (!wert.empty() && (wert.back() == ' ' || wert.back() == '\t')) wert.remove_suffix(1);
  }
  TrennerUeberspringen();
  return wert;
}

std::optional<std::string_view> WerteLeser::Zeile() {
  if (p_ >= t_.size()) return std::nullopt;
  const std::size_t anfang = p_;
  while (p_ < t_.size() && t_[p_] != '\r' && t_[p_] != '\n') ++p_;
  const std::string_view zeile = t_.substr(anfang, p_ - anfang);
  if (p_ < t_.size() && t_[p_] == '\r') ++p_;
  if (p_ < t_.size() && t_[p_] == '\n') ++p_;
  return zeile;
}

void WerteLeser::LeerraumUeberspringen() {
  while (p_ < t_.size() && (t_[p_] == ' ' || t_[p_] == '\t')) ++p_;
}

void WerteLeser::TrennerUeberspringen() {
  if (p_ >= t_.size()) return;
  if (t_[p_] == ',' || t_[p_] == '\n') {
    ++p_;
  } else if (t_[p_] == '\r') {
    ++p_;
    if (p_ < t_.size() && t_[p_] == '\n') ++p_;
  }
}

void TextWertAnhaengen(std::string& ziel, std::string_view text) {
  ziel += '"';
  ziel += text;
  ziel += "\"\r\n";
}

void ZahlWertAnhaengen(std::string& ziel, double x) {
  ziel += numbers::ZahlAlsText(x, ".");
  ziel += "\r\n";
}

}  // namespace kolm::core

#include "calc/taschenrechner/stapel.h"

#include <cmath>

namespace kolm::calc {

void Stapel::Push(double wert, std::string zeile) {
  if (Anzahl() >= Tiefe) {
    werte_.erase(werte_.begin());
    zeilen_.erase(zeilen_.begin());
  }
  werte_.push_back(wert);
  zeilen_.push_back(std::move(zeile));
}

double Stapel::Pop() {
  if (werte_.empty()) return 0;
  const double wert = werte_.back();
  werte_.pop_back();
  zeilen_.pop_back();
  return wert;
}

double Stapel::Oben() const { return werte_.empty() ? 0 : werte_.back(); }

void Stapel::Leeren() {
  werte_.clear();
  zeilen_.clear();
}

const char* RechnerMuster(double wert) {
  const double betrag = std::fabs(wert);
  return betrag > 1E-6 && betrag < 1E+8 ? kMusterNormal : kMusterExponent;
}

}  // namespace kolm::calc

#pragma once
// The registers of the RPN calculator below X: at most 21 values, kept as
// numbers and as the lines the list shows, the last entry being the top.
#include <string>
#include <vector>

namespace kolm::calc {

class Stapel {
 public:
  static constexpr int Tiefe = 21;

  // A full stack drops its oldest entry first.
  void Push(double wert, std::string zeile);
  // Takes the top away; an empty stack gives 0.
  double Pop();
  // The top without taking it; 0 when empty.
  double Oben() const;
  void Leeren();

  int Anzahl() const { return static_cast<int>(werte_.size()); }
  const std::vector<double>& Werte() const { return werte_; }
  const std::vector<std::string>& Zeilen() const { return zeilen_; }

 private:
  std::vector<double> werte_;
  std::vector<std::string> zeilen_;
};

// The two number patterns of the display: plain for 1E-6 < |v| < 1E+8,
// exponent form for everything else, 0 included.
constexpr const char* kMusterNormal = "#######0.######";
constexpr const char* kMusterExponent = "0.#######E-###";
const char* RechnerMuster(double wert);

}  // namespace kolm::calc

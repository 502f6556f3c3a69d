#include "calc/kernel/winkelschnitte.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "calc/kernel/schnitte.h"
#include "points/numbers/konstanten.h"

namespace kolm::kernel {

using klassisch::Zuweisen;
using numbers::GROSS;
using numbers::Pi;

bool VorwaertsschnittRechnen(double& a1, double& b1, double a2, double b2, double w1, double w2,
                             const Winkelsystem& s) {
  const double theta = Richtung(b2 - b1, a2 - a1);
  // Deliberately the plain tangent: a ray along the b axis gets no GROSS here.
  double m1 = 0, m2 = 0;
  Zuweisen(m1, std::tan(theta + w1 * s.winkelFaktor));
  Zuweisen(m2, std::tan(theta + Pi - w2 * s.winkelFaktor));
  if (m1 == m2) return false;
  return SchnittSteigung(a1, b1, m1, a2, b2, m2, a1, b1);
}

namespace {

// -w brought into above -Pi up to Pi: the sign is reversed on purpose.
double Gegenwinkel(double w, double faktor) {
  double g = WinkelNormieren(-w * faktor);
  if (g > Pi) g = g - 2 * Pi;
  return g;
}

double Steigung(double richtung) {
  if (std::cos(richtung) == 0) return GROSS;
  return std::tan(richtung);
}

double Vorzeichen(double x) { return x > 0 ? 1 : x < 0 ? -1 : 0; }

}  // namespace

bool RueckwaertsschnittRechnen(double& a1, double& b1, double am, double bm, double a3,
                               double b3, double alpha, double beta, const Winkelsystem& s) {
  const double aA = a1, bA = b1, aB = a3, bB = b3;
  const double alpha2 = Gegenwinkel(alpha, s.winkelFaktor);
  const double beta2 = Gegenwinkel(beta, s.winkelFaktor);
  const double dA = klassisch::Abstand(am, bm, aA, bA);
  const double tA = Richtung(bA - bm, aA - am);
  const double dB = klassisch::Abstand(am, bm, aB, bB);
  const double tB = Richtung(bB - bm, aB - am);
  const double g = WinkelNormieren(tA - tB);
  double k = 0;
  if (dA != 0 && std::sin(beta2) != 0)
    Zuweisen(k, dB * std::sin(alpha2) / dA / std::sin(beta2));
  else
    k = GROSS;
  const double W = WinkelNormieren(2 * Pi - alpha2 - beta2 - g);
  const double phi = k * std::cos(W) == -1
                         ? WinkelNormieren(Vorzeichen(std::sin(W)) * Pi / 2)
                         : Richtung(k * std::sin(W), 1 + k * std::cos(W));
  const double psi = WinkelNormieren(W - phi);
  const double rA = phi + tA;
  const double rB = -psi + tB;
  double sa = 0, sb = 0;
  const bool ok = SchnittSteigung(aA, bA, Steigung(rA), aB, bB, Steigung(rB), sa, sb);
  a1 = sa;
  b1 = sb;
  return ok;
}

}  // namespace kolm::kernel

#include "calc/kernel/anschluss.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"
#include "calc/kernel/kreise.h"
#include "calc/kernel/tausche.h"
#include "points/numbers/konstanten.h"

namespace kolm::kernel {

using klassisch::Zuweisen;
using numbers::Pi;

bool DirekterAnschlussRechnen(double& a1, double& b1, double alpha, double e, double& a2,
                              double& b2, double beta, const Winkelsystem& s) {
  const double d = klassisch::Abstand(a1, b1, a2, b2);
  if (d == 0 || alpha == beta) {
    a1 = 0;
    b1 = 0;
    return false;
  }
  double delta = 0;
  Zuweisen(delta, (beta - alpha) * s.winkelFaktor);
  // Deliberate: beyond a quarter circle the sign flips as under Falschdrehend;
  // the sign only chooses between the two solutions at the end.
  if (s.falschdrehend || std::fabs(delta) > Pi / 2) delta = -delta;
  const double betrag = std::fabs(delta);
  double sinus = 0;
  Zuweisen(sinus, (e / d) * std::sin(betrag));
  // Beyond 1 ArcusSinus gives 0 and the calculation carries on with it.
  double w = ArcusSinus(sinus);
  w = Pi - w - betrag;
  double l = 0;
  Zuweisen(l, d * std::sin(w) / std::sin(betrag));
  if (!SchnittKreisKreis(a1, b1, e, a2, b2, l)) return false;
  if (delta < 0) {
    Tausche(a1, a2);
    Tausche(b1, b2);
  }
  return true;
}

bool IndirekterAnschlussRechnen(double& a1, double& b1, double basis, double alpha, double beta,
                                double a2, double b2, double lambda, const Winkelsystem& s) {
  const double nenner = std::sin((alpha + beta) * s.winkelFaktor);
  double r = 0;
  if (nenner == 0)
    r = numbers::GROSS;
  else
    Zuweisen(r, std::fabs(basis) * std::sin(alpha * s.winkelFaktor) / nenner);
  return DirekterAnschlussRechnen(a1, b1, 0, r, a2, b2, lambda, s);
}

}  // namespace kolm::kernel

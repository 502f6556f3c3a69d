#include "calc/kernel/wendelinie.h"

#include <cmath>

#include "calc/kernel/klassisch.h"
#include "calc/kernel/tausche.h"

namespace kolm::kernel {

using klassisch::Zuweisen;

bool WendelinieRechnen(double R1, double R2, double D, double F, double& A, double& L1,
                       double& L2, double& E) {
  if (R1 <= 0 || R2 <= 0) return false;
  const double h = D / 2;
  if (R2 < R1) Tausche(R1, R2);
  if (R2 + F * R1 == 0) return false;
  double Rm = 0;
  Zuweisen(Rm, 2 * R1 * R2 / (R2 + F * R1));
  const double p = Rm - R1 - h;
  const double q = R2 - F * Rm - F * h;
  if (p * q == 0) return false;
  double u = 0;
  Zuweisen(u, std::fabs(((R2 - F * R1 - F * h) * h / p) / q));
  const double t = std::atan(std::sqrt(u));
  if (R2 - F * R1 == 0) return false;
  const double w = 2 * t * Rm;
  // sqrt(3) as the old code had it: 3 to the power 0.5.
  const double wurzel3 = std::pow(3.0, 0.5);
  double a = 0;
  Zuweisen(a, std::sqrt(std::fabs(wurzel3 * w * R1 * R2 / (R2 - F * R1))));
  double l1 = 0, l2 = 0;
  Zuweisen(l1, a * a / R1);
  Zuweisen(l2, a * a / R2);
  double e = 0;
  Zuweisen(e, l1 - F * l2);
  A = a;
  L1 = l1;
  L2 = l2;
  E = e;
  return true;
}

}  // namespace kolm::kernel

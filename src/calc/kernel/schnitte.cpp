#include "calc/kernel/schnitte.h"

#include "calc/kernel/klassisch.h"

namespace kolm::kernel {

bool SchnittGeraden(double p1a, double p1b, double d1a, double d1b, double p2a, double p2b,
                    double d2a, double d2b, double& sa, double& sb) {
  // An overflowing determinant was a skipped statement: it stays 0.
  double det = 0;
  klassisch::Zuweisen(det, d1a * d2b - d1b * d2a);
  if (det == 0) {
    sa = 0;
    sb = 0;
    return false;
  }
  double u = 0;
  klassisch::Zuweisen(u, ((p1b - p2b) * d1a - (p1a - p2a) * d1b) / det);
  klassisch::Zuweisen(sa, u * d2a + p2a);
  klassisch::Zuweisen(sb, u * d2b + p2b);
  return true;
}

bool SchnittSteigung(double p1a, double p1b, double m1, double p2a, double p2b, double m2,
                     double& sa, double& sb) {
  return SchnittGeraden(p1a, p1b, 1, m1, p2a, p2b, 1, m2, sa, sb);
}

}  // namespace kolm::kernel

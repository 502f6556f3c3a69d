#include "calc/kernel/kreise.h"

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/klassisch.h"
#include "calc/kernel/schnitte.h"
#include "calc/kernel/tausche.h"
#include "calc/kernel/winkel.h"

namespace kolm::kernel {

using klassisch::Abstand;
using klassisch::Zuweisen;

bool SchnittGeradeKreis(double& ma, double& mb, double r, double& pa, double& pb, double da,
                        double db) {
  double fa = 0, fb = 0;
  if (!SchnittGeraden(pa, pb, da, db, ma, mb, db, -da, fa, fb)) return false;
  const double h = Abstand(ma, mb, fa, fb);
  const double theta = Richtung(db, da);
  if (r >= h) {
    double s = 0;
    Zuweisen(s, std::sqrt(r * r - h * h));
    const double ca = s * std::cos(theta), cb = s * std::sin(theta);
    Zuweisen(ma, fa + ca);
    Zuweisen(mb, fb + cb);
    Zuweisen(pa, fa - ca);
    Zuweisen(pb, fb - cb);
    return true;
  }
  ma = mb = pa = pb = 0;
  return false;
}

bool SchnittKreisKreis(double& a1, double& b1, double r1, double& a2, double& b2, double r2) {
  const double d = Abstand(a1, b1, a2, b2);
  if (r1 + r2 < d || std::fabs(r1 - r2) > d || r1 == 0 || r2 == 0 || d == 0) return false;
  // S is the smaller circle, B the larger; on equal radii B is the second.
  double aS = a1, bS = b1, r = r1, aB = a2, bB = b2, R = r2;
  if (r2 < r1) {
    Tausche(aS, aB);
    Tausche(bS, bB);
    Tausche(r, R);
  }
  // The old code tested for the exchange once more at the end to undo it;
  // that test could no longer be true, so the order from B is final.
  double c = 0;
  Zuweisen(c, (R * R + d * d - r * r) / 2 / d / R);
  // Rounding may push c above 1 when the circles touch: gamma is then 0.
  const double gamma = ArcusCosinus(c);
  const double phi = Richtung(bS - bB, aS - aB);
  Zuweisen(a1, aB + R * std::cos(phi + gamma));
  Zuweisen(b1, bB + R * std::sin(phi + gamma));
  Zuweisen(a2, aB + R * std::cos(phi - gamma));
  Zuweisen(b2, bB + R * std::sin(phi - gamma));
  return true;
}

bool TangentenRechnen(double& ma, double& mb, double r, double& pa, double& pb, double& t) {
  const double d = Abstand(ma, mb, pa, pb);
  if (d > r) {
    double laenge = 0;
    Zuweisen(laenge, std::sqrt(d * d - r * r));
    if (SchnittKreisKreis(ma, mb, r, pa, pb, laenge)) {
      t = laenge;
      return true;
    }
  }
  ma = mb = pa = pb = t = 0;
  return false;
}

bool UmkreisRechnen(double a1, double b1, double a2, double b2, double a3, double b3,
                    double& ma, double& mb, double& r) {
  if (!SchnittGeraden((a1 + a2) / 2, (b1 + b2) / 2, b1 - b2, a2 - a1, (a1 + a3) / 2,
                      (b1 + b3) / 2, b1 - b3, a3 - a1, ma, mb)) {
    ma = mb = r = 0;
    return false;
  }
  r = Abstand(ma, mb, a1, b1);
  return true;
}

}  // namespace kolm::kernel

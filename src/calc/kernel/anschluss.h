#pragma once
// The ties: a station S located from two known points P1, P2 and the
// directions measured at S. Angles in the user's unit (s.winkelFaktor),
// lengths in the table's unit, coordinates in the a-b plane.

#include "calc/kernel/winkel.h"

namespace kolm::kernel {

// alpha, beta: directions from S to P1 and P2; e: distance S-P1. In: P1 in
// (a1, b1), P2 in (a2, b2). True: the station in (a1, b1), the other
// solution in (a2, b2). P1 = P2 or alpha = beta exactly: a1 = b1 = 0,
// false. No triangle (e too long) carries on with the angle 0 and fails only
// if the circles around P1 and P2 do not meet, coordinates then unchanged.
bool DirekterAnschlussRechnen(double& a1, double& b1, double alpha, double e, double& a2,
                              double& b2, double beta, const Winkelsystem& s);

// basis: base measured beside P1, alpha and beta the angles at its ends,
// lambda the angle at S between P1 and P2. In: P1 in (a1, b1); P2 only read.
// True: the station in (a1, b1). alpha + beta a multiple of a half circle
// makes the distance numbers::GROSS; the tie then fails as above.
bool IndirekterAnschlussRechnen(double& a1, double& b1, double basis, double alpha, double beta,
                                double a2, double b2, double lambda, const Winkelsystem& s);

}  // namespace kolm::kernel

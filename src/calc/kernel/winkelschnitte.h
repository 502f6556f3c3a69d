#pragma once
// Intersection (Vorwaertsschnitt) and resection (Rueckwaertsschnitt) from
// measured angles. Angles in the user's unit (s.winkelFaktor), counted in the
// a-b plane from a toward b whatever the coordinate system: the same numbers
// give the same point under all four systems.

#include "calc/kernel/winkel.h"

namespace kolm::kernel {

// w1 at P1 = (a1, b1) and w2 at P2 = (a2, b2), each from the base line and
// in opposite senses. True: the new point in (a1, b1). Rays of exactly equal
// slope give false with (a1, b1) unchanged; nearly parallel rays succeed.
bool VorwaertsschnittRechnen(double& a1, double& b1, double a2, double b2, double w1, double w2,
                             const Winkelsystem& s);

// P1 = (a1, b1), the middle point M = (am, bm) and P3 = (a3, b3), alpha the
// angle P1-S-M and beta the angle M-S-P3 measured at the station S. True:
// S in (a1, b1); the other four are only read. Rays whose slopes give a
// determinant of exactly 0 set (a1, b1) = (0, 0) and give false. On the
// danger circle the result is meaningless but still true.
bool RueckwaertsschnittRechnen(double& a1, double& b1, double am, double bm, double a3,
                               double b3, double alpha, double beta, const Winkelsystem& s);

}  // namespace kolm::kernel

#pragma once
// Intersection of two straight lines in the a-b plane, given by point and
// direction or by point and slope. Parallel means a determinant of exactly 0:
// there is no tolerance.

namespace kolm::kernel {

// Line 1 through (p1a, p1b) with direction (d1a, d1b), line 2 likewise.
// True with the intersection in (sa, sb); false with sa = sb = 0 when the
// directions are parallel (or one is (0, 0)). Inputs are read before the
// outputs are written, so sa, sb may be the variables passed as p1a, p1b.
bool SchnittGeraden(double p1a, double p1b, double d1a, double d1b, double p2a, double p2b,
                    double d2a, double d2b, double& sa, double& sb);

// As SchnittGeraden with the directions (1, m1) and (1, m2); a vertical line
// is passed as the slope numbers::GROSS. Equal slopes give false, (0, 0).
bool SchnittSteigung(double p1a, double p1b, double m1, double p2a, double p2b, double m2,
                     double& sa, double& sb);

}  // namespace kolm::kernel

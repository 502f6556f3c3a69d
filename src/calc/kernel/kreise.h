#pragma once
// Circles in the a-b plane: with a line, with another circle, the tangents
// from a point and the circle through three points. All comparisons are
// exact; a tangent case gives two equal points.

namespace kolm::kernel {

// Circle (ma, mb, r), line through (pa, pb) with direction (da, db). True:
// the solution ahead along (da, db) in (ma, mb), the one behind in (pa, pb).
// A line missing the circle (or r < 0) sets all four to 0 and gives false;
// a direction (0, 0) gives false and changes nothing.
bool SchnittGeradeKreis(double& ma, double& mb, double r, double& pa, double& pb, double da,
                        double db);

// Circles (a1, b1, r1) and (a2, b2, r2). True: the two points replace both
// centres, the first in (a1, b1), counted from the larger circle (the second
// one on equal radii), so swapping the circles gives the same order. False,
// nothing changed: apart (r1 + r2 < d), inside (|r1 - r2| > d), a radius 0,
// or equal centres. Touching (d = r1 + r2 exactly) intersects.
bool SchnittKreisKreis(double& a1, double& b1, double r1, double& a2, double& b2, double r2);

// Circle (ma, mb, r), point (pa, pb) outside it. True: the two touching
// points replace (ma, mb) and (pa, pb) as SchnittKreisKreis orders them, t is
// the tangent length. A point on or inside the circle, or r = 0, sets all
// five outputs to 0 and gives false.
bool TangentenRechnen(double& ma, double& mb, double r, double& pa, double& pb, double& t);

// Circle through three points: centre (ma, mb) and radius r. Collinear or
// coincident points give false with ma = mb = r = 0.
bool UmkreisRechnen(double a1, double b1, double a2, double b2, double a3, double b3,
                    double& ma, double& mb, double& r);

}  // namespace kolm::kernel

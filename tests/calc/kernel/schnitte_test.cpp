// Line and circle intersections, tangents and the circumcircle; values from
// data/schnitte_werte.py (the program's Pi), each also checked by geometry.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernel/kreise.h"
#include "calc/kernel/schnitte.h"

namespace kolm::kernel {
namespace {

constexpr double kGenau = 1e-12;
constexpr double kGross = 1E+36;

TEST(SchnittGeraden, WorkedIntersections) {
  struct Fall { double p1a, p1b, d1a, d1b, p2a, p2b, d2a, d2b, sa, sb; };
  for (const Fall& f : {Fall{0, 0, 1, 1, 10, 0, -1, 2, 6.666666666666666, 6.666666666666667},
                       Fall{100, 200, 3, -4, 50, 50, 0, 1, 50.0, 266.66666666666663}}) {
    double sa = -1, sb = -1;
    EXPECT_TRUE(SchnittGeraden(f.p1a, f.p1b, f.d1a, f.d1b, f.p2a, f.p2b, f.d2a, f.d2b, sa, sb));
    EXPECT_NEAR(sa, f.sa, kGenau);
    EXPECT_NEAR(sb, f.sb, kGenau);
    // On line 1: the cross product of (s - p1) and d1 vanishes.
    EXPECT_NEAR((sa - f.p1a) * f.d1b - (sb - f.p1b) * f.d1a, 0, 1e-9);
  }
}

TEST(SchnittGeraden, ParallelEmptyOrOverflowingGiveFalseAndZero) {
  struct Fall { const char* was; double p1a, p1b, d1a, d1b, p2a, p2b, d2a, d2b; };
  for (const Fall& f : {Fall{"parallel", 1, 1, 2, 2, 5, 0, -4, -4}, Fall{"the same line", 1, 1, 2, 2, 1, 1, 2, 2},
                        Fall{"no direction", 1, 1, 0, 0, 5, 0, 1, 3},
                        Fall{"an overflowing determinant counts as zero", 0, 0, 1e200, 1, 0, 0, 1, 1e200}}) {
    double sa = 7, sb = 7;
    EXPECT_FALSE(SchnittGeraden(f.p1a, f.p1b, f.d1a, f.d1b, f.p2a, f.p2b, f.d2a, f.d2b, sa, sb)) << f.was;
    EXPECT_EQ(sa, 0) << f.was;
    EXPECT_EQ(sb, 0) << f.was;
  }
  // Nearly parallel still intersects: no tolerance.
  double sa = 0, sb = 0;
  EXPECT_TRUE(SchnittGeraden(0, 0, 1, 1e-15, 0, 1, 1, 0, sa, sb));
  EXPECT_TRUE(std::isfinite(sa));
  EXPECT_NEAR(sb, 1, kGenau);
}

TEST(SchnittSteigung, SlopesAndTheVerticalAsGross) {
  double sa = -1, sb = -1;
  EXPECT_TRUE(SchnittSteigung(0, 0, 0.5, 10, 0, 0.25, sa, sb));
  EXPECT_NEAR(sa, -10.0, kGenau);
  EXPECT_NEAR(sb, -5.0, kGenau);
  // A vertical line through a = 3 against a horizontal one through b = 2.
  EXPECT_TRUE(SchnittSteigung(3, 0, kGross, -4, 2, 0, sa, sb));
  EXPECT_NEAR(sa, 3, 1e-9);
  EXPECT_NEAR(sb, 2, 1e-9);
  sa = sb = 9;
  EXPECT_FALSE(SchnittSteigung(5, 5, kGross, 0, 0, kGross, sa, sb)) << "two verticals";
  EXPECT_EQ(sa, 0);
  EXPECT_EQ(sb, 0);
}

TEST(SchnittGeradeKreis, TheFirstSolutionLiesAheadAlongTheLine) {
  struct Fall { double ma, mb, r, pa, pb, da, db, e1a, e1b, e2a, e2b; };
  for (const Fall& f :
       {Fall{0, 0, 5, -10, 3, 1, 0, 4.0, 3.0, -4.0, 3.0},
        Fall{10, 20, 13, 0, 0, 3, 4, 20.62159012611179, 27.495453501482388, 5.77840987388821,
             7.704546498517617}}) {
    double ma = f.ma, mb = f.mb, pa = f.pa, pb = f.pb;
    EXPECT_TRUE(SchnittGeradeKreis(ma, mb, f.r, pa, pb, f.da, f.db));
    EXPECT_NEAR(ma, f.e1a, 1e-9);
    EXPECT_NEAR(mb, f.e1b, 1e-9);
    EXPECT_NEAR(pa, f.e2a, 1e-9);
    EXPECT_NEAR(pb, f.e2b, 1e-9);
    EXPECT_NEAR(std::hypot(ma - f.ma, mb - f.mb), f.r, 1e-9);
    EXPECT_NEAR(std::hypot(pa - f.ma, pb - f.mb), f.r, 1e-9);
    EXPECT_GT((ma - pa) * f.da + (mb - pb) * f.db, 0) << "first ahead";
  }
}

TEST(SchnittGeradeKreis, TouchingMissingZeroRadiusAndNoDirection) {
  struct Fall { const char* was; double ma, mb, r, pa, pb, da, db; bool ok; double e[4]; };
  for (const Fall& f : {
           Fall{"a tangent line gives two equal points", 0, 0, 5, 5, -9, 0, 1, true, {5, 0, 5, 0}},
           Fall{"missing the circle zeroes all four", 0, 0, 5, 6, 0, 0, 1, false, {0, 0, 0, 0}},
           Fall{"radius 0 through the centre: both are the centre", 2, 3, 0, 7, 3, 1, 0, true, {2, 3, 2, 3}},
           Fall{"radius 0 beside the centre", 0, 0, 0, 7, 1, 1, 0, false, {0, 0, 0, 0}},
           Fall{"no direction changes nothing", 1, 2, 10, 3, 4, 0, 0, false, {1, 2, 3, 4}}}) {
    double ma = f.ma, mb = f.mb, pa = f.pa, pb = f.pb;
    EXPECT_EQ(SchnittGeradeKreis(ma, mb, f.r, pa, pb, f.da, f.db), f.ok) << f.was;
    EXPECT_EQ(ma, f.e[0]) << f.was;
    EXPECT_EQ(mb, f.e[1]) << f.was;
    EXPECT_EQ(pa, f.e[2]) << f.was;
    EXPECT_EQ(pb, f.e[3]) << f.was;
  }
}

struct KreisFall { double a1, b1, r1, a2, b2, r2, e1a, e1b, e2a, e2b; };

TEST(SchnittKreisKreis, WorkedIntersectionsIncludingTouching) {
  for (const KreisFall& f :
       {KreisFall{0, 0, 10, 12, 5, 7, 5.760886618261684, 8.173872116171959, 9.860415156886246,
                  -1.664996376526988},
        // Touching from outside (d = r1 + r2) and from inside (d = |r1 - r2|).
        KreisFall{0, 0, 5, 10, 0, 5, 5.0, -2.0510342851533114e-09, 5.0,
                  -2.0510342851533114e-09},
        KreisFall{0, 0, 10, 3, 4, 5, 6.000000000000001, 7.999999999999999, 6.000000000000001,
                  7.999999999999999},
        KreisFall{1, 2, 3, 4, 6, 2, 2.8000000000000003, 4.4, 2.8000000000000003, 4.4}}) {
    double a1 = f.a1, b1 = f.b1, a2 = f.a2, b2 = f.b2;
    EXPECT_TRUE(SchnittKreisKreis(a1, b1, f.r1, a2, b2, f.r2)) << f.a2 << "," << f.b2;
    EXPECT_NEAR(a1, f.e1a, kGenau);
    EXPECT_NEAR(b1, f.e1b, kGenau);
    EXPECT_NEAR(a2, f.e2a, kGenau);
    EXPECT_NEAR(b2, f.e2b, kGenau);
    for (const auto& [a, b] : {std::pair{a1, b1}, std::pair{a2, b2}}) {
      EXPECT_NEAR(std::hypot(a - f.a1, b - f.b1), f.r1, 1e-8);
      EXPECT_NEAR(std::hypot(a - f.a2, b - f.b2), f.r2, 1e-8);
    }
  }
}

TEST(SchnittKreisKreis, EqualRadiiShowTheProgramsPi) {
  // B is the second circle, so the first point is found from (8, 0) at the
  // direction Pi: with the program's Pi it misses (4, -3) by about 1e-9.
  double a1 = 0, b1 = 0, a2 = 8, b2 = 0;
  EXPECT_TRUE(SchnittKreisKreis(a1, b1, 5, a2, b2, 5));
  EXPECT_NEAR(a1, 4.000000001230621, kGenau);
  EXPECT_NEAR(b1, -3.000000001640827, kGenau);
  EXPECT_NEAR(a2, 3.999999998769379, kGenau);
  EXPECT_NEAR(b2, 2.999999998359172, kGenau);
  EXPECT_GT(std::fabs(a1 - 4.0), 1e-9);
}

TEST(SchnittKreisKreis, ExchangedCirclesGiveTheSameOrder) {
  double a1 = 12, b1 = 5, a2 = 0, b2 = 0;
  EXPECT_TRUE(SchnittKreisKreis(a1, b1, 7, a2, b2, 10));
  double c1 = 0, d1 = 0, c2 = 12, d2 = 5;
  EXPECT_TRUE(SchnittKreisKreis(c1, d1, 10, c2, d2, 7));
  EXPECT_EQ(a1, c1);
  EXPECT_EQ(b1, d1);
  EXPECT_EQ(a2, c2);
  EXPECT_EQ(b2, d2);
  EXPECT_NEAR(a1, 5.760886618261684, kGenau);
}

TEST(SchnittKreisKreis, FailuresChangeNothing) {
  struct Fall { double a1, b1, r1, a2, b2, r2; const char* was; };
  for (const Fall& f : {Fall{0, 0, 3, 10, 0, 4, "apart"}, Fall{0, 0, 10, 1, 0, 2, "inside"},
                       Fall{0, 0, 0, 3, 0, 3, "r1 = 0"}, Fall{0, 0, 3, 3, 0, 0, "r2 = 0"},
                       Fall{4, 4, 3, 4, 4, 3, "same centre"}}) {
    double a1 = f.a1, b1 = f.b1, a2 = f.a2, b2 = f.b2;
    EXPECT_FALSE(SchnittKreisKreis(a1, b1, f.r1, a2, b2, f.r2)) << f.was;
    EXPECT_EQ(a1, f.a1);
    EXPECT_EQ(b1, f.b1);
    EXPECT_EQ(a2, f.a2);
    EXPECT_EQ(b2, f.b2);
  }
}

TEST(TangentenRechnen, TouchingPointsAndLength) {
  struct Fall { double ma, mb, r, pa, pb, e1a, e1b, e2a, e2b, t; };
  for (const Fall& f :
       {Fall{0, 0, 5, 10, 0, 2.5000000017762485, -4.330127021998748, 2.4999999982237524,
             4.330127015845644, 8.660254037844387},
        Fall{3, -2, 4, -5, 7, 4.937113109638757, 1.499656097456672, -0.7026303510180671,
             -3.513449200904949, 11.357816691600547}}) {
    double ma = f.ma, mb = f.mb, pa = f.pa, pb = f.pb, t = 0;
    EXPECT_TRUE(TangentenRechnen(ma, mb, f.r, pa, pb, t));
    EXPECT_NEAR(ma, f.e1a, kGenau);
    EXPECT_NEAR(mb, f.e1b, kGenau);
    EXPECT_NEAR(pa, f.e2a, kGenau);
    EXPECT_NEAR(pb, f.e2b, kGenau);
    EXPECT_NEAR(t, f.t, kGenau);
    // Radius and tangent are perpendicular at each touching point.
    EXPECT_NEAR((ma - f.ma) * (ma - f.pa) + (mb - f.mb) * (mb - f.pb), 0, 1e-7);
    EXPECT_NEAR((pa - f.ma) * (pa - f.pa) + (pb - f.mb) * (pb - f.pb), 0, 1e-7);
  }
}

TEST(TangentenRechnen, APointOnOrInsideTheCircleZeroesEverything) {
  for (const double pa : {5.0, 2.0}) {
    double ma = 0, mb = 0, pb = 0, t = 3, p = pa;
    EXPECT_FALSE(TangentenRechnen(ma, mb, 5, p, pb, t)) << pa;
    EXPECT_EQ(ma, 0);
    EXPECT_EQ(mb, 0);
    EXPECT_EQ(p, 0);
    EXPECT_EQ(pb, 0);
    EXPECT_EQ(t, 0);
  }
  double ma = 1, mb = 1, pa = 4, pb = 5, t = 3;
  EXPECT_FALSE(TangentenRechnen(ma, mb, 0, pa, pb, t)) << "radius 0";
  EXPECT_EQ(ma, 0);
  EXPECT_EQ(t, 0);
}

TEST(UmkreisRechnen, CentreAndRadius) {
  struct Fall { double a1, b1, a2, b2, a3, b3, ma, mb, r; };
  for (const Fall& f : {Fall{0, 0, 4, 0, 0, 3, 2.0, 1.5, 2.5},
                       Fall{1, 2, 7, -1, 4, 6, 4.863636363636363, 2.227272727272727,
                            3.870315083165091}}) {
    double ma = 0, mb = 0, r = 0;
    EXPECT_TRUE(UmkreisRechnen(f.a1, f.b1, f.a2, f.b2, f.a3, f.b3, ma, mb, r));
    EXPECT_NEAR(ma, f.ma, kGenau);
    EXPECT_NEAR(mb, f.mb, kGenau);
    EXPECT_NEAR(r, f.r, kGenau);
    EXPECT_NEAR(std::hypot(f.a2 - ma, f.b2 - mb), r, 1e-9);
    EXPECT_NEAR(std::hypot(f.a3 - ma, f.b3 - mb), r, 1e-9);
  }
}

TEST(UmkreisRechnen, CollinearOrCoincidentPointsGiveFalseAndZero) {
  struct Fall { double a1, b1, a2, b2, a3, b3; };
  for (const Fall& f : {Fall{0, 0, 1, 1, 2, 2}, Fall{3, 3, 3, 3, 5, 1}, Fall{0, 0, 4, 1, 4, 1},
                       Fall{2, 2, 2, 2, 2, 2}}) {
    double ma = 9, mb = 9, r = 9;
    EXPECT_FALSE(UmkreisRechnen(f.a1, f.b1, f.a2, f.b2, f.a3, f.b3, ma, mb, r));
    EXPECT_EQ(ma, 0);
    EXPECT_EQ(mb, 0);
    EXPECT_EQ(r, 0);
  }
}

}  // namespace
}  // namespace kolm::kernel

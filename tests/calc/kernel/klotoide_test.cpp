// The clothoid series and the egg and inflection line; values from
// data/klotoide_werte.py, the clothoid points also checked there against a
// numerical integral, and the lines in closed form with the exact clothoid
// geometry from tests/calc/eilinie/data/werte.py (Simpson integration of
// the clothoid, bisection for the parameter whose circles have the gap D).
#include <cmath>
#include <gtest/gtest.h>

#include "calc/kernel/klotoide.h"
#include "calc/kernel/wendelinie.h"

namespace kolm::kernel {
namespace {

TEST(KlotoidePunkt, WorkedPointsAgreeWithTheIntegral) {
  struct Fall { double A, L, x, y, xIntegral, yIntegral; };
  for (const Fall& f :
       {Fall{100, 100, 97.52876882131392, 16.371404709295334, 97.5287688200343, 16.371404737570074},
        Fall{50, 30, 29.90294569098646, 1.795838580187013, 29.90294569103467, 1.7958385777584354},
        Fall{200, 350, 276.37603841792446, 150.86922616343932, 276.3760383644432,
             150.86922668801978}}) {
    double x = 0, y = 0;
    EXPECT_TRUE(KlotoidePunkt(f.A, f.L, x, y));
    EXPECT_NEAR(x, f.x, 1e-9) << f.A << " " << f.L;
    EXPECT_NEAR(y, f.y, 1e-9);
    // The series stops at 1E-7 relative: close to the curve, not exact.
    EXPECT_NEAR(x, f.xIntegral, 1e-5 * f.L);
    EXPECT_NEAR(y, f.yIntegral, 1e-5 * f.L);
  }
}

TEST(KlotoidePunkt, TheUnitClothoidAgreesWithTheTable) {
  // A = 1, l = 0.1 .. 1.0 as a printed clothoid table gives them; the values
  // by numerical integration in ../klotoide/data/klotoide_werte.py.
  const double tafel[10][2] = {
      {0.0999997500, 0.0001666664}, {0.1999920001, 0.0013332952}, {0.2999392557, 0.0044993491},
      {0.3997440758, 0.0106617915}, {0.4992193149, 0.0208100934}, {0.5980589138, 0.0359167716},
      {0.6958099102, 0.0569220322}, {0.7918467445, 0.0847112109}, {0.8853494275, 0.1200839053},
      {0.9752876882, 0.1637140474}};
  for (int i = 0; i < 10; ++i) {
    const double l = (i + 1) / 10.0;
    double x = 0, y = 0;
    EXPECT_TRUE(KlotoidePunkt(1, l, x, y));
    EXPECT_NEAR(x, tafel[i][0], 5e-9) << l;
    EXPECT_NEAR(y, tafel[i][1], 5e-9) << l;
    // The same curve scaled: A = 250, L = 250 l.
    EXPECT_TRUE(KlotoidePunkt(250, 250 * l, x, y));
    EXPECT_NEAR(x, 250 * tafel[i][0], 250 * 5e-9) << l;
    EXPECT_NEAR(y, 250 * tafel[i][1], 250 * 5e-9) << l;
  }
}

TEST(KlotoidePunkt, EdgesSucceedWithTheOriginOrFailAndKeepTheOutputs) {
  // L/A = 40: tau = 800. In plain floating point the terms would become
  // infinite and NaN and the loop would run to 30000 steps; the old program
  // left by its error handler instead.
  struct Fall { const char* was; double A, L; bool ok; double x, y; };
  for (const Fall& f : {Fall{"length zero is the origin", 2, 0, true, 0, 0},
                        Fall{"parameter zero fails", 0, 100, false, 3, 4},
                        Fall{"an overflowing series fails within the step limit", 1, 40, false, 3, 4},
                        Fall{"A*A underflows to 0", 1e-300, 1, false, 3, 4}}) {
    double x = 3, y = 4;
    EXPECT_EQ(KlotoidePunkt(f.A, f.L, x, y), f.ok) << f.was;
    EXPECT_EQ(x, f.x) << f.was;
    EXPECT_EQ(y, f.y) << f.was;
  }
}

TEST(KlotoidePunkt, LongArcsLoseTheirDigitsButStillSucceed) {
  // tau = 50 and 450: the alternating terms cancel away every digit, as in the
  // old program; the true points lie near (8.59, 7.90) and (0.86, 0.91).
  double x = 0, y = 0;
  EXPECT_TRUE(KlotoidePunkt(10, 100, x, y));
  EXPECT_NEAR(x, -5278.969620961224, 1e-6);
  EXPECT_NEAR(y, 1108.8509578774924, 1e-6);
  EXPECT_TRUE(KlotoidePunkt(1, 30, x, y));
  EXPECT_NEAR(x / -2.583482051306615e+176, 1, 1e-9);
  EXPECT_NEAR(y / -1.0083053851116597e+176, 1, 1e-9);
}

TEST(KlotoideReihe, StopsAtTheTermBoundOrTheStepLimit) {
  double xs = 0, ys = 0;
  EXPECT_EQ(KlotoideReihe(5.0, KlotoideSchrittGrenze, xs, ys), 11);
  EXPECT_NEAR(xs, 0.1840996478421094, 1e-14);
  EXPECT_NEAR(ys, 0.26115980911948006, 1e-14);
  // Cut off at three steps: the partial sums, not converged.
  EXPECT_EQ(KlotoideReihe(5.0, 3, xs, ys), 3);
  EXPECT_NEAR(xs, -0.2758190883190885, 1e-14);
  EXPECT_NEAR(ys, 1.0579004329004331, 1e-14);
  // Just below the overflow: 940 steps, far from the limit.
  EXPECT_EQ(KlotoideReihe(690.0, KlotoideSchrittGrenze, xs, ys), 940);
  EXPECT_NEAR(xs / 1.500055227383192e+279, 1, 1e-9);
  // Overflow: 0 steps reported, sums untouched, with or without a limit.
  xs = ys = 7;
  EXPECT_EQ(KlotoideReihe(710.0, KlotoideSchrittGrenze, xs, ys), 0);
  EXPECT_EQ(KlotoideReihe(710.0, KlotoideOhneGrenze, xs, ys), 0);
  EXPECT_EQ(KlotoideReihe(NAN, KlotoideOhneGrenze, xs, ys), 0);
  EXPECT_EQ(xs, 7);
  EXPECT_EQ(ys, 7);
}

TEST(WendelinieRechnen, NoGapGivesZeroWithoutFailure) {
  double A = 9, L1 = 9, L2 = 9, E = 9;
  EXPECT_TRUE(WendelinieRechnen(100, 300, 0, 1, A, L1, L2, E));
  EXPECT_EQ(A, 0);
  EXPECT_EQ(L1, 0);
  EXPECT_EQ(L2, 0);
  EXPECT_EQ(E, 0);
}


struct Fall {
  double R1, R2, D, F;
  double A, L1, L2, E;
  double AGenau;  // the parameter of the integrated clothoid with gap D
};

const Fall kFaelle[] = {
    {100, 300, 2, 1, 112.928686977634, 127.528883424925, 42.509627808308, 85.019255616617, 112.984698},
    {250, 600, 0.5, 1, 175.331410024868, 122.964413365233, 51.235172235514, 71.729241129719, 175.342205},
    {80, 120, 1.2, 1, 141.463924946354, 250.150525765347, 166.767017176898, 83.383508588449, 141.616178},
    {100, 300, 2, -1, 67.142644054460, 45.081346506240, 15.027115502080, 60.108462008320, 67.152812},
    {400, 500, 1, -1, 127.410357091927, 40.583497735731, 32.466798188585, 73.050295924316, 127.412465},
    {150, 90, 3, -1, 59.932476748309, 39.910019657628, 23.946011794577, 63.856031452205, 59.945657},
};

TEST(WendelinieRechnen, WorkedCasesAndTheirCirclesHaveTheGapD) {
  for (const Fall& f : kFaelle) {
    double A = 0, L1 = 0, L2 = 0, E = 0;
    ASSERT_TRUE(WendelinieRechnen(f.R1, f.R2, f.D, f.F, A, L1, L2, E)) << f.R1 << " " << f.R2;
    EXPECT_NEAR(A, f.A, 1e-9) << f.R1 << " " << f.R2 << " F=" << f.F;
    EXPECT_NEAR(L1, f.L1, 1e-9);
    EXPECT_NEAR(L2, f.L2, 1e-9);
    EXPECT_NEAR(E, f.E, 1e-9);
    // L1 belongs to the smaller radius whichever way they were given.
    EXPECT_NEAR(L1 * std::fmin(f.R1, f.R2), A * A, 1e-6);
    // An approximation, but within a few parts in a thousand of the real
    // clothoid: D is the gap the sketch shows.
    EXPECT_NEAR(A / f.AGenau, 1, 2e-3) << f.R1 << " " << f.R2 << " F=" << f.F;
  }
}

TEST(WendelinieRechnen, ASignThatIsNoOneStillComputes) {
  // The dialog reads F from a caption; anything but a number reads as 0.
  double A = 0, L1 = 0, L2 = 0, E = 0;
  ASSERT_TRUE(WendelinieRechnen(100, 300, 2, 0, A, L1, L2, E));
  EXPECT_NEAR(A, 83.30547706242885, 1e-9);
  EXPECT_NEAR(L1, 69.39802508598859, 1e-9);
  EXPECT_NEAR(L2, 23.132675028662863, 1e-9);
  EXPECT_NEAR(E, L1, 1e-12) << "E = L1 - 0 * L2";
}

TEST(WendelinieRechnen, FailuresAndAVanishingDenominatorAreRefusedExactly) {
  // R1 = 100, R2 = 300: Rm = 150 for the egg line, 300 for the inflection
  // line. p = Rm - R1 - D/2 and q = R2 - F*Rm - F*D/2 become exactly 0.
  struct Null { double R1, R2, D, F; const char* was; };
  for (const Null& n : {Null{100, 300, 100, 1, "p = 0"}, Null{100, 300, 300, 1, "q = 0"},
                        Null{100, 300, 400, -1, "p = 0"}, Null{100, 100, 0, 1, "equal radii and no gap"},
                        Null{0, 300, 2, 1, "radius 0"}, Null{100, -300, 2, -1, "negative radius"},
                        Null{100, 100, 2, 1, "equal radii, egg line"}, Null{100, 100, 2, -1, "R2 + F*R1 = 0"}}) {
    double A = 9, L1 = 8, L2 = 7, E = 6;
    EXPECT_FALSE(WendelinieRechnen(n.R1, n.R2, n.D, n.F, A, L1, L2, E)) << n.was;
    EXPECT_EQ(A, 9);
    EXPECT_EQ(L1, 8);
    EXPECT_EQ(L2, 7);
    EXPECT_EQ(E, 6);
  }
  // Just beside the zero there is a result: no tolerance.
  double A = 0, L1 = 0, L2 = 0, E = 0;
  EXPECT_TRUE(WendelinieRechnen(100, 300, 100.5, 1, A, L1, L2, E));
  EXPECT_TRUE(std::isfinite(A));
  EXPECT_GT(A, 0);
}

TEST(WendelinieRechnen, HugeValuesGiveNoInfinity) {
  for (double D : {1e300, -1e300, 1e-300}) {
    for (double F : {1.0, -1.0}) {
      double A = 0, L1 = 0, L2 = 0, E = 0;
      WendelinieRechnen(1e-200, 1e200, D, F, A, L1, L2, E);
      EXPECT_TRUE(std::isfinite(A) && std::isfinite(L1) && std::isfinite(L2) && std::isfinite(E)) << D << " " << F;
    }
  }
}

}  // namespace
}  // namespace kolm::kernel

// The egg and inflection line in closed form: values and the exact clothoid
// geometry from tests/calc/eilinie/data/werte.py (Simpson integration of the
// clothoid, bisection for the parameter whose circles have the gap D).
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernel/wendelinie.h"

namespace kolm::kernel {
namespace {

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

TEST(WendelinieRechnen, AVanishingDenominatorIsRefusedExactly) {
  // R1 = 100, R2 = 300: Rm = 150 for the egg line, 300 for the inflection
  // line. p = Rm - R1 - D/2 and q = R2 - F*Rm - F*D/2 become exactly 0.
  struct Null { double R2, D, F; const char* was; };
  for (const Null& n : {Null{300, 100, 1, "p = 0"}, Null{300, 300, 1, "q = 0"}, Null{300, 400, -1, "p = 0"},
                        Null{100, 0, 1, "equal radii and no gap"}}) {
    double A = 9, L1 = 8, L2 = 7, E = 6;
    EXPECT_FALSE(WendelinieRechnen(100, n.R2, n.D, n.F, A, L1, L2, E)) << n.was;
    EXPECT_EQ(A, 9);
    EXPECT_EQ(L1, 8);
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

// Inverse sine and cosine with their required oddities and the angle from
// three sides; values from data/arcus_werte.py (the program's Pi).
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernel/arcus.h"
#include "calc/kernel/tausche.h"

namespace kolm::kernel {
namespace {

constexpr double kPi = 3.141592654;

TEST(ArcusSinus, WorkedValuesAndTheEdges) {
  struct Fall { double x, erwartet; };
  for (const Fall& f : {Fall{0.5, 0.5235987755982989}, Fall{-0.5, -0.5235987755982989},
                       Fall{0.9, 1.1197695149986342}, Fall{-0.9, -1.1197695149986342},
                       Fall{0.0, 0.0}})
    EXPECT_NEAR(ArcusSinus(f.x), f.erwartet, 1e-15) << f.x;
  // Exactly +-1 gives the program's quarter circle, not the one of exact pi.
  EXPECT_EQ(ArcusSinus(1.0), kPi / 2);
  EXPECT_EQ(ArcusSinus(-1.0), -kPi / 2);
  EXPECT_NE(ArcusSinus(1.0), std::asin(1.0));
  // Beyond 1 the root failed and the result was 0.
  for (const double x : {1.5, -2.0, 1.0000000001, double{INFINITY}, double{NAN}}) EXPECT_EQ(ArcusSinus(x), 0.0) << x;
}

TEST(ArcusCosinus, IsNegativeForNegativeArgumentsAndZeroAtZero) {
  struct Fall { double x, erwartet; };
  for (const Fall& f : {Fall{0.5, 1.0471975511965976}, Fall{-0.5, -1.0471975511965976},
                       Fall{0.9, 0.45102681179626236}, Fall{-0.9, -0.45102681179626236},
                       Fall{1.0, 0.0}, Fall{-1.0, 0.0}})
    EXPECT_NEAR(ArcusCosinus(f.x), f.erwartet, 1e-15) << f.x;
  EXPECT_LT(ArcusCosinus(-0.5), 0) << "not acos on 0 .. Pi";
  EXPECT_EQ(ArcusCosinus(0.0), 0.0) << "the division by 0 failed: 0, not Pi/2";
  for (const double x : {1.5, -2.0, double{INFINITY}, double{NAN}}) EXPECT_EQ(ArcusCosinus(x), 0.0) << x;
}

TEST(WinkelAusSeiten, AngleAtTheSecondPoint) {
  struct Fall { double a1, b1, a2, b2, a3, b3, erwartet; };
  for (const Fall& f : {Fall{10, 0, 0, 0, 0, 10, 1.5707963272051035},
                       Fall{10, 0, 0, 0, 10, 10, 0.7853981633974484},
                       Fall{3, 4, 0, 0, -5, 1, 2.0169018761485065},
                       Fall{1, 1, 2, 2, 3, 3, 3.141592654},  // straight on
                       Fall{1, 1, 2, 2, 0, 0, 0.0}})         // folded back
    EXPECT_NEAR(WinkelAusSeiten(f.a1, f.b1, f.a2, f.b2, f.a3, f.b3), f.erwartet, 1e-12)
        << f.a1 << "," << f.b1 << " " << f.a3 << "," << f.b3;
}

TEST(WinkelAusSeiten, AnObtuseAngleUsesTheProgramsPi) {
  // Straight on: c = -1 and ArcusCosinus(-1) = 0, so the result is Pi itself.
  EXPECT_EQ(WinkelAusSeiten(1, 1, 2, 2, 3, 3), kPi);
}

TEST(WinkelAusSeiten, AZeroSideGivesZero) {
  EXPECT_EQ(WinkelAusSeiten(5, 5, 5, 5, 1, 2), 0.0);
  EXPECT_EQ(WinkelAusSeiten(0, 0, 7, 1, 7, 1), 0.0);
  EXPECT_EQ(WinkelAusSeiten(4, 4, 4, 4, 4, 4), 0.0);
}

TEST(Tausche, ExchangesTheValues) {
  double u = 1.5, v = -2;
  Tausche(u, v);
  EXPECT_EQ(u, -2);
  EXPECT_EQ(v, 1.5);
}

}  // namespace
}  // namespace kolm::kernel

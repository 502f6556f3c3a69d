// Directions, polar conversion, the inverse sine and cosine with their
// required oddities and the angle from three sides; values from
// data/winkel_werte.py and data/arcus_werte.py, computed with the program's
// Pi.
#include <cmath>
#include <gtest/gtest.h>

#include "calc/kernel/arcus.h"
#include "calc/kernel/tausche.h"
#include "calc/kernel/winkel.h"

namespace kolm::kernel {
namespace {

constexpr double kPi = 3.141592654;
constexpr double kGenau = 1e-9;

TEST(Richtung, EveryQuadrantAndTheAxes) {
  struct Fall { double y, x, erwartet; };
  for (const Fall f : {Fall{1, 1, 0.7853981633974483}, Fall{-1, 1, -0.7853981633974483},
                       Fall{1, -1, 2.356194490602552}, Fall{-1, -1, -2.356194490602552},
                       Fall{3, 0, 1.570796327}, Fall{-3, 0, -1.570796327},
                       Fall{0, -2, 3.141592654}, Fall{0, 0, 0.0}, Fall{0, 5, 0.0},
                       Fall{1e300, 1e-300, 0.0}, Fall{1e300, -1e-300, 0.0}})
    EXPECT_NEAR(Richtung(f.y, f.x), f.erwartet, kGenau) << f.y << "," << f.x;
  EXPECT_EQ(Richtung(0, -2), kPi) << "the program's Pi, not the closest double of pi";
}

TEST(WinkelNormieren, BringsAnyAngleIntoOneTurnWithTheProgramsPi) {
  EXPECT_NEAR(WinkelNormieren(-1.0), 5.283185308, kGenau);
  EXPECT_NEAR(WinkelNormieren(7.0), 0.7168146919999998, kGenau);
  EXPECT_EQ(WinkelNormieren(2 * kPi), 0.0) << "exactly one turn is 0";
  EXPECT_EQ(WinkelNormieren(-2 * kPi), 0.0);
  EXPECT_NEAR(WinkelNormieren(4 * kPi + 0.5), 0.5, 1e-12);
  EXPECT_NEAR(WinkelNormieren(-0.1), 6.1831853080000005, 1e-12) << "the program's Pi, 8e-10 from pi's";
}

struct Einheit {
  const char* name;
  double faktor;
};
const Einheit kEinheiten[] = {{"Neugrad", kPi / 200}, {"Altgrad", kPi / 180}, {"Radiant", 1.0}};

TEST(PolarZuRechtwinklig, AllUnitsAndSystems) {
  // e = 100, Phi = 50 in the unit; expected (first, second) per unit and system
  // in the order math, math falsch, M31, M31 falsch.
  const double erwartet[3][4][2] = {
      {{70.71067811140324, 70.71067812590626}, {70.71067811140324, 70.71067812590626},
       {70.71067812590626, 70.71067811140324}, {70.71067812590626, 70.71067811140324}},
      {{64.27876095992514, 76.60444431922213}, {76.60444430603835, 64.27876097563697},
       {76.60444431922213, 64.27876095992514}, {64.27876097563697, 76.60444430603835}},
      {{96.49660284921133, -26.237485370392875}, {-26.237485390184318, 96.49660284383003},
       {-26.237485370392875, 96.49660284921133}, {96.49660284383003, -26.237485390184318}}};
  for (int u = 0; u < 3; ++u)
    for (int s = 0; s < 4; ++s) {
      double a = 100, b = 50;
      PolarZuRechtwinklig(a, b, {kEinheiten[u].faktor, s >= 2, s % 2 == 1});
      EXPECT_NEAR(a, erwartet[u][s][0], kGenau) << kEinheiten[u].name << " " << s;
      EXPECT_NEAR(b, erwartet[u][s][1], kGenau) << kEinheiten[u].name << " " << s;
    }
}

TEST(RechtwinkligZuPolar, AllUnitsAndSystems) {
  // (30, -40) as stored; expected Phi per unit and system, e is always 50.
  const double erwartet[3][4] = {
      {340.96655294753486, 159.03344705246516, 159.03344706552244, 340.9665529344776},
      {306.8698976527814, 143.13010234721864, 143.1301023589702, 306.8698976410298},
      {5.355890089998388, 2.4980915450016123, 2.498091545206716, 5.355890089793284}};
  for (int u = 0; u < 3; ++u)
    for (int s = 0; s < 4; ++s) {
      double a = 30, b = -40;
      RechtwinkligZuPolar(a, b, {kEinheiten[u].faktor, s >= 2, s % 2 == 1});
      EXPECT_NEAR(a, 50.0, kGenau);
      EXPECT_NEAR(b, erwartet[u][s], 1e-8) << kEinheiten[u].name << " " << s;
    }
  // The distance is the square root, to the last bit (a power of 0.5 ends in ...116).
  double a = 0.125, b = 54;
  RechtwinkligZuPolar(a, b, {kPi / 200});
  EXPECT_EQ(a, 54.00014467573212);
  a = 1e200;
  b = 0;
  RechtwinkligZuPolar(a, b, {kPi / 200});
  EXPECT_EQ(a, 0) << "overflowing squares leave the distance at 0";
}

TEST(RechtwinkligZuPolar, AStraightUpPointIsPhiZeroUnderM31AndAQuarterOtherwise) {
  double a = 0, b = 10;
  RechtwinkligZuPolar(a, b, {kPi / 200, true, false});
  EXPECT_EQ(a, 10);
  EXPECT_NEAR(b, 0, 1e-12);
  a = 0;
  b = 10;
  RechtwinkligZuPolar(a, b, {kPi / 200, false, false});
  EXPECT_EQ(a, 10);
  EXPECT_NEAR(b, 100, 1e-9);
}

TEST(RechtwinkligZuPolar, CoincidentPointsGiveAQuarterCircleOnlyWhenFalschdrehend) {
  // Expected Phi under the systems 0 .. 3 per unit; e is 0 throughout.
  const double erwartet[3][4] = {{0, 0, 100, 100}, {0, 0, 90, 90}, {0, 0, 1.570796327, 1.570796327}};
  const bool m31[4] = {false, true, false, true};
  const bool falsch[4] = {false, false, true, true};
  for (int u = 0; u < 3; ++u)
    for (int s = 0; s < 4; ++s) {
      double a = 0, b = 0;
      RechtwinkligZuPolar(a, b, {kEinheiten[u].faktor, m31[s], falsch[s]});
      EXPECT_EQ(a, 0);
      EXPECT_NEAR(b, erwartet[u][s], 1e-12) << kEinheiten[u].name << " system " << s;
    }
}

// atan works with the exact pi, the quadrant and turn steps with the
// program's Pi: the mix leaves up to about 1e-9 rad, a micrometre at a
// kilometre.
TEST(PolarRoundTrip, GivesThePointBackInEverySystemUpToThePiTrace) {
  for (const Einheit& u : kEinheiten)
    for (int s = 0; s < 4; ++s) {
      const Winkelsystem ws{u.faktor, s >= 2, s % 2 == 1};
      double a = 1234.567, b = -89.25;
      RechtwinkligZuPolar(a, b, ws);
      PolarZuRechtwinklig(a, b, ws);
      EXPECT_NEAR(a, 1234.567, 2e-6) << u.name << s;
      EXPECT_NEAR(b, -89.25, 2e-6) << u.name << s;
    }
}


TEST(ArcusSinus, WorkedValuesAndTheEdges) {
  struct Fall { double x, erwartet; };
  for (const Fall& f : {Fall{0.5, 0.5235987755982989}, Fall{-0.5, -0.5235987755982989},
                       Fall{0.9, 1.1197695149986342}, Fall{-0.9, -1.1197695149986342},
                       Fall{0.0, 0.0}})
    EXPECT_NEAR(ArcusSinus(f.x), f.erwartet, 1e-15) << f.x;
  // Exactly +-1 gives the program's quarter circle, not the one of exact pi.
  EXPECT_EQ(ArcusSinus(1.0), kPi / 2);
  EXPECT_EQ(ArcusSinus(-1.0), -kPi / 2);
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
  for (const double x : {1.5, -2.0, double{INFINITY}, double{NAN}, 1e-310, -1e-310}) EXPECT_EQ(ArcusCosinus(x), 0.0) << x;
}

TEST(WinkelAusSeiten, AngleAtTheSecondPoint) {
  struct Fall { double a1, b1, a2, b2, a3, b3, erwartet; };
  for (const Fall& f : {Fall{10, 0, 0, 0, 0, 10, 1.5707963272051035},
                       Fall{10, 0, 0, 0, 10, 10, 0.7853981633974484},
                       Fall{3, 4, 0, 0, -5, 1, 2.0169018761485065},
                       // Straight on: c = -1 and ArcusCosinus(-1) = 0, so the
                       // result is the program's Pi itself, 4e-10 from pi.
                       Fall{1, 1, 2, 2, 3, 3, 3.141592654}, Fall{1, 1, 2, 2, 0, 0, 0.0},  // folded back
                       // A zero side gives zero.
                       Fall{5, 5, 5, 5, 1, 2, 0}, Fall{0, 0, 7, 1, 7, 1, 0}, Fall{4, 4, 4, 4, 4, 4, 0}})
    EXPECT_NEAR(WinkelAusSeiten(f.a1, f.b1, f.a2, f.b2, f.a3, f.b3), f.erwartet, 1e-12)
        << f.a1 << "," << f.b1 << " " << f.a3 << "," << f.b3;
}

TEST(Tausche, ExchangesTheValues) {
  double u = 1.5, v = -2;
  Tausche(u, v);
  EXPECT_EQ(u, -2);
  EXPECT_EQ(v, 1.5);
}

}  // namespace
}  // namespace kolm::kernel

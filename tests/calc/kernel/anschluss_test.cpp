// Ties, intersection and resection; values from data/anschluss_werte.py (the
// program's Pi). Where a station is meaningful it is also checked against the
// measured distance or angles.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/kernel/anschluss.h"
#include "calc/kernel/winkelschnitte.h"

namespace kolm::kernel {
namespace {

constexpr double kPi = 3.141592654;
const Winkelsystem kNeugrad{kPi / 200};
const Winkelsystem kNeugradFalsch{kPi / 200, false, true};
const Winkelsystem kAltgrad{kPi / 180};
constexpr double kGenau = 1e-9;

struct Punkte { double a1, b1, a2, b2; };

TEST(DirekterAnschlussRechnen, WorkedStations) {
  struct Fall { double a1, b1, alpha, e, a2, b2, beta; Winkelsystem s; Punkte erwartet; };
  const Fall faelle[] = {
      {0, 0, 10, 50, 100, 0, 70, kNeugrad,
       {-10.51477447195569, -48.88189359890066, -10.514774512059077, 48.88189350823282}},
      // Falschdrehend only flips which solution is the station.
      {0, 0, 10, 50, 100, 0, 70, kNeugradFalsch,
       {-10.514774512059077, 48.88189350823282, -10.51477447195569, -48.88189359890066}},
      // beta < alpha: delta negative, the solutions are exchanged.
      {0, 0, 30, 80, 100, 0, 0, kAltgrad,
       {-47.49803140583779, 64.37341848378696, -47.49803135302494, -64.37341860479637}},
      // Beyond a quarter circle the sign of delta is flipped deliberately.
      {0, 0, 0, 150, 100, 0, 120, kAltgrad,
       {112.4999999763167, -99.21567419177649, 112.4999999763167, 99.21567419177649}},
      // No triangle, e > d / sin|delta|: ArcusSinus gives 0, the sine rule
      // makes l = d, and circles of 150 and 100 at a distance of 100 still meet.
      {0, 0, 0, 150, 100, 0, 80, kAltgrad,
       {112.50000000723308, 99.21567415672061, 112.50000000723308, -99.21567415672061}}};
  for (const Fall& f : faelle) {
    double a1 = f.a1, b1 = f.b1, a2 = f.a2, b2 = f.b2;
    EXPECT_TRUE(DirekterAnschlussRechnen(a1, b1, f.alpha, f.e, a2, b2, f.beta, f.s));
    EXPECT_NEAR(a1, f.erwartet.a1, kGenau);
    EXPECT_NEAR(b1, f.erwartet.b1, kGenau);
    EXPECT_NEAR(a2, f.erwartet.a2, kGenau);
    EXPECT_NEAR(b2, f.erwartet.b2, kGenau);
    EXPECT_NEAR(std::hypot(a1 - f.a1, b1 - f.b1), f.e, 1e-6) << "distance S-P1";
  }
}

TEST(DirekterAnschlussRechnen, FailuresZeroTheStationAndKeepP2) {
  struct Fall { const char* was; double a1, b1, alpha, e, a2, b2, beta; Winkelsystem s; };
  for (const Fall& f : {Fall{"the same angle", 5, 6, 20, 50, 100, 0, 20, kNeugrad},
                        Fall{"the same points", 3, 3, 0, 50, 3, 3, 20, kNeugrad},
                        Fall{"circles that do not meet", 0, 0, 0, 700, 100, 0, 10, kAltgrad}}) {
    double a1 = f.a1, b1 = f.b1, a2 = f.a2, b2 = f.b2;
    EXPECT_FALSE(DirekterAnschlussRechnen(a1, b1, f.alpha, f.e, a2, b2, f.beta, f.s)) << f.was;
    EXPECT_EQ(a1, 0) << f.was;
    EXPECT_EQ(b1, 0) << f.was;
    EXPECT_EQ(a2, f.a2) << f.was;
    EXPECT_EQ(b2, f.b2) << f.was;
  }
}

TEST(IndirekterAnschlussRechnen, WorkedStation) {
  double a1 = 0, b1 = 0;
  EXPECT_TRUE(IndirekterAnschlussRechnen(a1, b1, 40, 60, 50, 100, 0, 30, kAltgrad));
  EXPECT_NEAR(a1, -27.980904617130562, kGenau);
  EXPECT_NEAR(b1, -24.000795340088377, kGenau);
}

TEST(IndirekterAnschlussRechnen, AnglesSummingToAHalfCircleFail) {
  // alpha + beta = 0: the sine is exactly 0, r = GROSS, the circles miss.
  double a1 = 0, b1 = 0;
  EXPECT_FALSE(IndirekterAnschlussRechnen(a1, b1, 40, 30, -30, 100, 0, 30, kNeugrad));
  EXPECT_EQ(a1, 0);
  EXPECT_EQ(b1, 0);
  // 200 gon: with the program's Pi the sine is about -4e-10, not 0, so r is
  // huge and negative instead of GROSS; the tie fails all the same.
  EXPECT_NE(std::sin(200 * kPi / 200), 0.0);
  a1 = 0, b1 = 0;
  EXPECT_FALSE(IndirekterAnschlussRechnen(a1, b1, 40, 100, 100, 100, 0, 30, kNeugrad));
  EXPECT_EQ(a1, 0);
}

TEST(VorwaertsschnittRechnen, WorkedPointsReproduceTheAngles) {
  struct Fall { double a1, b1, a2, b2, w1, w2; Winkelsystem s; double ea, eb, w1Grad, w2Grad; };
  const Fall faelle[] = {
      {0, 0, 100, 0, 50, 50, kNeugrad, 49.99999997948965, 49.999999989744836, 45, 45},
      {10, 20, 80, -30, 60, 45, kAltgrad, 67.32050805186302, 46.07695154448814, 60, 45}};
  for (const Fall& f : faelle) {
    double a1 = f.a1, b1 = f.b1;
    EXPECT_TRUE(VorwaertsschnittRechnen(a1, b1, f.a2, f.b2, f.w1, f.w2, f.s));
    EXPECT_NEAR(a1, f.ea, kGenau);
    EXPECT_NEAR(b1, f.eb, kGenau);
    const double basis = std::atan2(f.b2 - f.b1, f.a2 - f.a1);
    const double bei1 = std::atan2(b1 - f.b1, a1 - f.a1) - basis;
    const double bei2 = basis + M_PI - std::atan2(b1 - f.b2, a1 - f.a2);
    EXPECT_NEAR(bei1 * 180 / M_PI, f.w1Grad, 1e-6) << "counter-clockwise at P1";
    EXPECT_NEAR(std::remainder(bei2, 2 * M_PI) * 180 / M_PI, f.w2Grad, 1e-6)
        << "clockwise at P2";
  }
}

TEST(VorwaertsschnittRechnen, EdgesAndTheCoordinateSystem) {
  struct Fall { const char* was; double w1, w2; Winkelsystem s; bool ok; double ea, eb; };
  const Fall faelle[] = {
      // tan(Pi) of the program's Pi is not 0: the slopes differ and P2 results.
      {"rays along the base differ only by rounding", 0, 0, kNeugrad, true, 100, 0},
      {"exactly equal slopes fail and keep the point", 100, 100, kNeugrad, false, 0, 0},
      {"M31 is ignored", 50, 50, Winkelsystem{kPi / 200, true, false}, true, 49.99999997948965, 49.999999989744836},
      {"the sense is ignored", 50, 50, Winkelsystem{kPi / 200, false, true}, true, 49.99999997948965,
       49.999999989744836},
      {"both are ignored", 50, 50, Winkelsystem{kPi / 200, true, true}, true, 49.99999997948965, 49.999999989744836},
  };
  for (const Fall& f : faelle) {
    double a1 = 0, b1 = 0;
    EXPECT_EQ(VorwaertsschnittRechnen(a1, b1, 100, 0, f.w1, f.w2, f.s), f.ok) << f.was;
    EXPECT_NEAR(a1, f.ea, kGenau) << f.was;
    EXPECT_NEAR(b1, f.eb, kGenau) << f.was;
  }
}

TEST(RueckwaertsschnittRechnen, FindsTheStationInBothUnits) {
  // S = (50, -40) against A = (0, 0), M = (50, 30), B = (110, 10); the
  // angles were measured at S counter-clockwise from M to A and from B to M.
  struct Fall { double alpha, beta; Winkelsystem s; };
  for (const Fall& f : {Fall{51.34019174590992, 50.19442890773481, kAltgrad},
                       Fall{57.04465749545547, 55.771587675260896, kNeugrad}}) {
    double a1 = 0, b1 = 0;
    EXPECT_TRUE(RueckwaertsschnittRechnen(a1, b1, 50, 30, 110, 10, f.alpha, f.beta, f.s));
    EXPECT_NEAR(a1, 49.99999998475737, kGenau);
    EXPECT_NEAR(b1, -39.99999998841822, kGenau);
    EXPECT_NEAR(a1, 50, 1e-7);
    EXPECT_NEAR(b1, -40, 1e-7);
  }
}

TEST(RueckwaertsschnittRechnen, DegenerateConfigurationsStillSucceed) {
  struct Fall { double a1, b1, am, bm, a3, b3, alpha, beta, ea, eb, toleranz; const char* was; };
  const Fall faelle[] = {
      {0, 0, 0, 0, 100, 0, 30, 40, -1.4210854715202004e-14, 0.0, kGenau, "M = A: k = GROSS"},
      {50, 0, 0, 50, -50, 0, 45, 45, 2.051032765848504e-08, 49.99999994872414, 1e-6,
       "danger circle"},
      {0, 0, 50, 0, 100, 0, 10, 20, 148.07764279628887, -67.08905889326206, 1e-7,
       "collinear known points"},
      {0, 0, 50, 30, 110, 10, 0, 0, 51193685224.1194, -17064561718.03979, 1e3,
       "both angles 0"}};
  for (const Fall& f : faelle) {
    double a1 = f.a1, b1 = f.b1;
    EXPECT_TRUE(RueckwaertsschnittRechnen(a1, b1, f.am, f.bm, f.a3, f.b3, f.alpha, f.beta,
                                          kAltgrad))
        << f.was;
    EXPECT_NEAR(a1, f.ea, f.toleranz) << f.was;
    EXPECT_NEAR(b1, f.eb, f.toleranz) << f.was;
  }
}

TEST(RueckwaertsschnittRechnen, CollapsingSlopesGiveZeroAndFalse) {
  // Opposite angles make the two rays parallel: the determinant is exactly 0.
  double a1 = 0, b1 = 0;
  EXPECT_FALSE(RueckwaertsschnittRechnen(a1, b1, 50, 10, 100, 0, -170, 170, kAltgrad));
  EXPECT_EQ(a1, 0);
  EXPECT_EQ(b1, 0);
}

}  // namespace
}  // namespace kolm::kernel

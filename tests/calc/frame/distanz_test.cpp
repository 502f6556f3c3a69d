// Distanz as the user opens it from the menu and fills it. Its captions, a
// worked M31 case and a polar table are covered end to end by the
// rechnen_anschluss_polar_m31 macro.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr double kGonProRad = 200 / kPi;
constexpr double kOffen = std::numeric_limits<double>::quiet_NaN();  // not checked

TEST(Distanz, LengthDirectionGradientAndDifferencesInEachSystemAndTable) {
  struct Fall {
    const char* name;
    bool m31;
    double p1[2], p2[2];
    double erwartet[5];  // distance, angle, gradient in percent, the two differences
  };
  const Fall faelle[] = {
      {"system 0", false, {100, 200}, {130, 240},
       {50, std::atan2(40.0, 30.0) * kGonProRad, 100.0 * 40 / 30, 30, 40}},
      // 30 to the right (Y), 40 up (X): the tangent of the system's own angle
      {"M31 runs clockwise from the axis up", true, {0, 0}, {30, 40},
       {50, std::atan2(30.0, 40.0) * kGonProRad, 100.0 * 30 / 40, kOffen, kOffen}},
      {"identical points give zero without a box", false, {5, 5}, {5, 5}, {0, kOffen, kOffen, 0, 0}},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    u.zustand.M31 = f.m31 ? core::Wahr : core::Falsch;
    u.punkt(1, f.p1[0], f.p1[1]);
    u.punkt(2, f.p2[0], f.p2[1]);
    RechenDialog& d = u.oeffnen("MnuGerDist", "Distanz");
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    for (int i = 0; i < 5; ++i)
      if (!std::isnan(f.erwartet[i])) EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", i)), f.erwartet[i], 1e-5) << i;
  }
}

TEST(Distanz, HasNeitherSpeichernNorSkizze) {
  MenueUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerDist", "Distanz");
  EXPECT_EQ(d.control("ErgLabel", 2).captionText(), "Steigung");
  EXPECT_EQ(d.find("Speichern"), nullptr);
  EXPECT_EQ(d.find("Skizze"), nullptr);
}

}  // namespace
}  // namespace kolm::calc::testing

// Distanz as the user opens it from the menu and fills it.
#include <gtest/gtest.h>

#include <cmath>

#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"
#include "umgebung.h"

namespace kolm::calc::testing {
namespace {

struct DistanzUmgebung : Umgebung {
  DistanzUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  forms::Form& oeffnen() {
    anwendung.main()->control("MnuGerDist").click();
    forms::Form* f = forms.find("Distanz");
    EXPECT_NE(f, nullptr);
    return *f;
  }
  static double wert(forms::Form& f, int i) { return numbers::ZahlLesen(f.control("Erg", i).captionText()); }
};

constexpr double kGonProRad = 200 / 3.141592654;

TEST(Distanz, TheMenuOpensItWithItsCaptionsAndNeitherSpeichernNorSkizze) {
  DistanzUmgebung u;
  forms::Form& f = u.oeffnen();
  EXPECT_EQ(f.caption(), "Distanz zwischen 2 Punkten");
  EXPECT_EQ(f.control("Punkt1").captionText(), "Punkt P1");
  EXPECT_EQ(f.control("Punkt2").captionText(), "Punkt P2");
  EXPECT_EQ(f.control("ErgLabel", 0).captionText(), "Distanz");
  EXPECT_EQ(f.control("ErgLabel", 1).captionText(), "Winkel");
  EXPECT_EQ(f.control("ErgLabel", 2).captionText(), "Steigung");
  EXPECT_EQ(f.control("ErgLabel", 3).captionText(), "Delta X");
  EXPECT_EQ(f.control("ErgLabel", 4).captionText(), "Delta Y");
  EXPECT_EQ(f.find("Speichern"), nullptr);
  EXPECT_EQ(f.find("Skizze"), nullptr);
}

TEST(Distanz, ReportsLengthDirectionGradientAndDifferences) {
  DistanzUmgebung u;  // Neugrad, system 0
  u.punkt(1, 100, 200);
  u.punkt(2, 130, 240);
  forms::Form& f = u.oeffnen();
  f.control("PP1Nr").setText("1");
  f.control("PP2Nr").setText("2");
  f.control("Berechnen").click();
  EXPECT_EQ(f.control("Erg", 0).captionText(), "50.000");
  EXPECT_NEAR(DistanzUmgebung::wert(f, 1), std::atan2(40.0, 30.0) * kGonProRad, 1e-6);
  EXPECT_NEAR(DistanzUmgebung::wert(f, 2), 100.0 * 40 / 30, 1e-5) << "rise over run in percent";
  EXPECT_EQ(f.control("Erg", 3).captionText(), "30.000");
  EXPECT_EQ(f.control("Erg", 4).captionText(), "40.000");
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(Distanz, UnderM31TheAngleRunsClockwiseFromTheAxisUp) {
  DistanzUmgebung u;
  u.zustand.M31 = core::Wahr;
  u.punkt(1, 0, 0);
  u.punkt(2, 30, 40);  // 30 to the right (Y), 40 up (X)
  forms::Form& f = u.oeffnen();
  EXPECT_EQ(f.control("ErgLabel", 3).captionText(), "Delta Y");
  EXPECT_EQ(f.control("ErgLabel", 4).captionText(), "Delta X");
  f.control("PP1Nr").setText("1");
  f.control("PP2Nr").setText("2");
  f.control("Berechnen").click();
  EXPECT_NEAR(DistanzUmgebung::wert(f, 1), std::atan2(30.0, 40.0) * kGonProRad, 1e-6);
  EXPECT_NEAR(DistanzUmgebung::wert(f, 2), 100.0 * 30 / 40, 1e-5) << "the tangent of the system's own angle";
}

TEST(Distanz, APolarTableIsMeasuredRectangularAndKeepsItsRecordsPolar) {
  DistanzUmgebung u;
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 0);    // (10, 0)
  u.punkt(2, 10, 100);  // (0, 10)
  forms::Form& f = u.oeffnen();
  f.control("PP1Nr").setText("1");
  f.control("PP2Nr").setText("2");
  f.control("Berechnen").click();
  EXPECT_NEAR(DistanzUmgebung::wert(f, 0), std::sqrt(200.0), 1e-6);
  EXPECT_NEAR(DistanzUmgebung::wert(f, 1), 150, 1e-6);
  EXPECT_NEAR(DistanzUmgebung::wert(f, 3), -10, 1e-6);
  EXPECT_NEAR(DistanzUmgebung::wert(f, 4), 10, 1e-6);
  auto& d = static_cast<RechenDialog&>(f);
  EXPECT_NEAR(d.Eingabe(1).A, 10, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, 100, 1e-7);
}

TEST(Distanz, IdenticalPointsGiveZeroWithoutAMessage) {
  DistanzUmgebung u;
  u.punkt(1, 5, 5);
  forms::Form& f = u.oeffnen();
  f.control("PP1Nr").setText("1");
  f.control("PP2Nr").setText("1");
  f.control("Berechnen").click();
  EXPECT_EQ(f.control("Erg", 0).captionText(), "0.000");
  EXPECT_TRUE(u.meldungen().empty());
}

}  // namespace
}  // namespace kolm::calc::testing

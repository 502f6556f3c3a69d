// UmkreisMittelpunkt: the circle through three points; worked values from
// data/werte.py and, for the 3-4-5 triangle, by hand.
#include "kreise_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct UmkreisTest : ::testing::Test {
  KreiseUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisUmkreis", "UmkreisMittelpunkt"); }
  RechenDialog& rechnen(const char* a, const char* b, const char* c) {
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText(a);
    d.control("PP2Nr").setText(b);
    d.control("PP3Nr").setText(c);
    d.control("Berechnen").click();
    return d;
  }
  // (2, 1), (9, 4), (3, 8) as points 1 to 3.
  RechenDialog& gerechnet() {
    u.punkt(1, 2, 1);
    u.punkt(2, 9, 4);
    u.punkt(3, 3, 8);
    return rechnen("1", "2", "3");
  }
};

TEST_F(UmkreisTest, TheMenuOpensItWithItsCaptions) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Umkreis-Mittelpunkt aus drei Punkten");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: Kreis");
  EXPECT_EQ(d.control("ErgLabel", 0).captionText(), "Radius");
  EXPECT_EQ(d.control("LabelA").captionText(), "MX =");
  EXPECT_EQ(d.control("LabelB").captionText(), "MY =");
  EXPECT_NE(d.find("PP3Nr"), nullptr);
}

TEST_F(UmkreisTest, GivesCentreAndRadius) {
  RechenDialog& d = gerechnet();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA").captionText(), "4.783");
  EXPECT_EQ(d.control("ErgB").captionText(), "4.174");
  EXPECT_NEAR(d.Ergebnis().A, 4.782608696, 1e-8);
  EXPECT_NEAR(d.Ergebnis().B, 4.173913043, 1e-8);
  EXPECT_NEAR(KreiseUmgebung::zahl(d.control("Erg", 0)), 4.220975617, 1e-6);
  EXPECT_EQ(d.control("PktNr").text(), "4");
}

TEST_F(UmkreisTest, APointTypedByHandIsUsed) {
  u.punkt(1, 0, 0);
  u.punkt(2, 8, 0);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("0");
    f.control("TextB").setText("6");
    f.control("OK").click();
  });
  d.control("GetPP3").click();
  d.control("Berechnen").click();
  // A right angle at P1: the centre halves the hypotenuse of 10.
  EXPECT_NEAR(d.Ergebnis().A, 4, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 3, 1e-9);
  EXPECT_EQ(d.control("Erg", 0).captionText(), "5.000");
}

TEST_F(UmkreisTest, StoresUnderTheOfferedNumberAndAsksForAUsedOne) {
  RechenDialog& d = gerechnet();
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[4].A, 4.782608696, 1e-8);
  d.control("PktNr").setText("2");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[2].A, 9);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[2].B, 4.173913043, 1e-8);
}

TEST_F(UmkreisTest, UnderM31TheCaptionsAreMyMx) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = gerechnet();
  EXPECT_EQ(d.control("LabelA").captionText(), "MY =");
  EXPECT_EQ(d.control("LabelB").captionText(), "MX =");
  EXPECT_NEAR(d.Ergebnis().A, 4.782608696, 1e-8);
}

TEST_F(UmkreisTest, APolarTableGetsAPolarCentre) {
  u.zustand.Polar = core::Wahr;
  EXPECT_EQ(oeffnen().control("LabelA").captionText(), "M-e =");
  u.polarPunkt(1, 2, 1);
  u.polarPunkt(2, 9, 4);
  u.polarPunkt(3, 3, 8);
  RechenDialog& d = rechnen("1", "2", "3");
  EXPECT_EQ(d.control("LabelA").captionText(), "M-e =");
  EXPECT_EQ(d.control("LabelB").captionText(), "M-Phi =");
  EXPECT_NEAR(d.Ergebnis().A, std::hypot(4.782608696, 4.173913043), 1e-7);
  EXPECT_NEAR(d.Ergebnis().B, std::atan2(4.173913043, 4.782608696) * 200 / kPi, 1e-6);
  EXPECT_NEAR(KreiseUmgebung::zahl(d.control("Erg", 0)), 4.220975617, 1e-6);
  EXPECT_NEAR(d.Eingabe(2).A, u.zustand.Punkte[3].A, 1e-9);
}

TEST_F(UmkreisTest, CollinearOrEqualPointsGiveNoCircle) {
  u.punkt(1, 0, 0);
  u.punkt(2, 1, 1);
  u.punkt(3, 3, 3);
  RechenDialog& d = rechnen("1", "2", "3");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Kreis vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Umkreis-Mittelpunkt aus drei Punkten");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "");
  d.control("PP3Nr").setText("1");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, "Kein Kreis vorhanden!");
}

}  // namespace
}  // namespace kolm::calc::testing

// KreisKreis: two circles cut; worked values from data/werte.py.
#include "kreise_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct KreisKreisTest : ::testing::Test {
  KreiseUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisKreisKreis", "KreisKreis"); }
  // M1 (100, 200) r 30 as point 1, M2 (140, 230) r 25 as point 2.
  RechenDialog& gerechnet() {
    u.punkt(1, 100, 200, 7);
    u.punkt(2, 140, 230, 9);
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Param", 0).setText("30");
    d.control("Param", 1).setText("25");
    d.control("Berechnen").click();
    return d;
  }
};

TEST_F(KreisKreisTest, TheMenuOpensItWithItsCaptions) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Schnittpunkte zweier Kreise");
  EXPECT_EQ(d.control("Punkt1").captionText(), "M&1 Nr.:");
  EXPECT_EQ(d.control("Punkt2").captionText(), "M&2 Nr.:");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&Radius");
  EXPECT_EQ(d.control("Label", 1).captionText(), "R&adius");
  EXPECT_EQ(d.control("Ergebnis", 0).captionText(), "Ergebnis 1.Punkt");
  EXPECT_EQ(d.control("Ergebnis", 1).captionText(), "Ergebnis 2.Punkt");
  EXPECT_EQ(d.control("Speichern", 0).captionText(), "&Speichern");
  EXPECT_EQ(d.control("Speichern", 1).captionText(), "S&peichern");
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "X1 =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "Y2 =");
}

TEST_F(KreisKreisTest, FetchedCentresGiveTheLeftPointOfTheLargerCircleFirst) {
  u.punkt(5, 1, 1);  // the highest used number: 6 is offered
  RechenDialog& d = gerechnet();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "115.361");
  EXPECT_EQ(d.control("ErgB", 0).captionText(), "225.769");
  EXPECT_EQ(d.control("ErgA", 1).captionText(), "129.039");
  EXPECT_EQ(d.control("ErgB", 1).captionText(), "207.531");
  EXPECT_NEAR(d.Ergebnis(0).A, 115.360592131, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 207.530789508, 1e-6);
  EXPECT_EQ(d.Ergebnis(0).C, 0) << "the centres' heights are not taken over";
  EXPECT_EQ(d.control("PktNr", 0).text(), "6");
  EXPECT_EQ(d.control("PktNr", 1).text(), "6");
  EXPECT_EQ(d.activeControl(), &d.control("PktNr", 0));
}

TEST_F(KreisKreisTest, SwappingTheCirclesKeepsTheOrder) {
  u.punkt(1, 140, 230);
  u.punkt(2, 100, 200);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("25");
  d.control("Param", 1).setText("30");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 115.360592131, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 225.769210492, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 129.039407869, 1e-6);
}

TEST_F(KreisKreisTest, ACentreTypedByHandIsUsed) {
  u.punkt(2, 140, 230);
  RechenDialog& d = oeffnen();
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("100");
    f.control("TextB").setText("200");
    f.control("OK").click();
  });
  d.control("GetPP1").click();
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("30");
  d.control("Param", 1).setText("25");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 115.360592131, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 207.530789508, 1e-6);
}

TEST_F(KreisKreisTest, EachPointIsStoredByItsButtonAndTheSecondUnderTheSameNumberAsks) {
  RechenDialog& d = gerechnet();
  ASSERT_EQ(d.control("PktNr", 0).text(), "3");
  d.control("Speichern", 0).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 115.360592131, 1e-6);
  EXPECT_TRUE(u.meldungen().empty());
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern", 1).click();
  ASSERT_EQ(u.meldungen().size(), 1u) << "the overwrite prompt";
  EXPECT_NEAR(u.zustand.Punkte[3].A, 115.360592131, 1e-6) << "No keeps the first point";
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern", 1).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 129.039407869, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 207.530789508, 1e-6);
}

TEST_F(KreisKreisTest, UnderM31OnlyTheCaptionsChange) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = gerechnet();
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "Y1 =");
  EXPECT_EQ(d.control("LabelB", 0).captionText(), "X1 =");
  EXPECT_EQ(d.control("LabelA", 1).captionText(), "Y2 =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "X2 =");
  EXPECT_NEAR(d.Ergebnis(0).A, 115.360592131, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 225.769210492, 1e-6);
}

TEST_F(KreisKreisTest, APolarTableGetsPolarResultsAndKeepsItsInputsPolar) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 100, 200);
  u.polarPunkt(2, 140, 230);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("30");
  d.control("Param", 1).setText("25");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "e1 =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "Phi2 =");
  EXPECT_NEAR(d.Ergebnis(0).A, 253.534618195, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 69.927190780, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 244.377162143, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 64.585884026, 1e-6);
  EXPECT_NEAR(d.Eingabe(0).A, u.zustand.Punkte[1].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, u.zustand.Punkte[1].B, 1e-7);
}

TEST_F(KreisKreisTest, TouchingCirclesGiveTwoEqualPointsWithoutAMessage) {
  u.punkt(1, 0, 0);
  u.punkt(2, 10, 0);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("6");
  d.control("Param", 1).setText("4");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis(0).A, 6, 1e-9);
  EXPECT_NEAR(d.Ergebnis(1).A, 6, 1e-9);
  EXPECT_NEAR(d.Ergebnis(0).B, 0, 1e-6);
}

TEST_F(KreisKreisTest, OneCircleInsideTheOtherOrARadiusZeroIsNoIntersection) {
  u.punkt(1, 0, 0);
  u.punkt(2, 1, 0);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("10");
  d.control("Param", 1).setText("2");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Kreisschnitt vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Schnittpunkte zweier Kreise");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "") << "the result fields stay";
  // The centre of the second circle lies on the first, but radius 0 is no circle.
  d.control("Param", 0).setText("1");
  d.control("Param", 1).setText("0");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, "Kein Kreisschnitt vorhanden!");
}

}  // namespace
}  // namespace kolm::calc::testing

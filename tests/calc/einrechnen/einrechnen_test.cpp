// Einrechnen: the point at distance e along the line from A, in mode
// Fortlaufend the start of the next step. Expected values: data/werte.py.
#include <string>

#include "einrechnen_umgebung.h"
#include "points/koordinaten.h"

namespace kolm::calc::testing {
namespace {

struct EinrechnenTest : ::testing::Test {
  EinrechnenUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGerEinrechnen", "Einrechnen"); }
  // A = point 1 (100, 200), E = point 2 (160, 280): direction (0.6, 0.8).
  RechenDialog& zweiPunkte(const char* e) {
    u.punkt(1, 100, 200, 7);
    u.punkt(2, 160, 280);
    RechenDialog& d = oeffnen();
    d.control("G1P1Nr").setText("1");
    d.control("G1P2Nr").setText("2");
    d.control("Param", 0).setText(e);
    d.control("Berechnen").click();
    return d;
  }
  // A = point 1 (10, 20), the line by an entry with T1, e = 10.
  RechenDialog& vonA(int eintrag, const char* t1) {
    u.punkt(1, 10, 20);
    RechenDialog& d = oeffnen();
    d.control("ComboGerade1").setListIndex(eintrag);
    d.control("G1P1Nr").setText("1");
    d.control("TextG1_1").setText(t1);
    d.control("Param", 0).setText("10");
    d.control("Berechnen").click();
    return d;
  }
};

TEST_F(EinrechnenTest, TheMenuOpensItWithTheLineInEightWaysWithA) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Polares Einrechnen");
  EXPECT_EQ(d.control("OptionPolar").value(), 1);
  EXPECT_EQ(d.control("OptionPolar").captionText(), "&Polar");
  EXPECT_EQ(d.control("OptionFortlaufend").captionText(), "&Fortlaufend");
  EXPECT_EQ(d.control("Gerade1").captionText(), "Gerade g");
  EXPECT_EQ(d.control("LabelG1P1Nr").captionText(), "&A Nr.:");
  EXPECT_EQ(d.control("LabelG1P2Nr").captionText(), "&E Nr.:");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&Distanz: e=");
  const forms::Control& combo = d.control("ComboGerade1");
  ASSERT_EQ(combo.listCount(), 8);
  EXPECT_EQ(combo.listIndex(), 0);
  EXPECT_EQ(combo.list()[0], "zwei Punkte: A, E");
  EXPECT_EQ(combo.list()[4], "A und Winkel");
  EXPECT_EQ(combo.list()[7], "Waagrecht durch A");
  EXPECT_EQ(d.control("LabelA").captionText(), "&X =");
  d.control("ComboGerade1").setListIndex(4);
  EXPECT_FALSE(d.control("G1P2Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungs&winkel:");
}

TEST_F(EinrechnenTest, TheOptionsSetTheCaption) {
  RechenDialog& d = oeffnen();
  d.control("OptionFortlaufend").click();
  EXPECT_EQ(d.caption(), "Fortlaufendes Einrechnen");
  d.control("OptionPolar").click();
  EXPECT_EQ(d.caption(), "Polares Einrechnen");
}

TEST_F(EinrechnenTest, FetchedPointsGiveThePointAtTheDistance) {
  u.punkt(9, 1, 1);  // the highest used number: 10 is offered
  RechenDialog& d = zweiPunkte("25");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA").captionText(), "115.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "220.000");
  EXPECT_EQ(d.control("LabelA").captionText(), "X =");
  EXPECT_EQ(d.control("LabelB").captionText(), "Y =");
  EXPECT_EQ(d.Ergebnis().C, 0) << "A's height is not taken over";
  EXPECT_EQ(d.control("PktNr").text(), "10");
  EXPECT_TRUE(d.control("Speichern").isDefault());
  EXPECT_EQ(d.control("G1P1Nr").text(), "1") << "mode Polar keeps A";
}

TEST_F(EinrechnenTest, ANegativeDistanceGoesBackAndZeroStaysAtA) {
  RechenDialog& d = zweiPunkte("-50");
  EXPECT_NEAR(d.Ergebnis().A, 70, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 160, 1e-6);
  d.control("Param", 0).setText("");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis().A, 100, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 200, 1e-9);
}

TEST_F(EinrechnenTest, StoresUnderTheOfferedNumberAndAsksForAUsedOne) {
  RechenDialog& d = zweiPunkte("25");
  ASSERT_EQ(d.control("PktNr").text(), "3");
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 115, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 220, 1e-6);
  d.control("PktNr").setText("2");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.zustand.Punkte[2].A, 160) << "No keeps the point";
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[2].A, 115, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[2].B, 220, 1e-6);
}

TEST_F(EinrechnenTest, FortlaufendGoesOnFromTheLastResult) {
  u.punkt(1, 10, 20, 4);
  RechenDialog& d = oeffnen();
  d.control("OptionFortlaufend").click();
  d.control("ComboGerade1").setListIndex(3);  // slope k = 2
  d.control("G1P1Nr").setText("1");
  d.control("TextG1_1").setText("2");
  d.control("Param", 0).setText("10");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 14.472136, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 28.944272, 1e-6);
  EXPECT_EQ(d.control("G1P1Nr").text(), "");
  EXPECT_EQ(d.Eingabe(0).Nummer, -1);
  EXPECT_NEAR(d.Eingabe(0).A, 14.472136, 1e-6);
  EXPECT_NE(d.control("G1P1").captionText().find("14.472136"), std::string::npos);
  EXPECT_EQ(d.activeControl(), &d.control("PktNr"));
  d.control("Berechnen").click();  // the emptied number fetches nothing
  EXPECT_NEAR(d.Ergebnis().A, 18.944272, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 37.888544, 1e-6);
  EXPECT_EQ(d.control("ErgB").captionText(), "37.889");
}

TEST_F(EinrechnenTest, AnAngleKeepsItsDirectionInEachQuadrant) {
  struct Fall {
    const char* winkel;
    double a, b;
  };
  for (const Fall f : {Fall{"50", 17.071068, 27.071068}, Fall{"150", 2.928932, 27.071068},
                       Fall{"250", 2.928932, 12.928932}, Fall{"350", 17.071068, 12.928932}}) {
    RechenDialog& d = vonA(4, f.winkel);
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-6) << f.winkel;
    EXPECT_NEAR(d.Ergebnis().B, f.b, 1e-6) << f.winkel;
  }
}

TEST_F(EinrechnenTest, UnderM31TheAngleTurnsFromTheAxisUpByHalfCircles) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = vonA(4, "50");
  EXPECT_EQ(d.control("LabelA").captionText(), "Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "X =");
  EXPECT_NEAR(d.Ergebnis().A, 17.071068, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 27.071068, 1e-6);
  // The half circle is chosen as under the math system: 150 gon runs to
  // negative a although the system's 150 gon points to positive a.
  RechenDialog& d2 = vonA(4, "150");
  EXPECT_NEAR(d2.Ergebnis().A, 2.928932, 1e-6);
  EXPECT_NEAR(d2.Ergebnis().B, 27.071068, 1e-6);
}

TEST_F(EinrechnenTest, APolarTableGivesAPolarResultAndSendsTheLineBack) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 30, 40);
  u.polarPunkt(2, 90, 120);
  RechenDialog& d = oeffnen();
  d.control("G1P1Nr").setText("1");
  d.control("G1P2Nr").setText("2");
  d.control("Param", 0).setText("50");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA").captionText(), "e =");
  EXPECT_EQ(d.control("LabelB").captionText(), "Phi =");
  EXPECT_NEAR(d.Ergebnis().A, 100, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 59.033447052, 1e-6);
  EXPECT_NEAR(d.Eingabe(0).A, 50, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, 59.033447052, 1e-6);
  EXPECT_NEAR(d.Eingabe(1).A, 150, 1e-9);
  // Continued, A takes the polar result as it is.
  d.control("OptionFortlaufend").click();
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Eingabe(0).A, 100, 1e-6);
  EXPECT_NEAR(d.Eingabe(0).B, 59.033447052, 1e-6);
  EXPECT_NEAR(d.Ergebnis().A, 100, 1e-6);
}

TEST_F(EinrechnenTest, WithoutADirectionTheMessageAndNoResult) {
  u.punkt(1, 100, 200);
  RechenDialog& d = oeffnen();
  d.control("G1P1Nr").setText("1");
  d.control("G1P2Nr").setText("1");
  d.control("Param", 0).setText("10");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Einrechnen möglich, da keine Richtung vorhanden ist!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Polares Einrechnen");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "");
  EXPECT_EQ(d.control("PktNr").text(), "");
  d.control("OptionFortlaufend").click();
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.title, "Fortlaufendes Einrechnen");
}

TEST_F(EinrechnenTest, AFailedContinuedRunLeavesAPolarARectangular) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 30, 40);
  RechenDialog& d = oeffnen();
  d.control("OptionFortlaufend").click();
  d.control("G1P1Nr").setText("1");
  d.control("G1P2Nr").setText("1");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_NEAR(d.Eingabe(0).A, 30, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, 40, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).A, 50, 1e-9) << "E goes back";
}

}  // namespace
}  // namespace kolm::calc::testing

// GeradeKreis: a line given in one of nine ways cuts a circle. Worked by
// hand: circle (50, 50) r 13 and the line b = 45 are 5 apart, so the points
// lie 12 on either side of the foot (50, 45); circle (10, 10) r 5 and the
// line through (4, 2) and (16, 18), of direction (0.6, 0.8), pass through
// the centre, so the points are (13, 14) ahead and (7, 6) behind.
#include "kreise_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct GeradeKreisTest : ::testing::Test {
  KreiseUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisKreisGerade", "GeradeKreis"); }
  RechenDialog& mitKreis(const char* m, const char* r) {
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText(m);
    d.control("Param", 0).setText(r);
    return d;
  }
  // Circle (10, 10) r 5 as point 1, the line through points 2 and 3.
  RechenDialog& durchDieMitte() {
    u.punkt(1, 10, 10, 3);
    u.punkt(2, 4, 2, 4);
    u.punkt(3, 16, 18, 5);
    RechenDialog& d = mitKreis("1", "5");
    d.control("G1P1Nr").setText("2");
    d.control("G1P2Nr").setText("3");
    d.control("Berechnen").click();
    return d;
  }
  // Circle (50, 50) r 13 as point 1, the line from point 2 (30, 45) by entry.
  // Entry 8 overwrites the first point's record, so it comes last in a row.
  RechenDialog& waagrecht(int eintrag, const char* t1, const char* t2) {
    u.punkt(1, 50, 50);
    u.punkt(2, 30, 45);
    RechenDialog& d = mitKreis("1", "13");
    d.control("ComboGerade1").setListIndex(eintrag);
    d.control("G1P1Nr").setText("2");
    d.control("TextG1_1").setText(t1);
    d.control("TextG1_2").setText(t2);
    d.control("Berechnen").click();
    return d;
  }
};

TEST_F(GeradeKreisTest, TheMenuOpensItWithTwoPointsChosen) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Kreis-Geraden Schnittpunkt");
  EXPECT_EQ(d.control("Punkt1").captionText(), "&M Nr.:");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&Radius");
  EXPECT_EQ(d.control("LabelG1P1Nr").captionText(), "P&1 Nr.:");
  EXPECT_EQ(d.control("LabelG1P2Nr").captionText(), "P&2 Nr.:");
  EXPECT_EQ(d.control("ComboGerade1").listIndex(), 0);
  EXPECT_EQ(d.control("ComboGerade1").listCount(), 9);
  EXPECT_TRUE(d.control("G1P2Nr").visible());
  EXPECT_FALSE(d.control("TextG1_1").visible());
  EXPECT_EQ(d.control("Speichern", 1).captionText(), "S&peichern");
}

TEST_F(GeradeKreisTest, TheEntriesShowTheirFieldsAndCaptions) {
  RechenDialog& d = oeffnen();
  d.control("ComboGerade1").setListIndex(1);
  EXPECT_FALSE(d.control("G1P2Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungs&verhältnis:");
  EXPECT_EQ(d.control("LabelG1_2").captionText(), "zu");
  d.control("ComboGerade1").setListIndex(2);
  EXPECT_TRUE(d.control("TextG1_1").visible());
  EXPECT_FALSE(d.control("TextG1_2").visible());
  d.control("ComboGerade1").setListIndex(8);
  EXPECT_FALSE(d.control("G1P1Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungsfaktor &k =");
  EXPECT_EQ(d.control("LabelG1_2").captionText(), "&d =");
}

TEST_F(GeradeKreisTest, ALineThroughTheCentreGivesThePointAheadFirst) {
  u.punkt(9, 1, 1);  // the highest used number: 10 is offered
  RechenDialog& d = durchDieMitte();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "13.000");
  EXPECT_EQ(d.control("ErgB", 0).captionText(), "14.000");
  EXPECT_EQ(d.control("ErgA", 1).captionText(), "7.000");
  EXPECT_EQ(d.control("ErgB", 1).captionText(), "6.000");
  EXPECT_EQ(d.Ergebnis(0).C, 0) << "heights are not taken over";
  EXPECT_EQ(d.control("PktNr", 0).text(), "10");
  EXPECT_EQ(d.control("PktNr", 1).text(), "10");
}

TEST_F(GeradeKreisTest, TheWaysOfGivingTheLineMeetTheSamePoints) {
  struct Fall {
    int eintrag;
    const char *t1, *t2;
    double a1;  // first point's a: 62 ahead along +a, 38 along -a (to Pi's ten digits)
  };
  for (const Fall f : {Fall{1, "0", "1", 62}, Fall{2, "0", "", 62}, Fall{3, "0", "", 62}, Fall{4, "0", "", 62},
                       Fall{5, "-2", "0", 38}, Fall{7, "", "", 62}, Fall{8, "0", "45", 62}}) {
    RechenDialog& d = waagrecht(f.eintrag, f.t1, f.t2);
    EXPECT_TRUE(u.meldungen().empty()) << f.eintrag;
    EXPECT_NEAR(d.Ergebnis(0).A, f.a1, 1e-6) << f.eintrag;
    EXPECT_NEAR(d.Ergebnis(0).B, 45, 1e-6) << f.eintrag;
    EXPECT_NEAR(d.Ergebnis(1).A, 100 - f.a1, 1e-6) << f.eintrag;
  }
}

TEST_F(GeradeKreisTest, APointTypedByHandIsUsed) {
  u.punkt(1, 10, 10);
  u.punkt(3, 16, 18);
  RechenDialog& d = mitKreis("1", "5");
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("4");
    f.control("TextB").setText("2");
    f.control("OK").click();
  });
  d.control("GetG1P1").click();
  d.control("G1P2Nr").setText("3");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 13, 1e-9);
  EXPECT_NEAR(d.Ergebnis(0).B, 14, 1e-9);
}

TEST_F(GeradeKreisTest, StoresUnderTheOfferedNumberAndAsksForTheUsedOne) {
  RechenDialog& d = durchDieMitte();
  ASSERT_EQ(d.control("PktNr", 0).text(), "4");
  d.control("Speichern", 0).click();
  EXPECT_NEAR(u.zustand.Punkte[4].A, 13, 1e-9);
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern", 1).click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_NEAR(u.zustand.Punkte[4].A, 13, 1e-9);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern", 1).click();
  EXPECT_NEAR(u.zustand.Punkte[4].A, 7, 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[4].B, 6, 1e-9);
}

TEST_F(GeradeKreisTest, UnderM31TheAngleRunsFromTheAxisUpClockwise) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = waagrecht(4, "100", "");  // 100 gon: along a
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "Y1 =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "X2 =");
  EXPECT_NEAR(d.Ergebnis(0).A, 62, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 45, 1e-6);
}

TEST_F(GeradeKreisTest, APolarTableSendsTheLineBackButKeepsTheCentreRectangular) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 10, 10);
  u.polarPunkt(2, 4, 2);
  u.polarPunkt(3, 16, 18);
  RechenDialog& d = mitKreis("1", "5");
  d.control("G1P1Nr").setText("2");
  d.control("G1P2Nr").setText("3");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "e1 =");
  EXPECT_NEAR(d.Ergebnis(0).A, std::hypot(13.0, 14.0), 1e-7);
  EXPECT_NEAR(d.Ergebnis(0).B, std::atan2(14.0, 13.0) * 200 / kPi, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, std::hypot(7.0, 6.0), 1e-7);
  EXPECT_NEAR(d.Eingabe(1).A, u.zustand.Punkte[2].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, u.zustand.Punkte[2].B, 1e-7);
  EXPECT_NEAR(d.Eingabe(2).B, u.zustand.Punkte[3].B, 1e-7);
  EXPECT_NEAR(d.Eingabe(0).A, 10, 1e-9) << "the centre stays rectangular";
  EXPECT_NEAR(d.Eingabe(0).B, 10, 1e-9);
}

TEST_F(GeradeKreisTest, ALineMissingTheCircleOrWithoutDirectionIsNoIntersection) {
  RechenDialog& d = waagrecht(7, "", "");
  d.control("Param", 0).setText("4.9");  // the line is 5 from the centre
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Kreis-Geradenschnitt vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Kreis-Geraden Schnittpunkt");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_NEAR(KreiseUmgebung::zahl(d.control("ErgA", 0)), 62, 1e-3) << "the fields stay";
  d.control("ComboGerade1").setListIndex(1);  // ratio 0 to 0: no direction
  d.control("TextG1_1").setText("0");
  d.control("TextG1_2").setText("0");
  d.control("Param", 0).setText("13");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, "Kein Kreis-Geradenschnitt vorhanden!");
}

}  // namespace
}  // namespace kolm::calc::testing

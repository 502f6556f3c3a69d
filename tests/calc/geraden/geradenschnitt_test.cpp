// FormGeradenschnitt: two lines, each given in one of nine ways, meet.
// Worked values from data/werte.py.
#include "geraden_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct GeradenschnittTest : ::testing::Test {
  GeradenUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGer4Pkt", "FormGeradenschnitt"); }
  RechenDialog& mitPunkten(const char* p1, const char* p2, const char* p3, const char* p4) {
    RechenDialog& d = oeffnen();
    d.control("G1P1Nr").setText(p1);
    d.control("G1P2Nr").setText(p2);
    d.control("G2P1Nr").setText(p3);
    d.control("G2P2Nr").setText(p4);
    return d;
  }
  RechenDialog& berechnet() {
    u.geraden();
    RechenDialog& d = mitPunkten("1", "2", "3", "4");
    d.control("Berechnen").click();
    return d;
  }
};

TEST_F(GeradenschnittTest, TheMenuOpensItWithTwoLinesOfTwoPoints) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Geradenschnitt");
  EXPECT_EQ(d.control("LabelG1P1Nr").captionText(), "P&1 Nr.:");
  EXPECT_EQ(d.control("LabelG1P2Nr").captionText(), "P&2 Nr.:");
  EXPECT_EQ(d.control("LabelG2P1Nr").captionText(), "P&3 Nr.:");
  EXPECT_EQ(d.control("LabelG2P2Nr").captionText(), "P&4 Nr.:");
  EXPECT_EQ(d.control("ComboGerade1").listIndex(), 0);
  EXPECT_EQ(d.control("ComboGerade2").listIndex(), 0);
  EXPECT_EQ(d.control("ComboGerade1").listCount(), 9);
  EXPECT_EQ(d.control("ComboGerade1").list()[1], "P1 und Verhältnis");
  EXPECT_EQ(d.control("ComboGerade2").list()[6], "Senkrecht durch P3");
  EXPECT_EQ(d.control("ComboGerade2").list()[8], "y = kx + d");
  EXPECT_TRUE(d.control("G2P2Nr").visible());
  EXPECT_FALSE(d.control("TextG2_1").visible());
}

TEST_F(GeradenschnittTest, TheSecondSelectorShowsItsOwnGroup) {
  RechenDialog& d = oeffnen();
  d.control("ComboGerade2").setListIndex(5);
  EXPECT_FALSE(d.control("G2P2Nr").visible());
  EXPECT_TRUE(d.control("G1P2Nr").visible()) << "line one is untouched";
  EXPECT_EQ(d.control("LabelG2_1").captionText(), "Richtungsvektor &U =");
  EXPECT_EQ(d.control("LabelG2_2").captionText(), "&V =");
  d.control("ComboGerade2").setListIndex(8);
  EXPECT_FALSE(d.control("G2P1Nr").visible());
}

TEST_F(GeradenschnittTest, TwoLinesOfTwoPointsMeet) {
  RechenDialog& d = berechnet();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("LabelA").captionText(), "X =");
  EXPECT_EQ(d.control("LabelB").captionText(), "Y =");
  EXPECT_EQ(d.control("ErgA").captionText(), "37.500");
  EXPECT_EQ(d.control("ErgB").captionText(), "33.750");
  EXPECT_EQ(d.control("PktNr").text(), "5");
}

TEST_F(GeradenschnittTest, APercentageAndASlopeWithOffsetGiveTheSameLines) {
  u.geraden();
  RechenDialog& d = mitPunkten("1", "", "", "");
  d.control("ComboGerade1").setListIndex(2);  // 50 % is 20 per 40
  d.control("TextG1_1").setText("50");
  d.control("ComboGerade2").setListIndex(8);
  d.control("TextG2_1").setText("-1.5");
  d.control("TextG2_2").setText("90");
  d.Eingabe(2).A = 999;  // overwritten: the line starts at (0, d)
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis().A, 37.5, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 33.75, 1e-9);
  EXPECT_EQ(d.Eingabe(2).A, 0);
  EXPECT_EQ(d.Eingabe(2).B, 90);
  EXPECT_EQ(d.Eingabe(1).A, 110) << "the constructed point stays in its record";
}

TEST_F(GeradenschnittTest, AnAngleRunsFromTheSystemsAxisInItsSense) {
  u.geraden();
  RechenDialog& d = mitPunkten("1", "", "3", "4");
  d.control("ComboGerade1").setListIndex(4);
  d.control("TextG1_1").setText("50");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 32, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 42, 1e-6);
}

TEST_F(GeradenschnittTest, UnderM31TheCaptionsSwapAndTheAngleStartsFromTheOtherAxis) {
  u.zustand.M31 = core::Wahr;
  u.geraden();
  RechenDialog& d = mitPunkten("1", "", "3", "4");
  d.control("ComboGerade1").setListIndex(4);
  d.control("TextG1_1").setText("100");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA").captionText(), "Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "X =");
  EXPECT_NEAR(d.Ergebnis().A, 46.666666667, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 20, 1e-6);
}

TEST_F(GeradenschnittTest, APolarTableConvertsAllFourPointsAndBack) {
  u.zustand.Polar = core::Wahr;
  u.geraden(true);
  RechenDialog& d = mitPunkten("1", "2", "3", "4");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("LabelA").captionText(), "e =");
  EXPECT_EQ(d.control("LabelB").captionText(), "Phi =");
  EXPECT_NEAR(d.Ergebnis().A, 50.451090177, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 46.652458323, 1e-6);
  for (int i = 0; i < 4; ++i) {
    EXPECT_NEAR(d.Eingabe(i).A, u.zustand.Punkte[static_cast<size_t>(i + 1)].A, 1e-7) << i;
    EXPECT_NEAR(d.Eingabe(i).B, u.zustand.Punkte[static_cast<size_t>(i + 1)].B, 1e-7) << i;
  }
}

TEST_F(GeradenschnittTest, StoresUnderTheOfferedNumberAndAsksForAUsedOne) {
  RechenDialog& d = berechnet();
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[5].A, 37.5, 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[5].B, 33.75, 1e-9);
  d.control("PktNr").setText("1");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.zustand.Punkte[1].A, 10);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[1].A, 37.5, 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[1].B, 33.75, 1e-9);
}

TEST_F(GeradenschnittTest, ParallelLinesOrAPointTwiceAreNoIntersection) {
  RechenDialog& d = berechnet();
  d.control("G2P1Nr").setText("1");  // the same line twice
  d.control("G2P2Nr").setText("2");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Geradenschnitt vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Geradenschnitt");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "37.500") << "the fields stay";
  d.control("G2P1Nr").setText("3");
  d.control("G2P2Nr").setText("3");  // no direction
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, "Kein Geradenschnitt vorhanden!");
}

}  // namespace
}  // namespace kolm::calc::testing

// FormParallelenSchnitt: the parallel to g1 through P meets g2. Worked
// values from data/werte.py.
#include "geraden_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct ParallelenSchnittTest : ::testing::Test {
  GeradenUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGerParallelenschnitt", "FormParallelenSchnitt"); }
  // g1 through points 1 and 2, g2 through 3 and 4, P is point 5 as given.
  RechenDialog& mitPunkten(double pa, double pb, bool polar = false) {
    u.geraden(polar);
    u.punkt(5, pa, pb);
    RechenDialog& d = oeffnen();
    d.control("G1P1Nr").setText("1");
    d.control("G1P2Nr").setText("2");
    d.control("G2P1Nr").setText("3");
    d.control("G2P2Nr").setText("4");
    d.control("PP1Nr").setText("5");
    return d;
  }
};

TEST_F(ParallelenSchnittTest, TheMenuOpensItWithTwoLinesAndPointP) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Gerade Parallelen Schnitt");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Punkt P");
  EXPECT_EQ(d.control("LabelG2P2Nr").captionText(), "P&4 Nr.:");
  EXPECT_EQ(d.control("ComboGerade2").list()[1], "P3 und Verhältnis");
  EXPECT_EQ(d.control("ComboGerade1").listIndex(), 0);
}

TEST_F(ParallelenSchnittTest, TheParallelThroughPMeetsTheSecondLine) {
  RechenDialog& d = mitPunkten(0, 30);
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA").captionText(), "30.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "45.000");
  EXPECT_EQ(d.control("PktNr").text(), "6");
}

TEST_F(ParallelenSchnittTest, TheFirstLinesDirectionByVectorWithTheSecondAsSlope) {
  RechenDialog& d = mitPunkten(0, 30);
  d.control("ComboGerade1").setListIndex(5);
  d.control("TextG1_1").setText("2");
  d.control("TextG1_2").setText("1");
  d.control("ComboGerade2").setListIndex(3);
  d.control("TextG2_1").setText("-1.5");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 30, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 45, 1e-9);
}

TEST_F(ParallelenSchnittTest, InAPolarTablePIsTakenAsItStands) {
  u.zustand.Polar = core::Wahr;
  RechenDialog& d = mitPunkten(30, 5, true);
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("LabelB").captionText(), "Phi =");
  EXPECT_NEAR(d.Ergebnis().A, 52.201532545, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 18.554715813, 1e-6);
  EXPECT_EQ(d.Eingabe(4).A, 30) << "P is left as it was";
  EXPECT_EQ(d.Eingabe(4).B, 5);
  for (int i = 0; i < 4; ++i)
    EXPECT_NEAR(d.Eingabe(i).B, u.zustand.Punkte[static_cast<size_t>(i + 1)].B, 1e-7) << "line points back";
}

TEST_F(ParallelenSchnittTest, StoresUnderTheOfferedNumberAndAsksForAUsedOne) {
  RechenDialog& d = mitPunkten(0, 30);
  d.control("Berechnen").click();
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[6].A, 30, 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[6].B, 45, 1e-9);
  d.control("PktNr").setText("4");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.zustand.Punkte[4].A, 60);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[4].A, 30, 1e-9);
}

TEST_F(ParallelenSchnittTest, ParallelLinesAreNoIntersection) {
  RechenDialog& d = mitPunkten(0, 30);
  d.control("G2P1Nr").setText("1");  // g2 parallel to g1
  d.control("G2P2Nr").setText("2");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Geradenschnitt vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Geradenschnitt");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
}

}  // namespace
}  // namespace kolm::calc::testing

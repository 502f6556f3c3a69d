// Form3PktGeradenschnitt: the foot of the perpendicular from P to a line
// given in one of nine ways. Worked values from data/werte.py.
#include "geraden_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct RechtwinkeligerSchnittTest : ::testing::Test {
  GeradenUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGer3Pkt", "Form3PktGeradenschnitt"); }
  // g1 through points 1 and 2, P is point 5 (30, 70).
  RechenDialog& mitPunkten(const char* p1, const char* p2, bool polar = false) {
    u.geraden(polar);
    if (polar)
      u.polarPunkt(5, 30, 70);
    else
      u.punkt(5, 30, 70);
    RechenDialog& d = oeffnen();
    d.control("G1P1Nr").setText(p1);
    d.control("G1P2Nr").setText(p2);
    d.control("PP1Nr").setText("5");
    return d;
  }
};

TEST_F(RechtwinkeligerSchnittTest, TheMenuOpensItWithOneLineAndPointP) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Rechtwinkeliger Geradenschnitt");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Punkt P");
  EXPECT_EQ(d.control("LabelG1P1Nr").captionText(), "P&1 Nr.:");
  EXPECT_EQ(d.control("LabelG1P2Nr").captionText(), "P&2 Nr.:");
  EXPECT_EQ(d.control("ComboGerade1").listCount(), 9);
  EXPECT_EQ(d.control("ComboGerade1").list()[7], "Waagrecht durch P1");
  EXPECT_EQ(d.find("ComboGerade2"), nullptr);
}

TEST_F(RechtwinkeligerSchnittTest, TheFootOfThePerpendicular) {
  u.punkt(9, 1, 1);  // the highest used number: 10 is offered
  RechenDialog& d = mitPunkten("1", "2");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA").captionText(), "46.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "38.000");
  EXPECT_EQ(d.control("PktNr").text(), "10");
}

TEST_F(RechtwinkeligerSchnittTest, AVerticalLineThroughP1) {
  RechenDialog& d = mitPunkten("1", "");
  d.control("ComboGerade1").setListIndex(6);
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 10, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 70, 1e-9);
}

TEST_F(RechtwinkeligerSchnittTest, APolarTableConvertsTheLineAndPAndBack) {
  u.zustand.Polar = core::Wahr;
  RechenDialog& d = mitPunkten("1", "2", true);
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA").captionText(), "e =");
  EXPECT_NEAR(d.Ergebnis().A, 59.665735561, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 43.955186626, 1e-6);
  EXPECT_NEAR(d.Eingabe(2).A, u.zustand.Punkte[5].A, 1e-7);
  EXPECT_NEAR(d.Eingabe(2).B, u.zustand.Punkte[5].B, 1e-7);
  EXPECT_NEAR(d.Eingabe(1).B, u.zustand.Punkte[2].B, 1e-7);
}

TEST_F(RechtwinkeligerSchnittTest, UnderM31TheCaptionsSwap) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = mitPunkten("1", "2");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA").captionText(), "Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "X =");
  EXPECT_NEAR(d.Ergebnis().A, 46, 1e-9) << "the geometry does not depend on the system";
}

TEST_F(RechtwinkeligerSchnittTest, StoresUnderTheOfferedNumberAndAsksForAUsedOne) {
  RechenDialog& d = mitPunkten("1", "2");
  d.control("Berechnen").click();
  ASSERT_EQ(d.control("PktNr").text(), "6");
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[6].A, 46, 1e-9);
  d.control("PktNr").setText("5");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.zustand.Punkte[5].A, 30);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[5].A, 46, 1e-9);
  EXPECT_NEAR(u.zustand.Punkte[5].B, 38, 1e-9);
}

TEST_F(RechtwinkeligerSchnittTest, ALineWithoutDirectionIsNoIntersection) {
  RechenDialog& d = mitPunkten("1", "1");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Kein Geradenschnitt vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Rechtwinkeliger Geradenschnitt");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  d.control("ComboGerade1").setListIndex(1);  // ratio 0 to 0
  d.control("TextG1_1").setText("0");
  d.control("TextG1_2").setText("0");
  d.control("Berechnen").click();
  EXPECT_EQ(u.meldungen().size(), 2u);
}

}  // namespace
}  // namespace kolm::calc::testing

// DirekterAnschluß as the user opens it from the menu and fills it; the
// station and its values from data/anschluss_dialoge.py: S = (1040, 1920),
// P1 = (1000, 2000), P2 = (1100, 2050), directions read clockwise at S.
#include <gtest/gtest.h>

#include "anschluss_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr double kGenau = 1e-5;

struct DirektUmgebung : AnschlussUmgebung {
  DirektUmgebung() {
    punkt(1, 1000, 2000, 55);
    punkt(2, 1100, 2050);
  }
  RechenDialog& rechnen(const char* p1 = "1", const char* p2 = "2") {
    RechenDialog& d = oeffnen("MnuGerDirekterAnsschluß", "DirekterAnschluß");
    d.control("PP1Nr").setText(p1);
    d.control("PP2Nr").setText(p2);
    d.control("Param", 0).setText("89.4427191");
    d.control("Param", 1).setText("12.3456");
    d.control("Param", 2).setText("69.390257488");
    d.control("Berechnen").click();
    return d;
  }
};

TEST(DirekterAnschluss, TheMenuOpensItWithItsCaptions) {
  DirektUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerDirekterAnsschluß", "DirekterAnschluß");
  EXPECT_EQ(d.caption(), "Direkter Anschluß");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&e=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "α");
  EXPECT_EQ(d.control("Label", 2).captionText(), "β");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: Standpunkt S");
  EXPECT_EQ(d.control("LabelA").captionText(), "&X =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&Y =");
  EXPECT_NE(d.find("Skizze"), nullptr);
}

TEST(DirekterAnschluss, FetchedPointsGiveTheStationAndItIsStoredUnderTheOfferedNumber) {
  DirektUmgebung u;
  RechenDialog& d = u.rechnen();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis().A, 1040, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 1920, kGenau);
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "1920.000");
  EXPECT_EQ(d.control("PktNr").text(), "3");
  EXPECT_TRUE(d.control("Speichern").isDefault());
  d.control("Speichern").click();
  EXPECT_EQ(u.zustand.Punkte[3].Nummer, 3);
  EXPECT_NEAR(u.zustand.Punkte[3].A, 1040, kGenau);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 1920, kGenau);
  EXPECT_EQ(u.zustand.Punkte[3].C, 0) << "the station takes no height from P1";
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(DirekterAnschluss, OverAUsedNumberNoKeepsThePointAndYesReplacesIt) {
  DirektUmgebung u;
  RechenDialog& d = u.rechnen();
  d.control("PktNr").setText("2");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[2].A, 1100);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[2].A, 1040, kGenau);
  EXPECT_NEAR(u.zustand.Punkte[2].B, 1920, kGenau);
}

TEST(DirekterAnschluss, ATypedPointServesAsP2) {
  DirektUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerDirekterAnsschluß", "DirekterAnschluß");
  d.control("PP1Nr").setText("1");
  u.tippen("1100", "2050");
  d.control("GetPP2").click();
  EXPECT_EQ(d.Eingabe(1).Nummer, -1);
  d.control("Param", 0).setText("89.4427191");
  d.control("Param", 1).setText("12,3456");
  d.control("Param", 2).setText("69.390257488");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 1040, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 1920, kGenau);
}

TEST(DirekterAnschluss, AMirroredSenseOfRotationGivesTheOtherSolution) {
  DirektUmgebung u;
  u.zustand.Falschdrehend = core::Wahr;
  RechenDialog& d = u.rechnen();
  EXPECT_NEAR(d.Ergebnis().A, 960, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 2080, kGenau);
}

TEST(DirekterAnschluss, UnderM31TheCaptionsTurnAndTheStationStays) {
  DirektUmgebung u;
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = u.rechnen();
  EXPECT_EQ(d.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&X =");
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "1920.000");
}

TEST(DirekterAnschluss, APolarTableIsCalculatedRectangularAndShownAndStoredPolar) {
  DirektUmgebung u;
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 2236.0679775, 70.483276461);
  u.punkt(2, 2326.478024826, 68.647382375);
  RechenDialog& d = u.rechnen();
  EXPECT_EQ(d.control("LabelA").captionText(), "&e =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&Phi =");
  EXPECT_NEAR(d.Ergebnis().A, 2183.575050233, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 68.396745964, 1e-7);
  EXPECT_EQ(d.control("ErgA").captionText(), "2183.575");
  EXPECT_EQ(d.control("ErgB").captionText(), "68.397");
  EXPECT_NEAR(d.Eingabe(0).A, 2236.0679775, 1e-7) << "the inputs go back to polar";
  EXPECT_NEAR(d.Eingabe(0).B, 70.483276461, 1e-7);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 2183.575050233, kGenau);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 68.396745964, 1e-7);
}

TEST(DirekterAnschluss, IdenticalPointsShowTheMessageAndKeepTheResultFields) {
  DirektUmgebung u;
  RechenDialog& d = u.rechnen();
  d.control("PP2Nr").setText("1");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Mit diesen Parametern ist kein direkter Anschluß berechenbar!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Kolm");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("PktNr").text(), "3");
}

TEST(DirekterAnschluss, EqualDirectionsShowTheMessage) {
  DirektUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerDirekterAnsschluß", "DirekterAnschluß");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("50");
  d.control("Berechnen").click();  // alpha and beta both empty: 0
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(d.control("ErgA").captionText(), "");
}

}  // namespace
}  // namespace kolm::calc::testing

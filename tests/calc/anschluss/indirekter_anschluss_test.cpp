// IndirekterAnschluß as the user opens it from the menu and fills it; the
// station and its values from data/anschluss_dialoge.py: S = (1040, 1920),
// P1 = (1000, 2000), P2 = (1100, 2050), the distance S-P1 from a base.
#include <gtest/gtest.h>

#include "anschluss_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr double kGenau = 1e-5;

struct IndirektUmgebung : AnschlussUmgebung {
  IndirektUmgebung() {
    punkt(1, 1000, 2000, 55);
    punkt(2, 1100, 2050);
  }
  RechenDialog& oeffnen() { return AnschlussUmgebung::oeffnen("MnuGerIndirekterAnschluß", "IndirekterAnschluß"); }
  RechenDialog& rechnen(const char* p1 = "1", const char* p2 = "2", const char* beta = "70") {
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText(p1);
    d.control("PP2Nr").setText(p2);
    d.control("Param", 0).setText("120.30019098");
    d.control("Param", 1).setText("50");
    d.control("Param", 2).setText(beta);
    d.control("Param", 3).setText("57.044657488");
    d.control("Berechnen").click();
    return d;
  }
};

TEST(IndirekterAnschluss, TheMenuOpensItWithItsCaptions) {
  IndirektUmgebung u;
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.caption(), "Indirekter Anschluß");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&a=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "α");
  EXPECT_EQ(d.control("Label", 2).captionText(), "β");
  EXPECT_EQ(d.control("Label", 3).captionText(), "λ");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: Standpunkt S");
  EXPECT_EQ(d.control("LabelA").captionText(), "&X =");
}

TEST(IndirekterAnschluss, FetchedPointsGiveTheStationAndItIsStoredUnderTheOfferedNumber) {
  IndirektUmgebung u;
  RechenDialog& d = u.rechnen();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis().A, 1040, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 1920, kGenau);
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "1920.000");
  EXPECT_EQ(d.control("PktNr").text(), "3");
  d.control("Speichern").click();
  EXPECT_EQ(u.zustand.Punkte[3].Nummer, 3);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 1920, kGenau);
  EXPECT_EQ(u.zustand.Punkte[3].C, 0) << "the station takes no height from P1";
}

TEST(IndirekterAnschluss, ANegativeBaseCountsByItsLength) {
  IndirektUmgebung u;
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("-120.30019098");
  d.control("Param", 1).setText("50");
  d.control("Param", 2).setText("70");
  d.control("Param", 3).setText("57.044657488");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 1040, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 1920, kGenau);
}

TEST(IndirekterAnschluss, OverAUsedNumberNoKeepsThePointAndYesReplacesIt) {
  IndirektUmgebung u;
  RechenDialog& d = u.rechnen();
  d.control("PktNr").setText("1");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[1].A, 1000);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[1].A, 1040, kGenau);
}

TEST(IndirekterAnschluss, ATypedPointServesAsP1) {
  IndirektUmgebung u;
  RechenDialog& d = u.oeffnen();
  u.tippen("1000", "2000");
  d.control("GetPP1").click();
  d.control("PP2Nr").setText("2");
  d.control("Param", 0).setText("120.30019098");
  d.control("Param", 1).setText("50");
  d.control("Param", 2).setText("70");
  d.control("Param", 3).setText("57.044657488");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 1040, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 1920, kGenau);
}

TEST(IndirekterAnschluss, UnderM31TheCaptionsTurnAndTheStationStays) {
  IndirektUmgebung u;
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = u.rechnen();
  EXPECT_EQ(d.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "1920.000");
}

TEST(IndirekterAnschluss, APolarTableIsCalculatedRectangularAndShownAndStoredPolar) {
  IndirektUmgebung u;
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 2236.0679775, 70.483276461);
  u.punkt(2, 2326.478024826, 68.647382375);
  RechenDialog& d = u.rechnen();
  EXPECT_EQ(d.control("LabelA").captionText(), "&e =");
  EXPECT_NEAR(d.Ergebnis().A, 2183.575050233, kGenau);
  EXPECT_NEAR(d.Ergebnis().B, 68.396745964, 1e-7);
  EXPECT_NEAR(d.Eingabe(1).B, 68.647382375, 1e-7) << "the inputs go back to polar";
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[3].B, 68.396745964, 1e-7);
}

TEST(IndirekterAnschluss, AnglesSummingToZeroShowTheMessageAndKeepTheResultFields) {
  IndirektUmgebung u;
  RechenDialog& d = u.rechnen();
  d.control("Param", 2).setText("-50");  // alpha + beta = 0: the distance becomes GROSS
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Mit diesen Parametern ist kein indirekter Anschluß berechenbar!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Kolm");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
  EXPECT_EQ(d.control("PktNr").text(), "3");
}

}  // namespace
}  // namespace kolm::calc::testing

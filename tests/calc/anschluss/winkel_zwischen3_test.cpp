// WinkelZwischen3 as the user opens it from the menu and fills it; values
// from data/anschluss_dialoge.py.
#include <gtest/gtest.h>

#include "anschluss_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr double kGenau = 1e-6;

TEST(WinkelZwischen3, TheMenuOpensItWithOneAngleAndNoResultPoint) {
  AnschlussUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  EXPECT_EQ(d.caption(), "Winkel zw. 3 Punkten");
  for (const char* name : {"PP1Nr", "PP2Nr", "PP3Nr", "GetPP3", "Punkt3", "Erg", "FrameErgebnis", "Skizze"})
    EXPECT_NE(d.find(name), nullptr) << name;
  EXPECT_EQ(d.control("ErgLabel").captionText(), "Winkel:");
  EXPECT_EQ(d.find("Speichern"), nullptr);
  EXPECT_EQ(d.find("PktNr"), nullptr);
  d.control("Skizze").click();
  ASSERT_EQ(u.dienste.help.topics().size(), 1u);
}

TEST(WinkelZwischen3, TheAngleAtP2FromFetchedPoints) {
  AnschlussUmgebung u;  // Neugrad
  u.punkt(1, 100, 200);
  u.punkt(2, 130, 240);
  u.punkt(3, 90, 250);
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("PP3Nr").setText("3");
  EXPECT_TRUE(d.control("Berechnen").isDefault());
  d.control("Berechnen").click();
  EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), 74.629273126, kGenau);
  EXPECT_TRUE(u.meldungen().empty());
  // The order of the outer points does not matter: the angle is unsigned.
  d.control("PP1Nr").setText("3");
  d.control("PP3Nr").setText("1");
  d.control("Berechnen").click();
  EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), 74.629273126, kGenau);
}

TEST(WinkelZwischen3, AnObtuseAngleInAltgradWithATypedVertex) {
  AnschlussUmgebung u;
  u.zustand.WinkelFaktor = 3.141592654 / 180;
  u.punkt(1, 3, 1);
  u.punkt(3, -5, -1);
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  d.control("PP1Nr").setText("1");
  d.control("PP3Nr").setText("3");
  u.tippen("0", "0");
  d.control("GetPP2").click();
  EXPECT_EQ(d.Eingabe(1).Nummer, -1);
  d.control("Berechnen").click();
  EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), 172.874983629, kGenau);
}

TEST(WinkelZwischen3, UnderM31TheSameRecordsGiveTheSameAngle) {
  AnschlussUmgebung u;
  u.zustand.M31 = core::Wahr;
  u.punkt(1, 10, 0);
  u.punkt(2, 0, 0);
  u.punkt(3, 0, 10);
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("PP3Nr").setText("3");
  d.control("Berechnen").click();
  EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), 99.999999987, kGenau);
}

TEST(WinkelZwischen3, APolarTableIsMeasuredRectangularAndKeepsItsRecordsPolar) {
  AnschlussUmgebung u;
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 0);    // (10, 0)
  u.punkt(2, 0, 0);     // the origin
  u.punkt(3, 10, 100);  // (0, 10)
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("PP3Nr").setText("3");
  d.control("Berechnen").click();
  EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), 99.999999987, kGenau);
  EXPECT_NEAR(d.Eingabe(2).A, 10, 1e-9);
  EXPECT_NEAR(d.Eingabe(2).B, 100, 1e-7);
}

TEST(WinkelZwischen3, IdenticalPointsGiveZeroWithoutAMessage) {
  AnschlussUmgebung u;
  u.punkt(1, 5, 5);
  u.punkt(2, 7, 9);
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("1");
  d.control("PP3Nr").setText("2");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Erg").captionText(), "0.000");
  EXPECT_TRUE(u.meldungen().empty());
}

}  // namespace
}  // namespace kolm::calc::testing

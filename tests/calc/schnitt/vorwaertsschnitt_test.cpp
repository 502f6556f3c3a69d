// Vorwärtsschnitt as the user opens it from the menu and fills it. The
// expected points come from data/werte.py (rays intersected as lines).
#include <gtest/gtest.h>

#include <cmath>

#include "../frame/umgebung.h"
#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {
namespace {

constexpr double kPi = 3.141592654;

struct VorwaertsUmgebung : Umgebung {
  VorwaertsUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  RechenDialog& oeffnen() {
    anwendung.main()->control("MnuGerVorwärtsschnitt").click();
    forms::Form* f = forms.find("Vorwärtsschnitt");
    EXPECT_NE(f, nullptr);
    return static_cast<RechenDialog&>(*f);
  }
  // P1 (100, 100), P2 (200, 100), alpha 50 gon, beta 30 gon.
  RechenDialog& gerechnet() {
    punkt(1, 100, 100, 55);
    punkt(2, 200, 100);
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Param", 1).setText("50");
    d.control("Param", 2).setText("30");
    d.control("Berechnen").click();
    return d;
  }
};

double zahl(forms::Form& f, const std::string& name) { return numbers::ZahlLesen(f.control(name).captionText()); }

TEST(Vorwaertsschnitt, TheMenuOpensItWithItsFieldsAndNote) {
  VorwaertsUmgebung u;
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.control("Punkt1").captionText(), "Punkt P1");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Punkt P2");
  EXPECT_EQ(d.control("Label", 1).captionText(), "α");
  EXPECT_EQ(d.control("Label", 2).captionText(), "β");
  EXPECT_EQ(d.find("Param", 0), nullptr) << "the angles are fields 1 and 2";
  EXPECT_EQ(d.control("Hinweis").captionText(), "Winkel haben nicht den gleichen Drehsinn!");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: Standpunkt S");
  EXPECT_EQ(d.control("LabelA").captionText(), "&X =");
  EXPECT_NE(d.find("Skizze"), nullptr);
}

TEST(Vorwaertsschnitt, FetchedPointsGiveTheIntersectionAndTheNextNumber) {
  VorwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  EXPECT_EQ(d.control("ErgA").captionText(), "133.754");
  EXPECT_EQ(d.control("ErgB").captionText(), "133.754");
  EXPECT_NEAR(d.Ergebnis().A, 133.754015, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 133.754015, 1e-6);
  EXPECT_EQ(d.control("PktNr").text(), "3");
  EXPECT_TRUE(d.control("Speichern").isDefault());
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(Vorwaertsschnitt, ASkewBaseWithFractionalAngles) {
  VorwaertsUmgebung u;
  u.punkt(1, 10, 20);
  u.punkt(2, 70, -40);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 1).setText("35,5");
  d.control("Param", 2).setText("62.25");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 78.592365, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 4.101143, 1e-6);
}

TEST(Vorwaertsschnitt, APointTypedByHandServesAsP2) {
  VorwaertsUmgebung u;
  u.punkt(1, 100, 100);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("200");
    f.control("TextB").setText("100");
    f.control("OK").click();
  });
  d.control("GetPP2").click();
  EXPECT_EQ(d.Eingabe(1).Nummer, -1);
  d.control("Param", 1).setText("50");
  d.control("Param", 2).setText("30");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 133.754015, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 133.754015, 1e-6);
}

TEST(Vorwaertsschnitt, SpeichernStoresThePointWithoutAHeightOfItsOwn) {
  VorwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  d.control("Speichern").click();
  EXPECT_EQ(u.zustand.Punkte[3].Nummer, 3);
  EXPECT_NEAR(u.zustand.Punkte[3].A, 133.754015, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 133.754015, 1e-6);
  EXPECT_EQ(u.zustand.Punkte[3].C, 0) << "P1's height 55 is not taken over";
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
}

TEST(Vorwaertsschnitt, SpeichernOverAUsedNumberAsksNoKeepsYesReplaces) {
  VorwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  d.control("PktNr").setText("2");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[2].A, 200);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_EQ(u.meldungen().size(), 2u);
  EXPECT_NEAR(u.zustand.Punkte[2].A, 133.754015, 1e-6);
}

TEST(Vorwaertsschnitt, APolarTableIsCutRectangularAndStoredPolar) {
  VorwaertsUmgebung u;
  u.zustand.Polar = core::Wahr;
  const double gon = kPi / 200;
  u.punkt(1, std::hypot(100.0, 100.0), 50);
  u.punkt(2, std::hypot(200.0, 100.0), std::atan2(100.0, 200.0) / gon);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 1).setText("50");
  d.control("Param", 2).setText("30");
  d.control("Berechnen").click();
  const double e = std::hypot(133.754015, 133.754015);
  EXPECT_NEAR(zahl(d, "ErgA"), e, 1e-3);
  EXPECT_NEAR(zahl(d, "ErgB"), 50, 1e-3);
  EXPECT_EQ(d.control("LabelA").captionText(), "&e =");
  EXPECT_NEAR(d.Eingabe(0).B, 50, 1e-7) << "the inputs are polar again";
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, e, 1e-5);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 50, 1e-6);
}

TEST(Vorwaertsschnitt, UnderM31TheSameNumbersGiveTheSamePointUnderOtherNames) {
  VorwaertsUmgebung u;
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = u.gerechnet();
  EXPECT_EQ(d.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&X =");
  EXPECT_NEAR(d.Ergebnis().A, 133.754015, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 133.754015, 1e-6);
}

TEST(Vorwaertsschnitt, RaysOfEqualSlopeGiveTheMessage) {
  VorwaertsUmgebung u;
  u.zustand.WinkelFaktor = 1;  // Radiant: beta of exactly Pi folds the second ray onto the base
  u.punkt(1, 0, 0);
  u.punkt(2, 10, 0);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Param", 1).setText("0");
  d.control("Param", 2).setText("3.141592654");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Mit diesen Parametern kann kein Vorwärtsschnitt eingerechnet werden!");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("PktNr").text(), "") << "nothing offered";
}

}  // namespace
}  // namespace kolm::calc::testing

// Rückwärtsschnitt as the user opens it from the menu and fills it. The
// angles come from data/werte.py: those a chosen station S sees between the
// three points; the dialog must find S again.
#include <gtest/gtest.h>

#include <cmath>

#include "../frame/umgebung.h"
#include "calc/verdrahtung.h"
#include "points/numbers/numbers.h"

namespace kolm::calc::testing {
namespace {

constexpr double kPi = 3.141592654;

struct RueckwaertsUmgebung : Umgebung {
  RueckwaertsUmgebung() {
    RechnenRegistrieren(forms, anwendung);
    RechnenVerbinden(*anwendung.main(), anwendung);
  }
  RechenDialog& oeffnen() {
    anwendung.main()->control("MnuGerRückwärtsschnitt").click();
    forms::Form* f = forms.find("Rückwärtsschnitt");
    EXPECT_NE(f, nullptr);
    return static_cast<RechenDialog&>(*f);
  }
  void holen(RechenDialog& d, int p1, int p2, int p3) {
    d.control("PP1Nr").setText(std::to_string(p1));
    d.control("PP2Nr").setText(std::to_string(p2));
    d.control("PP3Nr").setText(std::to_string(p3));
  }
  // A (0, 100), M (100, 130), B (200, 90) seen from S (110, 0).
  RechenDialog& gerechnet() {
    punkt(1, 0, 100, 42);
    punkt(2, 100, 130);
    punkt(3, 200, 90);
    RechenDialog& d = oeffnen();
    holen(d, 1, 2, 3);
    d.control("Param", 0).setText("48.141784037");
    d.control("Param", 1).setText("54,887450387");
    d.control("Berechnen").click();
    return d;
  }
};

double zahl(forms::Form& f, const std::string& name) { return numbers::ZahlLesen(f.control(name).captionText()); }

TEST(Rueckwaertsschnitt, TheMenuOpensItWithItsFields) {
  RueckwaertsUmgebung u;
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.control("Punkt1").captionText(), "Punkt P1");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Punkt P2");
  EXPECT_EQ(d.control("Punkt3").captionText(), "Punkt P3");
  EXPECT_EQ(d.control("Label", 0).captionText(), "Winkel zwischen P1-S-P2:");
  EXPECT_EQ(d.control("Label", 1).captionText(), "Winkel zwischen P2-S-P3:");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: Standpunkt S");
  EXPECT_NE(d.find("Skizze"), nullptr);
}

TEST(Rueckwaertsschnitt, FetchedPointsGiveTheStationAndTheNextNumber) {
  RueckwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  EXPECT_NEAR(d.Ergebnis().A, 110, 1e-5);
  EXPECT_NEAR(d.Ergebnis().B, 0, 1e-5);
  EXPECT_EQ(d.control("ErgA").captionText(), "110.000");
  EXPECT_EQ(d.control("PktNr").text(), "4");
  EXPECT_TRUE(d.control("Speichern").isDefault());
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_DOUBLE_EQ(d.Eingabe(1).A, 100) << "the other points are only read";
  EXPECT_DOUBLE_EQ(d.Eingabe(2).B, 90);
}

TEST(Rueckwaertsschnitt, ALargerFigureWithAPointTypedByHand) {
  RueckwaertsUmgebung u;
  u.punkt(1, 1000, 2000);
  u.punkt(2, 1500, 2600);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("2100");
    f.control("TextB").setText("2100");
    f.control("OK").click();
  });
  d.control("GetPP3").click();
  EXPECT_EQ(d.Eingabe(2).Nummer, -1);
  d.control("Param", 0).setText("48.726930173");
  d.control("Param", 1).setText("49.115862713");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 1400, 1e-5);
  EXPECT_NEAR(d.Ergebnis().B, 1500, 1e-5);
}

TEST(Rueckwaertsschnitt, SpeichernStoresTheStationWithoutAHeightOfItsOwn) {
  RueckwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  d.control("Speichern").click();
  EXPECT_EQ(u.zustand.Punkte[4].Nummer, 4);
  EXPECT_NEAR(u.zustand.Punkte[4].A, 110, 1e-5);
  EXPECT_NEAR(u.zustand.Punkte[4].B, 0, 1e-5);
  EXPECT_EQ(u.zustand.Punkte[4].C, 0) << "P1's height 42 is not taken over";
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
}

TEST(Rueckwaertsschnitt, SpeichernOverAUsedNumberAsksNoKeepsYesReplaces) {
  RueckwaertsUmgebung u;
  RechenDialog& d = u.gerechnet();
  d.control("PktNr").setText("3");
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[3].A, 200);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern").click();
  EXPECT_EQ(u.meldungen().size(), 2u);
  EXPECT_NEAR(u.zustand.Punkte[3].A, 110, 1e-5);
}

TEST(Rueckwaertsschnitt, APolarTableIsCalculatedRectangularAndStoredPolar) {
  RueckwaertsUmgebung u;
  u.zustand.Polar = core::Wahr;
  const double gon = kPi / 200;
  auto polar = [&](int n, double a, double b) { u.punkt(n, std::hypot(a, b), std::atan2(b, a) / gon); };
  polar(1, 1000, 2000);
  polar(2, 1500, 2600);
  polar(3, 2100, 2100);
  RechenDialog& d = u.oeffnen();
  u.holen(d, 1, 2, 3);
  d.control("Param", 0).setText("48.726930173");
  d.control("Param", 1).setText("49.115862713");
  d.control("Berechnen").click();
  const double e = std::hypot(1400.0, 1500.0), phi = std::atan2(1500.0, 1400.0) / gon;
  EXPECT_NEAR(zahl(d, "ErgA"), e, 1e-3);
  EXPECT_NEAR(zahl(d, "ErgB"), phi, 1e-3);
  EXPECT_EQ(d.control("LabelB").captionText(), "&Phi =");
  EXPECT_NEAR(d.Eingabe(2).A, std::hypot(2100.0, 2100.0), 1e-7) << "the inputs are polar again";
  EXPECT_NEAR(d.Eingabe(2).B, 50, 1e-7);
  d.control("Speichern").click();
  EXPECT_NEAR(u.zustand.Punkte[4].A, e, 1e-5);
  EXPECT_NEAR(u.zustand.Punkte[4].B, phi, 1e-6);
}

TEST(Rueckwaertsschnitt, UnderM31TheSameNumbersGiveTheSameStationUnderOtherNames) {
  RueckwaertsUmgebung u;
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = u.gerechnet();
  EXPECT_EQ(d.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&X =");
  EXPECT_NEAR(d.Ergebnis().A, 110, 1e-5);
  EXPECT_NEAR(d.Ergebnis().B, 0, 1e-5);
}

TEST(Rueckwaertsschnitt, ThreeEqualPointsAndNoAnglesGiveTheMessage) {
  // All directions 0: both rays have slope 0 and the intersection fails.
  RueckwaertsUmgebung u;
  u.punkt(1, 5, 5);
  RechenDialog& d = u.oeffnen();
  u.holen(d, 1, 1, 1);
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Mit diesen Parametern kann kein Rückwärtsschnitt eingerechnet werden!");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("PktNr").text(), "") << "nothing offered";
  EXPECT_EQ(d.control("ErgA").captionText(), "");
}

}  // namespace
}  // namespace kolm::calc::testing

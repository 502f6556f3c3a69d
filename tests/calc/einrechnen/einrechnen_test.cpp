// Einrechnen: the point at distance e along the line from A, in mode
// Fortlaufend the start of the next step; Kleinpunkte: from P a distance
// along the line A-E, against it, to its left or right, each result the
// next P. Expected values: data/werte.py. Captions, storing, M31 values and
// a polar table are covered end to end by the rechnen_einrechnen* macros.
#include <string>

#include "calc/frame/menue_umgebung.h"
#include "forms/keys.h"
#include "points/koordinaten.h"

namespace kolm::calc::testing {
namespace {

struct EinrechnenTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGerEinrechnen", "Einrechnen"); }
};

TEST_F(EinrechnenTest, TheEntriesOfTheLineAndTheOptions) {
  RechenDialog& d = oeffnen();
  const forms::Control& combo = d.control("ComboGerade1");
  EXPECT_EQ(combo.list()[0], "zwei Punkte: A, E");
  EXPECT_EQ(combo.list()[7], "Waagrecht durch A");
  d.control("ComboGerade1").setListIndex(4);
  EXPECT_FALSE(d.control("G1P2Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungs&winkel:");
  d.control("OptionFortlaufend").click();
  d.control("OptionPolar").click();
  EXPECT_EQ(d.caption(), "Polares Einrechnen");
}

TEST_F(EinrechnenTest, ThePointAtTheDistanceAlongEachKindOfLine) {
  struct Fall {
    const char* name;
    int eintrag;        // 0: through points 1 (100, 200) and 2 (160, 280); 4: angle from 1 (10, 20)
    const char* wert;   // e, or the angle with e = 10
    bool m31;
    double a, b;
  };
  // Under M31 the half circle is chosen as under the math system: 150 gon
  // runs to negative a although the system's 150 gon points to positive a.
  const Fall faelle[] = {
      {"backwards", 0, "-50", false, 70, 160},         {"an empty distance stays at A", 0, "", false, 100, 200},
      {"angle 50", 4, "50", false, 17.071068, 27.071068}, {"angle 150", 4, "150", false, 2.928932, 27.071068},
      {"angle 250", 4, "250", false, 2.928932, 12.928932}, {"angle 350", 4, "350", false, 17.071068, 12.928932},
      {"M31, angle 50", 4, "50", true, 17.071068, 27.071068},
      {"M31, angle 150", 4, "150", true, 2.928932, 27.071068},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung v;
    v.zustand.M31 = f.m31 ? core::Wahr : core::Falsch;
    RechenDialog& d = v.oeffnen("MnuGerEinrechnen", "Einrechnen");
    d.control("ComboGerade1").setListIndex(f.eintrag);
    if (f.eintrag == 0) {
      v.punkt(1, 100, 200, 7);
      v.punkt(2, 160, 280);
      d.control("G1P1Nr").setText("1");
      d.control("G1P2Nr").setText("2");
      d.control("Param", 0).setText(f.wert);
    } else {
      v.punkt(1, 10, 20, 7);
      d.control("G1P1Nr").setText("1");
      d.control("TextG1_1").setText(f.wert);
      d.control("Param", 0).setText("10");
    }
    d.control("Berechnen").click();
    EXPECT_TRUE(v.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-6);
    EXPECT_NEAR(d.Ergebnis().B, f.b, 1e-6);
    EXPECT_EQ(d.Ergebnis().C, 0) << "A's height is not taken over";
    EXPECT_EQ(d.control("G1P1Nr").text(), "1") << "mode Polar keeps A";
  }
}

TEST_F(EinrechnenTest, FortlaufendGoesOnFromTheLastResult) {
  u.punkt(1, 10, 20, 4);
  RechenDialog& d = oeffnen();
  d.control("OptionFortlaufend").click();
  d.control("ComboGerade1").setListIndex(3);  // slope k = 2
  MenueUmgebung::eintragen(d, {{"G1P1Nr", "1"}, {"TextG1_1", "2"}, {"Param(0)", "10"}});
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 14.472136, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 28.944272, 1e-6);
  EXPECT_EQ(d.control("G1P1Nr").text(), "");
  EXPECT_EQ(d.Eingabe(0).Nummer, -1);
  EXPECT_NEAR(d.Eingabe(0).A, 14.472136, 1e-6);
  EXPECT_NE(d.control("G1P1").captionText().find("14.472136"), std::string::npos);
  EXPECT_EQ(d.activeControl(), &d.control("PktNr"));
  d.control("Berechnen").click();  // the emptied number fetches nothing
  EXPECT_TRUE(d.control("Berechnen").isDefault()) << "the same number offered again: Enter goes on";
  EXPECT_NEAR(d.Ergebnis().A, 18.944272, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 37.888544, 1e-6);
  EXPECT_EQ(d.control("ErgB").captionText(), "37.889");
}

TEST_F(EinrechnenTest, WithoutADirectionTheMessageAndNoResult) {
  u.punkt(1, 100, 200);
  RechenDialog& d = oeffnen();
  MenueUmgebung::eintragen(d, {{"G1P1Nr", "1"}, {"G1P2Nr", "1"}, {"Param(0)", "10"}});
  d.control("Berechnen").click();
  u.meldung("Kein Einrechnen möglich, da keine Richtung vorhanden ist!", "Polares Einrechnen");
  EXPECT_EQ(d.control("ErgA").captionText(), "");
  EXPECT_EQ(d.control("PktNr").text(), "");
  d.control("OptionFortlaufend").click();
  d.control("Berechnen").click();
  u.meldung("Kein Einrechnen möglich, da keine Richtung vorhanden ist!", "Fortlaufendes Einrechnen");
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

struct KleinpunkteTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuGerKleinPunkte", "Kleinpunkte"); }
  // The line from point 1 (0, 0) to point 2 (3, 4), P = point 3 (10, 10).
  RechenDialog& gefuellt() {
    u.punkt(1, 0, 0);
    u.punkt(2, 3, 4);
    u.punkt(3, 10, 10, 2);
    RechenDialog& d = oeffnen();
    MenueUmgebung::eintragen(d, {{"G1P1Nr", "1"}, {"G1P2Nr", "2"}, {"PP1Nr", "3"}, {"Param(0)", "5"}});
    return d;
  }
};

TEST_F(KleinpunkteTest, TheFourWaysFromPInEachSystem) {
  struct Fall {
    int richtung;
    bool m31;
    const char* name;
    double a, b;
  };
  const Fall faelle[] = {{0, false, "&vorwärts", 13, 14}, {1, false, "&zurück", 7, 6}, {2, false, "&links", 6, 13},
                         {3, false, "&rechts", 14, 7},
                         // left on the plane as drawn
                         {2, true, "&links", 6, 13}};
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung v;
    v.zustand.M31 = f.m31 ? core::Wahr : core::Falsch;
    v.punkt(1, 0, 0);
    v.punkt(2, 3, 4);
    v.punkt(3, 10, 10);
    RechenDialog& d = v.oeffnen("MnuGerKleinPunkte", "Kleinpunkte");
    EXPECT_EQ(d.control("OptionRichtung", 0).value(), 1);
    EXPECT_EQ(d.control("OptionRichtung", f.richtung).captionText(), f.name);
    MenueUmgebung::eintragen(d, {{"G1P1Nr", "1"}, {"G1P2Nr", "2"}, {"PP1Nr", "3"}, {"Param(0)", "5"}});
    d.control("OptionRichtung", f.richtung).click();
    d.control("Berechnen").click();
    EXPECT_TRUE(v.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-6);
    EXPECT_NEAR(d.Ergebnis().B, f.b, 1e-6);
  }
}

TEST_F(KleinpunkteTest, EachResultIsTheNextStart) {
  RechenDialog& d = gefuellt();
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("ErgA").captionText(), "13.000");
  EXPECT_EQ(d.Ergebnis().C, 0) << "P's height is not taken over";
  EXPECT_EQ(d.control("PP1Nr").text(), "");
  EXPECT_EQ(d.Eingabe(2).Nummer, -1);
  EXPECT_NE(d.control("PP1").captionText().find("13.000"), std::string::npos);
  d.control("OptionRichtung", 2).click();
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 9, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 17, 1e-6);
}

TEST_F(KleinpunkteTest, ANumberForAIsAlsoP) {
  u.punkt(1, 0, 0);
  u.punkt(3, 10, 10);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("3");
  d.control("G1P1Nr").setText("1");
  EXPECT_EQ(d.control("PP1Nr").text(), "1");
  EXPECT_EQ(d.Eingabe(2).A, 0);
  EXPECT_EQ(d.Eingabe(2).Nummer, 1);
}

TEST_F(KleinpunkteTest, AByHandIsCopiedToP) {
  u.punkt(2, 3, 4);
  RechenDialog& d = oeffnen();
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("20");
    f.control("TextB").setText("30");
    f.control("OK").click();
  });
  d.control("GetG1P1").click();
  EXPECT_EQ(d.Eingabe(2).A, 20);
  EXPECT_EQ(d.Eingabe(2).B, 30);
  EXPECT_EQ(d.control("PP1").captionText(), d.control("G1P1").captionText());
  EXPECT_EQ(d.control("PP1Nr").text(), "");
  d.control("G1P2Nr").setText("2");
  d.control("Param", 0).setText("-10");
  d.control("Berechnen").click();
  // From A = P = (20, 30) ten against the way to E = (3, 4): away from E
  EXPECT_NEAR(d.Ergebnis().A, 25.472494, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 38.369696, 1e-6);
  // A confirmed as it stands puts the next step back at A, each time.
  for (int i = 0; i < 2; ++i) {
    d.control("Berechnen").click();
    u.host.onModal([](forms::Form& f) { f.control("OK").click(); });
    d.control("GetG1P1").click();
    EXPECT_EQ(d.Eingabe(2).A, 20);
    EXPECT_EQ(d.Eingabe(2).B, 30);
  }
  d.control("Berechnen").click();
  u.host.onModal([](forms::Form& f) { f.control("Cancel").click(); });
  d.control("GetG1P1").click();
  EXPECT_NEAR(d.Eingabe(2).A, 25.472494, 1e-6) << "cancelled: P stays where the step led";
}

TEST_F(KleinpunkteTest, AKeyInTheDistanceOrAWayChosenMakesBerechnenTheDefault) {
  RechenDialog& d = gefuellt();
  d.control("Berechnen").click();
  d.control("PktNr").setText("11");
  ASSERT_TRUE(d.control("Speichern").isDefault());
  forms::Control& feld = d.control("Param", 0);
  d.sendKey(feld, forms::keys::KeyCodeOfChar('7'), 0, U'7');
  EXPECT_TRUE(d.control("Berechnen").isDefault());
  d.control("PktNr").setText("12");
  ASSERT_TRUE(d.control("Speichern").isDefault());
  d.control("OptionRichtung", 3).click();
  EXPECT_TRUE(d.control("Berechnen").isDefault());
}

TEST_F(KleinpunkteTest, AnAngleOfThreeQuartersOrMoreRunsTowardPositiveA) {
  u.punkt(1, 0, 0);
  RechenDialog& d = oeffnen();
  MenueUmgebung::eintragen(d, {{"ComboGerade1", "4"}, {"G1P1Nr", "1"}, {"TextG1_1", "380"}, {"Param(0)", "10"}});
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 9.510565, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, -3.090170, 1e-6);
}

TEST_F(KleinpunkteTest, WithoutADirectionTheMessageAndAPolarPStaysRectangular) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 30, 40);
  RechenDialog& d = oeffnen();
  MenueUmgebung::eintragen(d, {{"G1P1Nr", "1"}, {"G1P2Nr", "1"}, {"Param(0)", "5"}});
  d.control("Berechnen").click();
  u.meldung("Kein Einrechnen möglich, da keine Richtung vorhanden ist!", d.caption());
  EXPECT_EQ(d.control("ErgA").captionText(), "");
  EXPECT_NEAR(d.Eingabe(2).A, 30, 1e-9);
  EXPECT_NEAR(d.Eingabe(2).B, 40, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).A, 50, 1e-9) << "A goes back";
}

}  // namespace
}  // namespace kolm::calc::testing

// FormKlotoide: the elements of a clothoid from two of L, A and R; worked
// values from data/klotoide_werte.py (points by numerical integration).
#include <string>
#include <vector>

#include "calc/frame/menue_umgebung.h"
#include "forms/keys.h"
#include "points/numbers/konstanten.h"

namespace kolm::calc::testing {
namespace {

struct KlotoideTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisKlotoide", "FormKlotoide"); }
  static void eingeben(RechenDialog& d, const std::string& L, const std::string& A, const std::string& R) {
    d.control("Param", 0).setText(L);
    d.control("Param", 1).setText(A);
    d.control("Param", 2).setText(R);
  }
  static std::vector<std::string> ergebnisse(const RechenDialog& d) {
    std::vector<std::string> e;
    for (int i = 0; i < 10; ++i) e.push_back(d.control("Erg", i).captionText());
    return e;
  }
  static bool offen(const RechenDialog& d, int i) {
    return d.control("Param", i).enabled() && d.control("Label", i).enabled();
  }
  const std::vector<std::string> leer = std::vector<std::string>(10, "");
};

TEST_F(KlotoideTest, TheMenuOpensItWithItsCaptionsAndNothingToCalculate) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Klotoidenberechnung");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&L=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "&A=");
  EXPECT_EQ(d.control("Label", 2).captionText(), "&R=");
  EXPECT_EQ(d.control("ErgLabel", 2).captionText(), "M (x,y)");
  EXPECT_EQ(d.control("ErgLabel", 4).captionText(), "Tk =");
  EXPECT_EQ(d.control("ErgLabel", 5).captionText(), "Tl =");
  EXPECT_EQ(d.control("ErgLabel", 6).captionText(), "X,Y");
  EXPECT_EQ(d.control("ErgLabel", 0).captionText(), "τ =");
  EXPECT_EQ(d.control("ErgLabel", 1).captionText(), "ΔR =");
  EXPECT_TRUE(d.control("Löschen").visible());
  EXPECT_TRUE(d.control("Abbrechen").visible());
  EXPECT_TRUE(d.control("Skizze").visible());
  EXPECT_FALSE(d.control("Schließen").visible());
  EXPECT_EQ(d.cancelButton(), &d.control("Abbrechen"));
  EXPECT_FALSE(d.control("Berechnen").enabled());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(offen(d, i)) << i;
  EXPECT_EQ(ergebnisse(d), leer);
}

TEST_F(KlotoideTest, TheBarButtonIsEnabledAndOpensItToo) {
  forms::Control& knopf = u.anwendung.main()->control("KreisButton", 12);
  EXPECT_EQ(knopf.toolTip(), "Klotoidenberechnung");
  EXPECT_TRUE(knopf.enabled());
  EXPECT_TRUE(u.anwendung.main()->control("MnuKreisKlotoide").enabled());
  knopf.click();
  ASSERT_NE(u.forms.find("FormKlotoide"), nullptr);
  EXPECT_EQ(u.forms.find("FormKlotoide")->caption(), "Klotoidenberechnung");
}

TEST_F(KlotoideTest, TwoFilledFieldsShutTheThirdAndOfferBerechnen) {
  RechenDialog& d = oeffnen();
  d.control("Param", 0).setText("100");
  EXPECT_FALSE(d.control("Berechnen").enabled());
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(offen(d, i));
  d.control("Param", 1).setText("100");
  EXPECT_TRUE(offen(d, 0));
  EXPECT_TRUE(offen(d, 1));
  EXPECT_FALSE(d.control("Param", 2).enabled());
  EXPECT_FALSE(d.control("Label", 2).enabled());
  EXPECT_TRUE(d.control("Berechnen").enabled());
  EXPECT_EQ(d.defaultButton(), &d.control("Berechnen"));
  // Blanks only count as empty.
  d.control("Param", 1).setText("  ");
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(offen(d, i));
  EXPECT_FALSE(d.control("Berechnen").enabled());
  d.control("Param", 2).setText("250");
  EXPECT_FALSE(offen(d, 1));
  EXPECT_TRUE(offen(d, 2));
  d.control("Param", 0).setText("");
  d.control("Param", 1).setText("150");
  EXPECT_FALSE(offen(d, 0));
  EXPECT_TRUE(offen(d, 1));
  EXPECT_TRUE(d.control("Berechnen").enabled());
}

struct Fall {
  const char* was;
  int einheit;  // 0 gon, 1 degrees, 2 radians
  const char *L, *A, *R;
  int gesucht;
  const char* gefuellt;
  std::vector<std::string> erg;  // tau, dR, xM, yM, Tk, Tl, x, y, chord, its angle
  // Where the series, stopped at 1E-7, parts from the integral in the sixth
  // decimal of the chord's angle: compared by value.
  double winkelToleranz = 0;
};

TEST_F(KlotoideTest, WorkedElementsForEachPairOfGivenValues) {
  const std::vector<Fall> faelle = {
      {"L and A, gon", 0, "100", "100", "", 2, "100.000",
       {"31.830989", "4.130", "49.586", "104.130", "34.148", "67.561", "97.529", "16.371", "98.893", "10.587737"}},
      {"L and R, degrees", 1, "80", "", "250", 1, "141.421",
       {"9.167325", "1.066", "39.966", "251.066", "26.732", "53.405", "79.795", "4.259", "79.909", "3.055112"}},
      {"A and R, gon", 0, "", "150", "300", 0, "75.000",
       {"7.957747", "0.781", "37.480", "300.781", "25.037", "50.041", "74.883", "3.122", "74.948", "2.652231"}},
      {"A and R, radians", 2, "", "150", "300", 0, "75.000",
       {"0.125", "0.781", "37.480", "300.781", "25.037", "50.041", "74.883", "3.122", "74.948", "0.041661"}},
      {"tau 4.5, the terms grow before they fall", 0, "300", "100", "", 2, "33.333",
       {"286.478898", "58.275", "90.233", "91.609", "-100.902", "36.379", "57.649", "98.635", "114.247",
        "66.327949"},
       2e-6},
      {"negative length", 0, "-100", "100", "", 2, "-100.000",
       {"31.830989", "-4.130", "-49.586", "-104.130", "-34.148", "-67.561", "-97.529", "-16.371", "98.893",
        "10.587737"}},
      {"comma as decimal point", 0, "100,0", "100", "", 2, "100.000",
       {"31.830989", "4.130", "49.586", "104.130", "34.148", "67.561", "97.529", "16.371", "98.893", "10.587737"}},
  };
  for (const Fall& f : faelle) {
    MenueUmgebung v;
    v.zustand.WinkelFaktor = numbers::WinkelFaktorFuer(f.einheit);
    RechenDialog& d = v.oeffnen("MnuKreisKlotoide", "FormKlotoide");
    eingeben(d, f.L, f.A, f.R);
    d.control("Berechnen").click();
    EXPECT_EQ(d.control("Param", f.gesucht).text(), f.gefuellt) << f.was;
    std::vector<std::string> e = ergebnisse(d);
    if (f.winkelToleranz > 0) {
      EXPECT_NEAR(numbers::ZahlLesen(e[9]), numbers::ZahlLesen(f.erg[9]), f.winkelToleranz) << f.was;
      e[9] = f.erg[9];
    }
    EXPECT_EQ(e, f.erg) << f.was;
    EXPECT_TRUE(v.meldungen().empty()) << f.was;
  }
}

TEST_F(KlotoideTest, NeitherThePolarNorTheM31TableChangesTheNumbers) {
  u.zustand.Polar = core::Wahr;
  u.zustand.M31 = core::Wahr;
  u.zustand.Falschdrehend = core::Wahr;
  RechenDialog& d = oeffnen();
  eingeben(d, "100", "100", "");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Param", 2).text(), "100.000");
  EXPECT_EQ(ergebnisse(d), (std::vector<std::string>{"31.830989", "4.130", "49.586", "104.130", "34.148",
                                                      "67.561", "97.529", "16.371", "98.893", "10.587737"}));
}

TEST_F(KlotoideTest, ASmallResultFilledInHasNoLeadingZero) {
  RechenDialog& d = oeffnen();
  eingeben(d, "4", "1", "");  // R = 0.25, tau = 8
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Param", 2).text(), ".250");
  EXPECT_NE(d.control("Erg", 9).captionText(), "");
}

TEST_F(KlotoideTest, ThreeFilledFieldsRunAsAStraightUntilTheTangentsFail) {
  RechenDialog& d = oeffnen();
  eingeben(d, "100", "100", "");
  d.control("Berechnen").click();
  const std::vector<std::string> vorher = ergebnisse(d);
  ASSERT_EQ(vorher[4], "34.148");
  // R was filled in; now L is changed and all three hold text.
  d.control("Param", 0).setText("50");
  EXPECT_TRUE(d.control("Berechnen").enabled());
  d.control("Berechnen").click();
  const std::vector<std::string> e = ergebnisse(d);
  EXPECT_EQ(e[0], "0.000");    // tau
  EXPECT_EQ(e[1], "0.000");    // Delta R
  EXPECT_EQ(e[2], "50.000");   // xM: the end of the straight
  EXPECT_EQ(e[3], "100.000");  // yM: R as typed
  for (int i = 4; i < 10; ++i) EXPECT_EQ(e[static_cast<size_t>(i)], vorher[static_cast<size_t>(i)]) << i;
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("Param", 2).text(), "100.000");
}

TEST_F(KlotoideTest, FailuresEndQuietlyAndLeaveWhatWasThere) {
  struct Versuch { const char *was, *L, *A, *R; int gesucht; };
  for (const Versuch& v : {Versuch{"L 0 with R empty", "0", "100", "", 2},
                           Versuch{"A 0 with R empty", "100", "0", "", 2},
                           Versuch{"root of a negative L*R", "-10", "", "100", 1},
                           Versuch{"R 0 with L empty", "", "100", "0", 0}}) {
    MenueUmgebung w;
    RechenDialog& d = w.oeffnen("MnuKreisKlotoide", "FormKlotoide");
    eingeben(d, v.L, v.A, v.R);
    d.control("Berechnen").click();
    EXPECT_EQ(d.control("Param", v.gesucht).text(), "") << v.was;
    EXPECT_EQ(ergebnisse(d), leer) << v.was;
    EXPECT_TRUE(w.meldungen().empty()) << v.was;
  }
}

TEST_F(KlotoideTest, AnOverflowingSeriesEndsWithTheFilledFieldAndTheOldResults) {
  RechenDialog& d = oeffnen();
  eingeben(d, "100", "100", "");
  d.control("Berechnen").click();
  const std::vector<std::string> vorher = ergebnisse(d);
  d.control("Param", 2).setText("");
  eingeben(d, "40", "1", "");  // tau = 800: the terms overflow
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Param", 2).text(), ".025");
  EXPECT_EQ(ergebnisse(d), vorher);
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(KlotoideTest, AHugeTauStillEndsWithFiniteNumbers) {
  // tau = 312.5: the series has no step limit here and runs until its terms
  // fall; all digits are lost to cancellation, but it ends.
  RechenDialog& d = oeffnen();
  eingeben(d, "1000", "40", "");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Param", 2).text(), "1.600");
  for (const std::string& t : ergebnisse(d)) {
    EXPECT_FALSE(t.empty());
    EXPECT_EQ(t.find('#'), std::string::npos) << t;
  }
}

TEST_F(KlotoideTest, LoeschenEmptiesEverythingAndOpensTheFields) {
  RechenDialog& d = oeffnen();
  eingeben(d, "", "150", "300");
  d.control("Berechnen").click();
  ASSERT_EQ(d.control("Erg", 0).captionText(), "7.957747");
  d.control("Löschen").click();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(d.control("Param", i).text(), "");
    EXPECT_TRUE(offen(d, i)) << i;
  }
  EXPECT_EQ(ergebnisse(d), leer);
  EXPECT_FALSE(d.control("Berechnen").enabled());
}

TEST_F(KlotoideTest, VariableLettersInTheFields) {
  u.zustand.Variablen[11] = 100;  // L
  RechenDialog& d = oeffnen();
  forms::Control& feld = d.control("Param", 1);
  feld.setFocus();
  d.sendKey(feld, forms::keys::KeyCodeOfChar('l'), 0, U'l');
  EXPECT_EQ(numbers::ZahlLesen(feld.text()), 100);
  d.control("Param", 0).setText("80");
  forms::Control& l = d.control("Param", 0);
  l.setFocus();
  d.sendKey(l, forms::keys::KeyCodeOfChar('K'), 0, U'K');
  EXPECT_EQ(u.zustand.Variablen[10], 80);
  EXPECT_EQ(l.text(), "80");
}

TEST_F(KlotoideTest, SkizzeShowsItsTopicAndAbbrechenCloses) {
  RechenDialog& d = oeffnen();
  d.control("Skizze").click();
  ASSERT_EQ(u.dienste.help.topics().size(), 1u);
  EXPECT_EQ(u.dienste.help.topics()[0], "FormKlotoide");
  d.control("Abbrechen").click();
  EXPECT_EQ(u.forms.find("FormKlotoide"), nullptr);
}

}  // namespace
}  // namespace kolm::calc::testing

// FormKlotoide: the elements of a clothoid from two of L, A and R; worked
// values from data/klotoide_werte.py (points by numerical integration).
#include <string>
#include <vector>

#include "calc/frame/menue_umgebung.h"
#include "points/numbers/konstanten.h"

namespace kolm::calc::testing {
namespace {

using Texte = std::vector<std::string>;

struct KlotoideTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisKlotoide", "FormKlotoide"); }
  static void rechnen(RechenDialog& d, const std::string& L, const std::string& A, const std::string& R) {
    d.control("Param", 0).setText(L);
    d.control("Param", 1).setText(A);
    d.control("Param", 2).setText(R);
    d.control("Berechnen").click();
  }
  static Texte ergebnisse(const RechenDialog& d) {
    Texte e;
    for (int i = 0; i < 10; ++i) e.push_back(d.control("Erg", i).captionText());
    return e;
  }
  static bool offen(const RechenDialog& d, int i) {
    return d.control("Param", i).enabled() && d.control("Label", i).enabled();
  }
  const Texte leer = Texte(10, "");
  // L 100, A 100 in gon: tau, dR, xM, yM, Tk, Tl, x, y, chord, its angle.
  const Texte l100a100 = {"31.830989", "4.130", "49.586", "104.130", "34.148",
                          "67.561",    "97.529", "16.371", "98.893", "10.587737"};
};

// Captions of the fields, the enabling of the first pair, L 100 A 100,
// three filled fields run as a straight and Löschen are covered end to end
// by the rechnen_klotoide macro.

TEST_F(KlotoideTest, TheResultsAreNamedAndAbbrechenTakesThePlaceOfSchliessen) {
  RechenDialog& d = oeffnen();
  const Texte erg = {"τ =", "ΔR =", "M (x,y)", "", "Tk", "Tl", "X,Y", "", "Sehne =", "σ ="};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(d.control("ErgLabel", i).captionText(), erg[static_cast<size_t>(i)]);
  EXPECT_FALSE(d.control("Schließen").visible());
  EXPECT_EQ(d.cancelButton(), &d.control("Abbrechen"));
  d.control("Abbrechen").click();
  EXPECT_EQ(u.forms.find("FormKlotoide"), nullptr);
}

TEST_F(KlotoideTest, TwoFilledFieldsShutTheThirdAndOfferBerechnen) {
  RechenDialog& d = oeffnen();
  d.control("Param", 0).setText("100");
  EXPECT_FALSE(d.control("Berechnen").enabled());
  d.control("Param", 1).setText("100");
  EXPECT_TRUE(offen(d, 0) && offen(d, 1));
  EXPECT_FALSE(d.control("Param", 2).enabled());
  EXPECT_FALSE(d.control("Label", 2).enabled());
  EXPECT_TRUE(d.control("Berechnen").enabled());
  EXPECT_EQ(d.defaultButton(), &d.control("Berechnen"));
  d.control("Param", 1).setText("  ");  // blanks only count as empty
  EXPECT_TRUE(offen(d, 0) && offen(d, 1) && offen(d, 2));
  EXPECT_FALSE(d.control("Berechnen").enabled());
  d.control("Param", 2).setText("250");
  EXPECT_FALSE(offen(d, 1));
  d.control("Param", 0).setText("");
  d.control("Param", 1).setText("150");
  EXPECT_FALSE(offen(d, 0));
  EXPECT_TRUE(offen(d, 1) && offen(d, 2));
}

TEST_F(KlotoideTest, WorkedElementsForEachPairOfGivenValues) {
  struct Fall {
    const char* was;
    int einheit;  // 0 gon, 1 degrees, 2 radians
    const char *L, *A, *R;
    int gesucht;
    const char* gefuellt;
    Texte erg;
    // The series, stopped at 1E-7, parts from the integral in the sixth
    // decimal of the chord's angle: compared by value there.
    double winkelToleranz = 0;
  };
  const std::vector<Fall> faelle = {
      {"L and A, gon", 0, "100", "100", "", 2, "100.000", l100a100},
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
      {"comma as decimal point", 0, "100,0", "100", "", 2, "100.000", l100a100},
  };
  for (const Fall& f : faelle) {
    MenueUmgebung v;
    v.zustand.WinkelFaktor = numbers::WinkelFaktorFuer(f.einheit);
    RechenDialog& d = v.oeffnen("MnuKreisKlotoide", "FormKlotoide");
    rechnen(d, f.L, f.A, f.R);
    EXPECT_EQ(d.control("Param", f.gesucht).text(), f.gefuellt) << f.was;
    Texte e = ergebnisse(d);
    if (f.winkelToleranz > 0) {
      EXPECT_NEAR(numbers::ZahlLesen(e[9]), numbers::ZahlLesen(f.erg[9]), f.winkelToleranz) << f.was;
      e[9] = f.erg[9];
    }
    EXPECT_EQ(e, f.erg) << f.was;
    EXPECT_TRUE(v.meldungen().empty()) << f.was;
  }
}

TEST_F(KlotoideTest, NeitherThePolarNorTheM31TableChangesTheNumbers) {
  u.zustand.Polar = u.zustand.M31 = u.zustand.Falschdrehend = core::Wahr;
  RechenDialog& d = oeffnen();
  rechnen(d, "100", "100", "");
  EXPECT_EQ(ergebnisse(d), l100a100);
}

TEST_F(KlotoideTest, FailuresEndQuietlyAndLeaveWhatWasThere) {
  // A length of 0 found or given with R typed makes tau 0: the field is
  // filled in, and R = (L / 2) / tau then fails.
  struct Versuch { const char *was, *L, *A, *R; int gesucht; const char* gefuellt; };
  for (const Versuch& v : {Versuch{"L 0 with R empty", "0", "100", "", 2, ""},
                           Versuch{"A 0 with R empty", "100", "0", "", 2, ""},
                           Versuch{"root of a negative L*R", "-10", "", "100", 1, ""},
                           Versuch{"R 0 with L empty", "", "100", "0", 0, ""},
                           Versuch{"L 0 with A empty", "0", "", "100", 1, ".000"},
                           Versuch{"A 0 with L empty", "", "0", "100", 0, ".000"}}) {
    MenueUmgebung w;
    RechenDialog& d = w.oeffnen("MnuKreisKlotoide", "FormKlotoide");
    rechnen(d, v.L, v.A, v.R);
    EXPECT_EQ(d.control("Param", v.gesucht).text(), v.gefuellt) << v.was;
    EXPECT_EQ(ergebnisse(d), leer) << v.was;
    EXPECT_TRUE(w.meldungen().empty()) << v.was;
  }
}

TEST_F(KlotoideTest, AnOverflowingSeriesEndsWithTheFilledFieldAndTheOldResults) {
  RechenDialog& d = oeffnen();
  rechnen(d, "100", "100", "");
  rechnen(d, "40", "1", "");  // tau = 800: the terms overflow
  EXPECT_EQ(d.control("Param", 2).text(), ".025") << "the fixed pattern has no leading zero";
  EXPECT_EQ(ergebnisse(d), l100a100);
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(KlotoideTest, AHugeTauStillEndsWithFiniteNumbers) {
  // tau = 312.5: no step limit here; cancellation eats every digit, but the
  // terms fall in the end.
  RechenDialog& d = oeffnen();
  rechnen(d, "1000", "40", "");
  EXPECT_EQ(d.control("Param", 2).text(), "1.600");
  for (const std::string& t : ergebnisse(d)) {
    EXPECT_FALSE(t.empty());
    EXPECT_EQ(t.find('#'), std::string::npos) << t;  // "1.#INF", "1.#QNAN"
  }
}

}  // namespace
}  // namespace kolm::calc::testing

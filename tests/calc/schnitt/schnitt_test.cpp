// Vorwärtsschnitt and Rückwärtsschnitt as the user opens and fills them.
// Expected points from data/werte.py: for the forward intersection the
// rays intersected as lines, for the resection the angles a chosen station
// sees between the three points, which the dialog must find again. Typed
// points, storing, M31 and a polar table are covered end to end by the
// rechnen_*schnitt* macros.
#include <array>
#include <string>
#include <vector>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct Fall {
  const char* name;
  bool rueckwaerts;
  double faktor;                            // the angle unit
  std::vector<std::array<double, 3>> punkte;  // points 1, 2, 3 with heights
  std::vector<const char*> winkel;          // the angle fields in order
  double a, b;                              // the station, or NaN for the message
};

RechenDialog& rechnen(MenueUmgebung& u, const Fall& f) {
  u.zustand.WinkelFaktor = f.faktor;
  for (size_t i = 0; i < f.punkte.size(); ++i)
    u.punkt(static_cast<int>(i) + 1, f.punkte[i][0], f.punkte[i][1], f.punkte[i][2]);
  RechenDialog& d = f.rueckwaerts ? u.oeffnen("MnuGerRückwärtsschnitt", "Rückwärtsschnitt")
                                  : u.oeffnen("MnuGerVorwärtsschnitt", "Vorwärtsschnitt");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText(f.punkte.size() > 1 ? "2" : "1");
  if (f.rueckwaerts) d.control("PP3Nr").setText(f.punkte.size() > 2 ? "3" : "1");
  // The forward angles are fields 1 and 2, the resection's 0 and 1.
  for (size_t i = 0; i < f.winkel.size(); ++i)
    d.control("Param", static_cast<int>(i) + (f.rueckwaerts ? 0 : 1)).setText(f.winkel[i]);
  d.control("Berechnen").click();
  return d;
}

TEST(Schnitt, TheStationIsFoundWithoutTakingAHeightOver) {
  const double gon = kPi / 200;
  const Fall faelle[] = {
      {"forward, base along a", false, gon, {{100, 100, 55}, {200, 100, 0}}, {"50", "30"}, 133.754015, 133.754015},
      {"forward, skew base, fractional angles", false, gon, {{10, 20, 0}, {70, -40, 0}}, {"35,5", "62.25"},
       78.592365, 4.101143},
      {"resection", true, gon, {{0, 100, 42}, {100, 130, 0}, {200, 90, 0}}, {"48.141784037", "54,887450387"}, 110, 0},
      {"resection, larger figure", true, gon, {{1000, 2000, 0}, {1500, 2600, 0}, {2100, 2100, 0}},
       {"48.726930173", "49.115862713"}, 1400, 1500},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    RechenDialog& d = rechnen(u, f);
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-5);
    EXPECT_NEAR(d.Ergebnis().B, f.b, 1e-5);
    EXPECT_EQ(d.Ergebnis().C, 0) << "P1's height is not taken over";
    for (size_t i = 0; i < f.punkte.size(); ++i)
      EXPECT_DOUBLE_EQ(d.Eingabe(static_cast<int>(i)).A, f.punkte[i][0]) << "the given points are only read";
  }
}

TEST(Schnitt, AnImpossibleFigureSaysSoAndOffersNoNumber) {
  // In radians a beta of exactly the program's Pi folds the second ray onto
  // the base; three equal points and no angles give both rays slope 0.
  const Fall faelle[] = {
      {"Vorwärtsschnitt", false, 1, {{0, 0, 0}, {10, 0, 0}}, {"0", "3.141592654"}, 0, 0},
      {"Rückwärtsschnitt", true, kPi / 200, {{5, 5, 0}}, {}, 0, 0},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    RechenDialog& d = rechnen(u, f);
    u.meldung(std::string("Mit diesen Parametern kann kein ") + f.name + " eingerechnet werden!", "Kolm");
    EXPECT_EQ(d.control("PktNr").text(), "") << "nothing offered";
    EXPECT_EQ(d.control("ErgA").captionText(), "");
  }
}

TEST(Schnitt, TheAnglesAreNamedInTheSketchsTerms) {
  MenueUmgebung u;
  RechenDialog& v = u.oeffnen("MnuGerVorwärtsschnitt", "Vorwärtsschnitt");
  EXPECT_EQ(v.control("Label", 1).captionText(), "α");
  EXPECT_EQ(v.control("Label", 2).captionText(), "β");
}

}  // namespace
}  // namespace kolm::calc::testing

// The circle dialogs: two circles, line and circle, tangents from a point,
// the circle through three points. Worked values from data/werte.py; the
// line through the centre of circle (10, 10) r 5 with direction (0.6, 0.8)
// meets it at (13, 14) ahead and (7, 6) behind; circle (50, 50) r 13 and
// the line b = 45 are 5 apart, so the points lie 12 either side of (50, 45).
// Captions, storing, typed points, M31, a polar table and the messages with
// their titles are covered end to end by the rechnen_kreis*, rechnen_umkreis
// and rechnen_kreise_* macros.
#include <array>
#include <map>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct Dialog {
  const char *menue, *form;
};
constexpr Dialog kKreisKreis{"MnuKreisKreisKreis", "KreisKreis"};
constexpr Dialog kGeradeKreis{"MnuKreisKreisGerade", "GeradeKreis"};
constexpr Dialog kTangenten{"MnuKreisTangenten", "KreisTangenten"};
constexpr Dialog kUmkreis{"MnuKreisUmkreis", "UmkreisMittelpunkt"};

struct Fall {
  const char* name;
  Dialog dialog;
  std::vector<std::array<double, 3>> punkte;  // points 1, 2, ... with heights
  MenueUmgebung::Felder eingeben;
  std::vector<double> ergebnis = {};  // a, b of each result point
};

void nummern(RechenDialog& d, std::initializer_list<const char*> felder) {
  int n = 1;
  for (const char* feld : felder) d.control(feld).setText(std::to_string(n++));
}

TEST(Kreise, EachDialogGivesItsWorkedPointsInItsOrderWithoutTheHeights) {
  const Fall faelle[] = {
      // The larger circle second: still the point left of it first.
      {"two circles, swapped", kKreisKreis, {{140, 230, 7}, {100, 200, 9}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "25"}, {"Param(1)", "30"}},
       {115.360592131, 225.769210492, 129.039407869, 207.530789508}},
      {"touching circles", kKreisKreis, {{0, 0, 0}, {10, 0, 0}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "6"}, {"Param(1)", "4"}},
       {6, 0, 6, 0}},
      {"line through the centre", kGeradeKreis, {{10, 10, 3}, {4, 2, 4}, {16, 18, 5}},
       {{"PP1Nr", "1"}, {"G1P1Nr", "2"}, {"G1P2Nr", "3"}, {"Param(0)", "5"}},
       {13, 14, 7, 6}},
      {"tangents", kTangenten, {{10, 20, 3}, {40, 60, 4}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "5"}},
       {14.279949748, 17.415037689, 6.320050252, 23.384962311}},
      {"circumcircle", kUmkreis, {{2, 1, 1}, {9, 4, 1}, {3, 8, 1}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"PP3Nr", "3"}}, {4.782608696, 4.173913043}},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    for (size_t i = 0; i < f.punkte.size(); ++i)
      u.punkt(static_cast<int>(i) + 1, f.punkte[i][0], f.punkte[i][1], f.punkte[i][2]);
    RechenDialog& d = u.oeffnen(f.dialog.menue, f.dialog.form);
    MenueUmgebung::eintragen(d, f.eingeben);
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    for (size_t i = 0; i < f.ergebnis.size() / 2; ++i) {
      const int n = f.ergebnis.size() == 2 ? -1 : static_cast<int>(i);
      const core::Punkt& p = n < 0 ? d.Ergebnis() : d.Ergebnis(n);
      EXPECT_NEAR(p.A, f.ergebnis[2 * i], 1e-6) << i;
      EXPECT_NEAR(p.B, f.ergebnis[2 * i + 1], 1e-6) << i;
      EXPECT_EQ(p.C, 0) << "heights are not taken over";
    }
  }
}

TEST(Kreise, TheTangentLengthIsShown) {
  MenueUmgebung u;
  u.punkt(1, 10, 20);
  u.punkt(2, 40, 60);
  RechenDialog& t = u.oeffnen(kTangenten.menue, kTangenten.form);
  nummern(t, {"PP1Nr", "PP2Nr"});
  t.control("Param", 0).setText("5");
  t.control("Berechnen").click();
  EXPECT_EQ(t.control("Erg", 0).captionText(), "49.749372");
}

TEST(Kreise, NoSolutionSaysSoAndKeepsOrClearsTheResults) {
  const Fall faelle[] = {
      {"one circle inside the other", kKreisKreis, {{0, 0, 0}, {1, 0, 0}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "10"}, {"Param(1)", "2"}}},
      {"line 5 from a circle of 4.9", kGeradeKreis, {{50, 50, 0}, {30, 45, 0}},
       {{"PP1Nr", "1"}, {"Param(0)", "4.9"}, {"ComboGerade1", "7"}, {"G1P1Nr", "2"}}},
      {"line with the ratio 0 to 0", kGeradeKreis, {{50, 50, 0}, {30, 45, 0}},
       {{"PP1Nr", "1"}, {"Param(0)", "13"}, {"ComboGerade1", "1"}, {"G1P1Nr", "2"}, {"TextG1_1", "0"},
        {"TextG1_2", "0"}}},
      {"point on the circle", kTangenten, {{10, 20, 0}, {13, 24, 0}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "5"}}},
      {"point inside the circle", kTangenten, {{10, 20, 0}, {11, 21, 0}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "5"}}},
      {"collinear points", kUmkreis, {{0, 0, 0}, {1, 1, 0}, {3, 3, 0}},
       {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"PP3Nr", "3"}}},
  };
  const std::map<std::string, std::string> texte = {{kKreisKreis.form, "Kein Kreisschnitt vorhanden!"},
                                                    {kGeradeKreis.form, "Kein Kreis-Geradenschnitt vorhanden!"},
                                                    {kTangenten.form, "Keine Tangenten vorhanden!"},
                                                    {kUmkreis.form, "Kein Kreis vorhanden!"}};
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    for (size_t i = 0; i < f.punkte.size(); ++i)
      u.punkt(static_cast<int>(i) + 1, f.punkte[i][0], f.punkte[i][1], f.punkte[i][2]);
    RechenDialog& d = u.oeffnen(f.dialog.menue, f.dialog.form);
    MenueUmgebung::eintragen(d, f.eingeben);
    d.control("Berechnen").click();
    u.meldung(texte.at(f.dialog.form));
    const int erster = std::string(f.dialog.form) == kUmkreis.form ? -1 : 0;
    EXPECT_EQ(d.control("ErgA", erster).captionText(), "");
  }
}

// ---- the nine ways of giving the line

struct GeradeKreisTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& d = u.oeffnen(kGeradeKreis.menue, kGeradeKreis.form);
};

TEST_F(GeradeKreisTest, TheEntriesShowTheirFieldsAndCaptions) {
  EXPECT_EQ(d.control("ComboGerade1").listCount(), 9);
  EXPECT_TRUE(d.control("G1P2Nr").visible());
  EXPECT_FALSE(d.control("TextG1_1").visible());
  d.control("ComboGerade1").setListIndex(1);
  EXPECT_FALSE(d.control("G1P2Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungs&verhältnis:");
  EXPECT_EQ(d.control("LabelG1_2").captionText(), "zu");
  d.control("ComboGerade1").setListIndex(2);
  EXPECT_TRUE(d.control("TextG1_1").visible());
  EXPECT_FALSE(d.control("TextG1_2").visible());
  d.control("ComboGerade1").setListIndex(8);
  EXPECT_FALSE(d.control("G1P1Nr").visible());
  EXPECT_EQ(d.control("LabelG1_1").captionText(), "Steigungsfaktor &k =");
  EXPECT_EQ(d.control("LabelG1_2").captionText(), "&d =");
}

TEST_F(GeradeKreisTest, TheWaysOfGivingTheLineMeetTheSamePoints) {
  struct Weg {
    int eintrag;
    const char *t1, *t2;
    double a1;  // first point's a: 62 ahead along +a, 38 along -a (to Pi's ten digits)
  };
  // Entry 8 overwrites the first point's record, so it comes last.
  for (const Weg f : {Weg{1, "0", "1", 62}, Weg{2, "0", "", 62}, Weg{3, "0", "", 62}, Weg{4, "0", "", 62},
                      Weg{5, "-2", "0", 38}, Weg{7, "", "", 62}, Weg{8, "0", "45", 62}}) {
    SCOPED_TRACE(f.eintrag);
    u.punkt(1, 50, 50);
    u.punkt(2, 30, 45);
    MenueUmgebung::eintragen(d, {{"PP1Nr", ""}, {"PP1Nr", "1"}, {"Param(0)", "13"}});
    d.control("ComboGerade1").setListIndex(f.eintrag);
    d.control("G1P1Nr").setText("");
    d.control("G1P1Nr").setText("2");
    d.control("TextG1_1").setText(f.t1);
    d.control("TextG1_2").setText(f.t2);
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis(0).A, f.a1, 1e-6);
    EXPECT_NEAR(d.Ergebnis(0).B, 45, 1e-6);
    EXPECT_NEAR(d.Ergebnis(1).A, 100 - f.a1, 1e-6);
  }
}

TEST_F(GeradeKreisTest, APolarTableSendsTheLineBackButKeepsTheCentreRectangular) {
  // Below and left of the origin, where a way back to polar and forth again
  // would turn the centre by the program's Pi.
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, -10, -10);
  u.polarPunkt(2, -16, -18);
  u.polarPunkt(3, -4, -2);
  nummern(d, {"PP1Nr", "G1P1Nr", "G1P2Nr"});
  d.control("Param", 0).setText("5");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 9.219544457, 1e-7);
  EXPECT_NEAR(d.Ergebnis(0).B, 245.112549626, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 19.104973175, 1e-7);
  EXPECT_NEAR(d.Ergebnis(1).B, 252.356773793, 1e-6);
  EXPECT_NEAR(d.Eingabe(1).A, u.zustand.Punkte[2].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, u.zustand.Punkte[2].B, 1e-7);
  EXPECT_NEAR(d.Eingabe(2).B, u.zustand.Punkte[3].B, 1e-7);
  EXPECT_NEAR(d.Eingabe(0).A, -9.999999991796, 1e-11) << "the centre stays as its one conversion made it";
  EXPECT_NEAR(d.Eingabe(0).B, -10.000000008204, 1e-11);
}

}  // namespace
}  // namespace kolm::calc::testing

// The line-intersection dialogs: two lines meet (FormGeradenschnitt), the
// foot of the perpendicular from P (Form3PktGeradenschnitt), the parallel
// to g1 through P meets g2 (FormParallelenSchnitt). Each line is given in
// one of nine ways. g1 runs through points 1 (10, 20) and 2 (50, 40), g2
// through 3 (20, 60) and 4 (60, 0), P is point 5. Worked values from
// data/werte.py. Captions, storing, the overwrite prompt and polar tables
// (P of the parallel taken as it stands) are covered end to end by the
// rechnen_geraden* macros.
#include <functional>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct Dialog {
  const char *menue, *form;
};
constexpr Dialog kVier{"MnuGer4Pkt", "FormGeradenschnitt"};
constexpr Dialog kLot{"MnuGer3Pkt", "Form3PktGeradenschnitt"};
constexpr Dialog kParallele{"MnuGerParallelenschnitt", "FormParallelenSchnitt"};

struct GeradenUmgebung : MenueUmgebung {
  // The four points of g1 and g2 and P, rectangular or as a polar table holds them.
  void geraden(double pa, double pb, bool polar = false) {
    zustand.Polar = polar ? core::Wahr : core::Falsch;
    const double p[4][2] = {{10, 20}, {50, 40}, {20, 60}, {60, 0}};
    for (int i = 0; i < 4; ++i) {
      if (polar)
        polarPunkt(i + 1, p[i][0], p[i][1]);
      else
        punkt(i + 1, p[i][0], p[i][1]);
    }
    if (polar)
      polarPunkt(5, pa, pb);
    else
      punkt(5, pa, pb);
  }
  // The dialog with g1 through 1 and 2, g2 (where there is one) through 3 and 4, P = 5.
  RechenDialog& oeffnen(Dialog dialog) {
    RechenDialog& d = MenueUmgebung::oeffnen(dialog.menue, dialog.form);
    d.control("G1P1Nr").setText("1");
    d.control("G1P2Nr").setText("2");
    if (d.find("G2P1Nr")) {
      d.control("G2P1Nr").setText("3");
      d.control("G2P2Nr").setText("4");
    }
    if (d.find("PP1Nr")) d.control("PP1Nr").setText("5");
    return d;
  }
};

struct Fall {
  const char* name;
  Dialog dialog;
  double pa, pb;  // P
  bool m31;
  MenueUmgebung::Felder eingeben;
  double a, b;
  std::function<void(RechenDialog&)> pruefen;
};

TEST(Geraden, EachWayOfGivingTheLinesMeetsTheWorkedPoint) {
  const auto keine = [](RechenDialog&) {};
  const Fall faelle[] = {
      {"two lines of two points", kVier, 30, 70, false, {}, 37.5, 33.75,
       [](RechenDialog& d) {
         EXPECT_EQ(d.control("ErgA").captionText(), "37.500");
         EXPECT_EQ(d.control("PktNr").text(), "6");
       }},
      {"a percentage and a slope with offset", kVier, 30, 70, false,
       {{"ComboGerade1", "2"}, {"TextG1_1", "50"}, {"ComboGerade2", "8"}, {"TextG2_1", "-1.5"}, {"TextG2_2", "90"}},
       37.5, 33.75,
       [](RechenDialog& d) {
         EXPECT_EQ(d.Eingabe(2).A, 0) << "P3 (20, 60) is overwritten: the line starts at (0, d)";
         EXPECT_EQ(d.Eingabe(2).B, 90);
         EXPECT_EQ(d.Eingabe(1).A, 110) << "the constructed point stays in its record";
       }},
      {"an angle from the system's axis", kVier, 30, 70, false, {{"ComboGerade1", "4"}, {"TextG1_1", "50"}},
       32, 42, keine},
      {"under M31 the angle starts from the other axis", kVier, 30, 70, true,
       {{"ComboGerade1", "4"}, {"TextG1_1", "100"}},
       46.666666667, 20, keine},
      {"the foot of the perpendicular", kLot, 30, 70, false, {}, 46, 38, keine},
      {"the foot on a vertical through P1", kLot, 30, 70, false, {{"ComboGerade1", "6"}}, 10, 70, keine},
      {"the parallel through P", kParallele, 0, 30, false, {}, 30, 45, keine},
      {"the parallel by vector against a slope", kParallele, 0, 30, false,
       {{"ComboGerade1", "5"}, {"TextG1_1", "2"}, {"TextG1_2", "1"}, {"ComboGerade2", "3"}, {"TextG2_1", "-1.5"}},
       30, 45, keine},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    GeradenUmgebung u;
    u.zustand.M31 = f.m31 ? core::Wahr : core::Falsch;
    u.geraden(f.pa, f.pb);
    RechenDialog& d = u.oeffnen(f.dialog);
    MenueUmgebung::eintragen(d, f.eingeben);
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-6);
    EXPECT_NEAR(d.Ergebnis().B, f.b, 1e-6);
    f.pruefen(d);
  }
}

TEST(Geraden, ParallelLinesOrNoDirectionAreNoIntersection) {
  struct Kein {
    const char* name;
    Dialog dialog;
    MenueUmgebung::Felder eingeben;
    const char* titel;
  };
  const Kein faelle[] = {
      {"the same line twice", kVier, {{"G2P1Nr", "1"}, {"G2P2Nr", "2"}}, "Geradenschnitt"},
      {"a point twice", kVier, {{"G2P1Nr", "3"}, {"G2P2Nr", "3"}}, "Geradenschnitt"},
      {"a line without direction", kLot, {{"G1P2Nr", "1"}}, "Rechtwinkeliger Geradenschnitt"},
      {"the ratio 0 to 0", kLot, {{"ComboGerade1", "1"}, {"TextG1_1", "0"}, {"TextG1_2", "0"}},
       "Rechtwinkeliger Geradenschnitt"},
      // The parallel dialog's box carries the title of the two-line dialog.
      {"g2 parallel to g1", kParallele, {{"G2P1Nr", "1"}, {"G2P2Nr", "2"}}, "Geradenschnitt"},
  };
  for (const Kein& f : faelle) {
    SCOPED_TRACE(f.name);
    GeradenUmgebung u;
    u.geraden(0, 30);
    RechenDialog& d = u.oeffnen(f.dialog);
    d.control("Berechnen").click();
    const std::string vorher = d.control("ErgA").captionText();
    MenueUmgebung::eintragen(d, f.eingeben);
    d.control("Berechnen").click();
    u.meldung("Kein Geradenschnitt vorhanden!", f.titel);
    EXPECT_EQ(d.control("ErgA").captionText(), vorher) << "the fields stay";
  }
}

TEST(Geraden, EachSelectorShowsItsOwnGroup) {
  GeradenUmgebung u;
  RechenDialog& d = u.MenueUmgebung::oeffnen(kVier.menue, kVier.form);
  EXPECT_EQ(d.control("ComboGerade1").listCount(), 9);
  EXPECT_EQ(d.control("ComboGerade1").list()[1], "P1 und Verhältnis");
  EXPECT_EQ(d.control("ComboGerade2").list()[6], "Senkrecht durch P3");
  EXPECT_EQ(d.control("ComboGerade2").list()[8], "y = kx + d");
  EXPECT_FALSE(d.control("TextG2_1").visible());
  d.control("ComboGerade2").setListIndex(5);
  EXPECT_FALSE(d.control("G2P2Nr").visible());
  EXPECT_TRUE(d.control("G1P2Nr").visible()) << "line one is untouched";
  EXPECT_EQ(d.control("LabelG2_1").captionText(), "Richtungsvektor &U =");
  EXPECT_EQ(d.control("LabelG2_2").captionText(), "&V =");
  RechenDialog& p = u.MenueUmgebung::oeffnen(kLot.menue, kLot.form);
  EXPECT_EQ(p.control("ComboGerade1").list()[7], "Waagrecht durch P1");
  EXPECT_EQ(p.find("ComboGerade2"), nullptr);
}

}  // namespace
}  // namespace kolm::calc::testing

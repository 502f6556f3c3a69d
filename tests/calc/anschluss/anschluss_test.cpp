// Direct and indirect tie and the angle between three points, as the user
// opens and fills them. Values from data/anschluss_dialoge.py: the station
// S = (1040, 1920), P1 = (1000, 2000) at height 55, P2 = (1100, 2050).
// Captions, typed points, storing, M31 and a polar table are covered end to
// end by the rechnen_*anschluss* macros.
#include <string>
#include <vector>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr double kGenau = 1e-5;

struct Dialog {
  const char *menue, *form;
};
constexpr Dialog kDirekt{"MnuGerDirekterAnsschluß", "DirekterAnschluß"};
constexpr Dialog kIndirekt{"MnuGerIndirekterAnschluß", "IndirekterAnschluß"};
const std::vector<const char*> kDirektWerte = {"89.4427191", "12,3456", "69.390257488"};
const std::vector<const char*> kIndirektWerte = {"120.30019098", "50", "70", "57.044657488"};

struct AnschlussUmgebung : MenueUmgebung {
  AnschlussUmgebung() {
    punkt(1, 1000, 2000, 55);
    punkt(2, 1100, 2050);
  }
  RechenDialog& rechnen(Dialog dialog, const std::vector<const char*>& werte, const char* p2 = "2") {
    RechenDialog& d = oeffnen(dialog.menue, dialog.form);
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText(p2);
    for (size_t i = 0; i < werte.size(); ++i) d.control("Param", static_cast<int>(i)).setText(werte[i]);
    d.control("Berechnen").click();
    return d;
  }
};

TEST(Anschluss, TheStationFromEachTieWithoutAHeightOfItsOwn) {
  struct Fall {
    const char* name;
    Dialog dialog;
    std::vector<const char*> werte;
    bool falschdrehend;
    double a, b;
  };
  const Fall faelle[] = {
      {"direct", kDirekt, kDirektWerte, false, 1040, 1920},
      {"direct, mirrored sense of rotation", kDirekt, kDirektWerte, true, 960, 2080},
      {"indirect", kIndirekt, kIndirektWerte, false, 1040, 1920},
      {"indirect, a negative base counts by its length", kIndirekt,
       {"-120.30019098", "50", "70", "57.044657488"}, false, 1040, 1920},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    AnschlussUmgebung u;
    u.zustand.Falschdrehend = f.falschdrehend ? core::Wahr : core::Falsch;
    RechenDialog& d = u.rechnen(f.dialog, f.werte);
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, kGenau);
    EXPECT_NEAR(d.Ergebnis().B, f.b, kGenau);
    EXPECT_EQ(d.Ergebnis().C, 0) << "the station takes no height from P1";
  }
}

TEST(Anschluss, ImpossibleParametersSaySoAndKeepTheResultFields) {
  struct Fall {
    const char* name;
    Dialog dialog;
    std::vector<const char*> werte;
    const char* p2;
    const char* text;
  };
  const Fall faelle[] = {
      {"identical points", kDirekt, kDirektWerte, "1",
       "Mit diesen Parametern ist kein direkter Anschluß berechenbar!"},
      {"equal directions", kDirekt, {"50", "", ""}, "2",
       "Mit diesen Parametern ist kein direkter Anschluß berechenbar!"},
      // alpha + beta = 0: the distance becomes GROSS
      {"angles summing to zero", kIndirekt, {"120.30019098", "50", "-50", "57.044657488"}, "2",
       "Mit diesen Parametern ist kein indirekter Anschluß berechenbar!"},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    AnschlussUmgebung u;
    u.rechnen(f.dialog, f.dialog.form == kDirekt.form ? kDirektWerte : kIndirektWerte);
    RechenDialog& d = u.rechnen(f.dialog, f.werte, f.p2);
    u.meldung(f.text, "Kolm");
    EXPECT_EQ(d.control("ErgA").captionText(), "1040.000");
    EXPECT_EQ(d.control("PktNr").text(), "3");
  }
}

// ---- the angle between three points

TEST(WinkelZwischen3, TheUnsignedAngleAtP2InEveryUnitSystemAndTable) {
  struct Fall {
    const char* name;
    double faktor;
    bool m31;
    double p[3][2];
    const char* nummern[3];
    double winkel;
  };
  const Fall faelle[] = {
      {"gon", kPi / 200, false, {{100, 200}, {130, 240}, {90, 250}}, {"1", "2", "3"}, 74.629273126},
      {"gon, outer points swapped", kPi / 200, false, {{100, 200}, {130, 240}, {90, 250}}, {"3", "2", "1"},
       74.629273126},
      {"degrees, obtuse", kPi / 180, false, {{3, 1}, {0, 0}, {-5, -1}}, {"1", "2", "3"}, 172.874983629},
      {"M31", kPi / 200, true, {{10, 0}, {0, 0}, {0, 10}}, {"1", "2", "3"}, 99.999999987},
      {"identical points give 0 without a box", kPi / 200, false, {{5, 5}, {7, 9}, {0, 0}}, {"1", "1", "2"}, 0},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    u.zustand.M31 = f.m31 ? core::Wahr : core::Falsch;
    for (int i = 0; i < 3; ++i) u.punkt(i + 1, f.p[i][0], f.p[i][1]);
    RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
    d.control("PP1Nr").setText(f.nummern[0]);
    d.control("PP2Nr").setText(f.nummern[1]);
    d.control("PP3Nr").setText(f.nummern[2]);
    d.control("Berechnen").click();
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(u.zahl(d.control("Erg").captionText()), f.winkel, 1e-6);
  }
}

TEST(WinkelZwischen3, HasNoResultPointToStore) {
  MenueUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerWinkel", "WinkelZwischen3");
  EXPECT_EQ(d.find("Speichern"), nullptr);
  EXPECT_EQ(d.find("PktNr"), nullptr);
}

}  // namespace
}  // namespace kolm::calc::testing

// Polygonzug: the notes, worked traverses, open and adjusted, in degrees,
// a polar table, closed and of one leg, and the edges: the range messages,
// the question on a large misclosure, legs without length, empty slots, PA
// and PE in a polar table. Values from data/werte.py. The traverses in gon
// and under M31, open and adjusted, and the captions are covered end to end
// by the rechnen_polygonzug* macros.
#include <string>
#include <utility>
#include <vector>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

using Schenkel = std::vector<std::pair<double, double>>;  // e, Phi

struct PolygonzugUmgebung : MenueUmgebung {
  // Legs as the points erster, erster + 1, ...
  void schenkel(int erster, const Schenkel& legs) {
    for (const auto& [e, phi] : legs) punkt(erster++, e, phi);
  }
  // PA and PE by number, the range, Ausgleichen as asked, then Berechnen.
  RechenDialog& rechnen(const std::string& pa, const std::string& pe, const std::string& start,
                        const std::string& ende, bool ausgleichen) {
    RechenDialog& d = oeffnen("MnuGerMittelnderPolygonzug", "Polygonzug");
    d.control("PP1Nr").setText(pa);
    d.control("PP2Nr").setText(pe);
    d.control("Param", 0).setText(start);
    d.control("Param", 1).setText(ende);
    if (ausgleichen) d.control("CheckAusgleichen").click();
    d.control("Berechnen").click();
    return d;
  }
  const core::Punkt& p(int n) const { return zustand.Punkte[static_cast<size_t>(n)]; }
  // The one message box shown so far.
  void meldung(const std::string& text, forms::Icon icon = forms::Icon::None) {
    ASSERT_EQ(meldungen().size(), 1u);
    EXPECT_EQ(meldungen()[0].message.text, text);
    EXPECT_EQ(meldungen()[0].message.icon, icon);
  }
};

inline constexpr char kFliegend[] = "Berechnung des fliegenden Polygonzugs ist abgeschlossen!";
inline constexpr char kAusgeglichen[] = "Berechnung des ausgeglichenen Polygonzugs ist abgeschlossen!";

TEST(PolygonzugTest, TheNotesExplainTheMeasuredValues) {
  PolygonzugUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerMittelnderPolygonzug", "Polygonzug");
  const std::pair<const char*, const char*> captions[] = {
      {"Punkt1", "Ausgangspunkt PA"}, {"Punkt2", "Endpunkt PE"}, {"CheckAusgleichen", "Aus&gleichen"},
      {"LabelGeschlossen", "(nicht für geschlossene Polygonzüge geeignet)"},
      {"Ergebnis", "Fehler bei Ausgleich:"},
      {"LabelBeschreibung",
       "Die gemessenen Werte werden immer unabhängig von der Stellung des Schalters 'Polar'  als (e, Phi)  "
       "interpretiert. Das Ergebnis wird dann in rechtwinkelligen Koordinaten an die Stelle der Meßwerte "
       "gespeichert. PA und PE können auch polar angegeben werden."},
      {"LabelMesswerte", "Die Punkte von 'Start' bis 'Ende' enthalten die gemessenen Strecken (e) und Winkel (Phi):"},
      {"LabelAusgleichen",
       "Wenn 'Ausgleichen' gewählt wird, dann wird der Polygonzug nach der Berechnung korrigiert, indem die "
       "Fehler DX und DY jeweils im Verhältnis der gemessenen Strecke e zur Gesamtlänge des Polygonzugs "
       "aufgeteilt werden."}};
  for (const auto& [name, text] : captions) EXPECT_EQ(d.control(name).captionText(), text) << name;
  EXPECT_EQ(d.control("Label", 0).captionText(), "S&tart:");
  EXPECT_EQ(d.control("Label", 1).captionText(), "E&nde:");
}

struct Fall {
  const char* name;
  double faktor;
  bool polar;
  core::Punkt pa, pe;  // as the table holds them
  Schenkel legs;       // from point 101 on
  bool ausgleichen;
  std::vector<std::pair<double, double>> erwartet;
  const char *ergA, *ergB;  // the misclosure shown; nullptr: too small to tell
};

const Fall kFaelle[] = {
    {"Altgrad offen", kPi / 180, false, {0, 0, 1000, 2000}, {}, {{50, 30}, {40, 75}, {60, 140}}, false,
     {{1043.301270188, 2025.000000003}, {1053.654031985, 2063.637033056}, {1007.691365386, 2102.204289623}}, "", ""},
    {"Altgrad ausgeglichen", kPi / 180, false, {0, 0, 1000, 2000}, {0, 0, 1007.80, 2102.10},
     {{50, 30}, {40, 75}, {60, 140}}, true,
     {{1043.337481726, 2024.965236795}, {1053.719212754, 2063.574459283}, {1007.8, 2102.1}}, "0.109", "-0.104"},
    {"Polar: PA und PE als e, Phi", kPi / 200, true, {0, 0, 583.095189485, 34.404173920},
     {0, 0, 650.737012932, 47.550541763}, {{120.5, 12.5}, {98.25, 87.0}, {143.0, 160.25}, {75.75, 260.0}}, true,
     {{618.166687247, 323.527024707}, {638.075912354, 419.750864763}, {522.036009860, 503.371319105},
      {477.5, 442.1}}, "-0.065", "0.068"},
    {"geschlossen", kPi / 200, false, {0, 0, 100, 100}, {0, 0, 100, 100}, {{30, 0}, {40, 100}, {50, 259.0334}},
     true, {{130.000007389, 99.999994460}, {130.000017233, 139.999987073}, {100, 100}}, nullptr, nullptr},
    {"ein Schenkel auf PE", kPi / 200, false, {0, 0, 200, 300}, {0, 0, 205, 310}, {{11, 70}}, true,
     {{205, 310}}, "0.006", "0.199"},
};

TEST(PolygonzugTest, WorkedTraversesOverwriteTheLegsWithCoordinates) {
  for (const Fall& f : kFaelle) {
    SCOPED_TRACE(f.name);
    PolygonzugUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    u.zustand.Polar = f.polar ? core::Wahr : core::Falsch;
    u.punkt(1, f.pa.A, f.pa.B);
    u.punkt(2, f.pe.A, f.pe.B);
    u.schenkel(101, f.legs);
    u.zustand.Punkte[101].C = 7.25;
    u.zustand.Punkte[101].KurzBez = 3;
    u.punkt(150, 1, 1);  // the highest used number: 151 is offered
    const int ende = 100 + static_cast<int>(f.legs.size());
    RechenDialog& d = u.rechnen("1", "2", "101", std::to_string(ende), f.ausgleichen);
    u.meldung(f.ausgleichen ? kAusgeglichen : kFliegend);
    for (size_t i = 0; i < f.erwartet.size(); ++i) {
      EXPECT_NEAR(u.p(101 + static_cast<int>(i)).A, f.erwartet[i].first, 1e-6) << i;
      EXPECT_NEAR(u.p(101 + static_cast<int>(i)).B, f.erwartet[i].second, 1e-6) << i;
    }
    EXPECT_EQ(u.p(101).C, 7.25) << "heights stay";
    EXPECT_EQ(u.p(101).KurzBez, 3) << "designations stay";
    EXPECT_EQ(u.p(100).A, 0) << "nothing before the range";
    EXPECT_EQ(u.p(ende + 1).A, 0) << "nothing after it";
    EXPECT_EQ(u.p(1).A, f.pa.A) << "PA stays";
    EXPECT_TRUE(u.zustand.TabelleGeaendert);
    if (f.ergA) {
      EXPECT_EQ(d.control("ErgA").captionText(), f.ergA);
    }
    if (f.ergB) {
      EXPECT_EQ(d.control("ErgB").captionText(), f.ergB);
    }
    EXPECT_EQ(d.control("PktNr").text(), f.ausgleichen ? "151" : "");
    EXPECT_EQ(d.activeControl(), &d.control(f.ausgleichen ? "PktNr" : "Schließen"));
    EXPECT_NEAR(d.Eingabe(0).A, f.pa.A, 1e-6) << "PA back in the table's form";
    EXPECT_NEAR(d.Eingabe(0).B, f.pa.B, 1e-6);
  }
}

TEST(PolygonzugTest, ThousandsOfLegsAreAdjustedInOneRun) {
  PolygonzugUmgebung u;
  u.zustand.PunkteDimensionieren(9999);
  u.schenkel(1, Schenkel(5000, {1.0, 0.0}));
  u.punkt(9000, 5000.5, 2);
  RechenDialog& d = u.rechnen("0", "9000", "1", "5000", true);
  u.meldung(kAusgeglichen);
  EXPECT_EQ(d.control("ErgA").captionText(), "0.500");
  const std::pair<int, std::pair<double, double>> stichproben[] = {
      {1, {1.0001, 0.0004}}, {2500, {2500.25, 1.0}}, {4999, {4999.4999, 1.9996}}, {5000, {5000.5, 2.0}}};
  for (const auto& [n, ab] : stichproben) {
    EXPECT_NEAR(u.p(n).A, ab.first, 1e-6) << n;
    EXPECT_NEAR(u.p(n).B, ab.second, 1e-6) << n;
  }
}

constexpr char kStartFalsch[] = "Die Nummer der Startwerte muß im Bereich 0 bis 999 liegen!";
constexpr char kEndeFalsch[] = "Die Nummer der Endwerte muß größer als die Startnummer und kleiner als 999 sein!";
constexpr char kFrage[] =
    "Die Berechnung ergibt einen relativen Fehler von über 10 Prozent. Eine Fortsetzung der Berechnung "
    "erscheint nicht sinnvoll. Soll die Berechnung trotzdem fortgesetzt werden?";

// PA (100, 200) as point 1, legs of 10 and 20 at 0 gon as 10 and 11.
struct PolygonzugGrenzen : ::testing::Test {
  PolygonzugUmgebung u;
  void SetUp() override {
    u.punkt(1, 100, 200);
    u.schenkel(10, {{10, 0}, {20, 0}});
  }
};

TEST_F(PolygonzugGrenzen, ARangeOutsideTheTableIsRefusedWithItsMessage) {
  struct Bereich {
    const char *s, *t;
    bool amStart;
  };
  for (const Bereich& f : {Bereich{"", "11", true}, {"-1", "11", true}, {"999.6", "1000", true}, {"10", "", false},
                           {"10", "9", false}, {"10", "1000", false}, {"10", "999.6", false}}) {
    SCOPED_TRACE(std::string(f.s) + " .. " + f.t);
    PolygonzugUmgebung v;
    v.schenkel(10, {{10, 0}, {20, 0}});
    RechenDialog& d = v.rechnen("1", "", f.s, f.t, false);
    v.meldung(f.amStart ? kStartFalsch : kEndeFalsch, forms::Icon::Critical);
    EXPECT_EQ(d.activeControl(), &d.control("Param", f.amStart ? 0 : 1));
    EXPECT_EQ(v.p(10).A, 10) << "the table is not touched";
    EXPECT_FALSE(v.zustand.TabelleGeaendert);
  }
  PolygonzugUmgebung v;
  v.zustand.PunkteDimensionieren(2500);
  v.rechnen("1", "", "2600", "2601", false);
  v.meldung("Die Nummer der Startwerte muß im Bereich 0 bis 2500 liegen!", forms::Icon::Critical);
}

TEST_F(PolygonzugGrenzen, EndeEqualToStartOrToTheTablesSizePasses) {
  u.punkt(999, 5, 0);
  u.rechnen("1", "", "999", "999", false);
  u.meldung(kFliegend);
  EXPECT_EQ(u.p(999).A, 105);
  EXPECT_EQ(u.p(999).B, 200);
}

TEST_F(PolygonzugGrenzen, LettersInStartReadAsZero) {
  u.rechnen("1", "", "abc", "0", false);
  u.meldung(kFliegend);
  EXPECT_EQ(u.p(0).A, 100) << "the empty point 0 is a leg of length 0";
}

TEST_F(PolygonzugGrenzen, AMisclosureOverATenthAsksAndNoLeavesTheTable) {
  u.punkt(2, 140, 200);  // 10 over a length of 30
  u.dienste.messages.queue(forms::Answer::No);
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kFrage);
  EXPECT_EQ(u.meldungen()[0].message.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Question);
  EXPECT_EQ(u.p(10).A, 10);
  EXPECT_EQ(u.p(11).A, 20);
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(d.control("ErgA").captionText(), "10.000") << "the misclosure is shown all the same";
}

TEST_F(PolygonzugGrenzen, AMisclosureOverATenthAnsweredYesIsSharedOut) {
  u.punkt(2, 140, 200);
  u.dienste.messages.queue(forms::Answer::Yes);
  u.rechnen("1", "2", "10", "11", true);
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, kAusgeglichen);
  EXPECT_NEAR(u.p(10).A, 100 + 10 + 10.0 / 3, 1e-9);
  EXPECT_NEAR(u.p(11).A, 140, 1e-9);
}

TEST_F(PolygonzugGrenzen, EachComponentIsTestedAloneAndTheBoundPasses) {
  // One leg of 100 at 0 gon: to (110, 10) each component is exactly a tenth
  // (their length more), no question; to (100, 10.001) one is over.
  u.punkt(1, 0, 0);
  u.punkt(10, 100, 0);
  u.punkt(2, 110, 10);
  u.rechnen("1", "2", "10", "10", true);
  u.meldung(kAusgeglichen);
  EXPECT_EQ(u.p(10).A, 110);
  EXPECT_EQ(u.p(10).B, 10);

  PolygonzugUmgebung v;
  v.punkt(10, 100, 0);
  v.punkt(2, 100, 10.001);
  v.dienste.messages.queue(forms::Answer::No);
  v.rechnen("1", "2", "10", "10", true);
  v.meldung(kFrage, forms::Icon::Question);
}

TEST_F(PolygonzugGrenzen, LegsWithoutLengthAskNothingAndStayOnPA) {
  u.punkt(10, 0, 50);
  u.punkt(11, 0, 0);
  u.punkt(2, 500, 900);
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  u.meldung(kAusgeglichen);
  for (int n : {10, 11}) {
    EXPECT_EQ(u.p(n).A, 100) << n;
    EXPECT_EQ(u.p(n).B, 200) << n;
  }
  EXPECT_EQ(d.control("ErgB").captionText(), "700.000");
}

TEST_F(PolygonzugGrenzen, AnOverflowingSumIsSkippedAndNothingInfiniteIsStored) {
  u.schenkel(10, {{1e308, 0}, {1e308, 0}});
  u.punkt(2, 0, 0);
  u.rechnen("1", "", "10", "11", false);
  EXPECT_EQ(u.p(11).A, 1e308) << "the sum is skipped: the leg's own part stays";
  u.schenkel(10, {{1e308, 0}, {1e308, 0}});
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  for (double x : {u.p(10).A, u.p(10).B, u.p(11).A, u.p(11).B, d.Ergebnis().A, d.Ergebnis().B})
    EXPECT_TRUE(std::isfinite(x)) << x;
}

TEST_F(PolygonzugGrenzen, AnEmptySlotTakesItsPredecessorAndASecondRunReadsResultsAsLegs) {
  u.punkt(11, 0, 0);
  u.punkt(12, 5, 100);
  RechenDialog& d = u.rechnen("1", "", "10", "12", false);
  EXPECT_EQ(u.p(11).A, 110);
  EXPECT_EQ(u.p(11).B, 200);
  EXPECT_NEAR(u.p(12).B, 205, 1e-9);
  d.control("Berechnen").click();  // (110, 200) is now a leg of 110 at 200 gon
  EXPECT_NEAR(u.p(10).A, 100 - 110, 1e-6);
}

TEST_F(PolygonzugGrenzen, InAPolarTablePAAndPEStayRectangularAfterAnEarlyEnd) {
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 100);  // (0, 10)
  u.punkt(2, 50, 100);  // (0, 50)
  RechenDialog& d = u.rechnen("1", "2", "10", "", true);
  u.meldung(kEndeFalsch, forms::Icon::Critical);
  EXPECT_NEAR(d.Eingabe(0).A, 0, 1e-6);
  EXPECT_NEAR(d.Eingabe(0).B, 10, 1e-6);
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Param", 1).setText("11");
  d.control("Berechnen").click();
  EXPECT_EQ(u.meldungen()[1].message.text, kFrage);
  // (0, 50) read once more as e, Phi is the origin.
  EXPECT_NEAR(d.Eingabe(1).A, 0, 1e-6);
  EXPECT_NEAR(d.Eingabe(1).B, 0, 1e-6);
  d.control("CheckAusgleichen").click();
  d.control("Berechnen").click();
  EXPECT_NEAR(u.p(10).A, 10, 1e-6) << "PA read as the origin too";
  d.control("PP1Nr").setText("");
  d.control("PP1Nr").setText("1");  // a fresh fetch mends it
  EXPECT_EQ(d.Eingabe(0).A, 10);
  EXPECT_EQ(d.Eingabe(0).B, 100);
}

}  // namespace
}  // namespace kolm::calc::testing

// Absteckdaten: distance and direction from A to P for one point in every
// system and unit, and over a run of table points: the checks with their
// messages, the overlap question, what the table holds afterwards. Worked
// values from data/werte.py. Captions, storing one point, a polar table and
// an M31 run are covered end to end by the rechnen_absteckdaten* macros.
#include "calc/frame/menue_umgebung.h"
#include "forms/keys.h"

namespace kolm::calc::testing {
namespace {

struct AbsteckUmgebung : MenueUmgebung {
  RechenDialog& oeffnen() { return MenueUmgebung::oeffnen("MnuGerAbsteckdaten", "Absteckdaten"); }
  // The run mode with station number, first source, count and first target.
  RechenDialog& lauf(const std::string& a, const std::string& p, const std::string& n, const std::string& s) {
    RechenDialog& d = oeffnen();
    d.control("CheckMehrere").setValue(1);
    d.control("PP1Nr").setText(a);
    d.control("PP2Nr").setText(p);
    d.control("Anz").setText(n);
    d.control("PktNr").setText(s);
    d.control("Berechnen").click();
    return d;
  }
  const core::Punkt& p(int n) const { return zustand.Punkte[static_cast<size_t>(n)]; }
};

// A (100, 200) as point 1, P (70, 260) as point 2, in system 0 .. 3.
RechenDialog& Gerechnet(AbsteckUmgebung& u, int system = 0, int p = 2) {
  u.zustand.M31 = system % 2 ? core::Wahr : core::Falsch;
  u.zustand.Falschdrehend = system >= 2 ? core::Wahr : core::Falsch;
  u.punkt(1, 100, 200, 5);
  u.punkt(2, 70, 260, 9);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText(std::to_string(p));
  d.control("Berechnen").click();
  return d;
}

TEST(Absteckdaten, TheRunModeSwitchesItsFieldsAndTheButtonOpensIt) {
  AbsteckUmgebung u;
  u.anwendung.main()->control("GerButton", 1).click();
  RechenDialog& d = u.oeffnen();
  for (bool an : {false, true}) {
    EXPECT_EQ(d.control("SpinAnz").enabled(), an);
    EXPECT_EQ(d.control("Label", 0).enabled(), an);
    EXPECT_EQ(d.control("Label", 1).enabled(), an);
    d.control("CheckMehrere").click();
  }
}

TEST(Absteckdaten, TheSpinButtonCountsWithoutLimit) {
  AbsteckUmgebung u;
  u.oeffnen().control("CheckMehrere").click();
  forms::Control& spin = u.oeffnen().control("SpinAnz");
  forms::Control& anz = u.oeffnen().control("Anz");
  spin.raise(forms::Event::SpinUp);
  EXPECT_EQ(anz.text(), "1") << "an empty field counts as 0";
  spin.raise(forms::Event::SpinDown);
  spin.raise(forms::Event::SpinDown);
  EXPECT_EQ(anz.text(), "-1");
  anz.setText("41,5");
  spin.raise(forms::Event::SpinUp);
  EXPECT_EQ(anz.text(), "43") << "42.5 in the number pattern";
  // The count is no parameter field: letters are typed, not variables.
  u.zustand.Variablen[0] = 7;
  anz.setText("");
  for (char32_t c : {U'a', U'B'}) anz.form().sendKey(anz, forms::keys::KeyCodeOfChar(c), 0, c);
  EXPECT_EQ(anz.text(), "aB");
  EXPECT_EQ(u.zustand.Variablen[1], 0);
}

TEST(Absteckdaten, TheDirectionFollowsTheSystemAndTheUnit) {
  struct Fall {
    int system;
    double faktor, richtung;
    const char* gezeigt;
  };
  for (const Fall& f : {Fall{0, kPi / 200, 129.516723513, "129.517"}, Fall{0, kPi / 180, 116.565051162, "116.565"},
                        Fall{0, 1, 2.034443936, "2.034"}, Fall{1, kPi / 200, 370.483276474, "370.483"},
                        Fall{1, kPi / 180, 333.434948826, "333.435"}, Fall{1, 1, 5.819537699, "5.820"},
                        Fall{2, kPi / 200, 370.483276487, "370.483"}, Fall{3, kPi / 180, 116.565051174, "116.565"}}) {
    AbsteckUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = Gerechnet(u, f.system);
    SCOPED_TRACE(std::string(f.gezeigt));
    EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
    EXPECT_EQ(d.control("ErgB").captionText(), f.gezeigt);
    EXPECT_NEAR(d.Ergebnis().B, f.richtung, 1e-6);
    EXPECT_EQ(d.control("LabelB").captionText(), "θ =");
  }
}

TEST(Absteckdaten, APointOnTheStationGivesZeroOrAQuarterCircle) {
  const double richtung[] = {0, 0, 100, 100};
  for (int system = 0; system < 4; ++system) {
    AbsteckUmgebung u;
    RechenDialog& d = Gerechnet(u, system, 1);
    EXPECT_EQ(d.control("ErgA").captionText(), "0.000") << system;
    EXPECT_NEAR(d.Ergebnis().B, richtung[system], 1e-9) << system;
  }
}

TEST(Absteckdaten, ADistanceBeyondTheNumberRangeLeavesTheLastResult) {
  AbsteckUmgebung u;
  RechenDialog& d = Gerechnet(u);
  u.punkt(3, -1e200, 0);
  u.punkt(4, 1e200, 1);
  d.control("PP1Nr").setText("3");
  d.control("PP2Nr").setText("4");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
  EXPECT_TRUE(u.meldungen().empty());
}

constexpr char kErfolg[] = "Die Absteckdaten wurden erfolgreich berechnet!";

struct Lauf {
  AbsteckUmgebung u;
  // Station 10 at (1000, 2000); sources 20..24 with 23 left empty.
  void quellen() {
    u.punkt(10, 1000, 2000);
    u.punkt(20, 1030, 2040, 7);
    u.punkt(21, 950, 2120);
    u.punkt(22, 900, 1900);
    u.punkt(24, 1200, 1850);
  }
  // Around the station at the origin (the empty point 10): sources 20..26.
  void rund() {
    const double q[][2] = {{10, 0}, {0, 20}, {-30, 0}, {0, -40}, {50, 50}, {-60, -60}, {70, -70}};
    for (int k = 0; k < 7; ++k) u.punkt(20 + k, q[k][0], q[k][1]);
  }
  void erwarte(int n, double e, double t) {
    EXPECT_NEAR(u.p(n).A, e, 1e-8) << n;
    EXPECT_NEAR(u.p(n).B, t, 1e-6) << n;
  }
  const forms::Message& meldung(size_t i) { return u.meldungen().at(i).message; }
};

struct AbsteckLaufTest : ::testing::Test, Lauf {};

TEST_F(AbsteckLaufTest, TheRunFillsTheTargetsAndKeepsTheirOtherFields) {
  quellen();
  u.punkt(31, 1, 1, 44.5);
  u.zustand.Punkte[31].KurzBez = 12;
  RechenDialog& d = u.lauf("10", "20", "5", "30");
  u.meldung(kErfolg, "", forms::Icon::Information);
  erwarte(30, 50, 59.033447052);
  erwarte(31, 130, 125.133183259);
  erwarte(32, 141.421356237, 250.000000020);
  erwarte(33, 2236.067977500, 270.483276487);  // the empty source counts as 0/0
  erwarte(34, 250, 359.033447066);
  EXPECT_EQ(u.p(31).C, 44.5);
  EXPECT_EQ(u.p(31).KurzBez, 12);
  EXPECT_EQ(u.p(30).C, 0) << "the source's height is not taken over";
  EXPECT_EQ(u.p(20).A, 1030) << "the sources stay";
  EXPECT_TRUE(u.zustand.PunktLeer(35));
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  for (const char* leer : {"PP2", "ErgA", "ErgB"}) EXPECT_EQ(d.control(leer).captionText(), "") << leer;
}

TEST_F(AbsteckLaufTest, EachCheckInItsOrderNamesTheFieldToCorrect) {
  const std::string anzahl = "Die Anzahl der zu berechnenden Punkt muß mindestens eins betragen.";
  const std::string p = "Die Punktnummer des Punktes P muß zwischen 0 und 999 liegen. Der Punkt darf also nicht "
                        "händisch eingegeben werden, sondern muß mit Nummer aufgerufen werden.";
  const std::string s = "Die Punktnummer des ersten Punktes zum Abspeichern muß zwischen 0 und 999 liegen.";
  struct Fall {
    const char *anz, *p, *s;
    std::string text;
    const char* feld;
  };
  for (const Fall& f : {Fall{"0", "", "", anzahl, "Anz"}, Fall{"", "20", "30", anzahl, "Anz"},
                        Fall{"1", "", "30", p, "PP2Nr"}, Fall{"1", "1000", "", p, "PP2Nr"},
                        Fall{"1", "-1", "30", p, "PP2Nr"}, Fall{"1", "20", "", s, "PktNr"},
                        Fall{"1", "20", "1000", s, "PktNr"},
                        Fall{"6", "995", "30", "Sie können ab Punkt 995 nicht mehr als 5 Punkte berechnen lassen.", "Anz"},
                        Fall{"6", "30", "995", "Sie können ab Punkt 995 nicht mehr als 5 Punkte abspeichern lassen.", "Anz"},
                        Fall{"1e6", "30", "995", "Sie können ab Punkt 30 nicht mehr als 970 Punkte berechnen lassen.", "Anz"}}) {
    AbsteckUmgebung v;
    v.punkt(30, 5, 6);
    RechenDialog& d = v.lauf("10", f.p, f.anz, f.s);
    SCOPED_TRACE(std::string(f.anz) + " " + f.p + " " + f.s);
    v.meldung(f.text, "Kolm", forms::Icon::Critical);
    EXPECT_EQ(d.activeControl(), &d.control(f.feld));
    EXPECT_EQ(v.p(30).A, 5) << "nothing is written";
  }
}

TEST_F(AbsteckLaufTest, TheRunMayEndOnTheLastPointButNotBeyond) {
  u.punkt(10, 1000, 2000);
  u.punkt(999, 1030, 2040);
  u.lauf("10", "995", "5", "995");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(meldung(0).title, "Absteckdaten berechnen") << "the overlap question";
  EXPECT_EQ(meldung(1).text, kErfolg);
  erwarte(999, 50, 59.033447052);
}

TEST_F(AbsteckLaufTest, OverlappingRunsAskAndReadEachSourceBeforeItIsOverwritten) {
  rund();
  u.dienste.messages.queue(forms::Answer::Yes);
  u.lauf("10", "20", "5", "22");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(meldung(0).text,
            "Die Bereiche der einzulesenden und der abzuspeichernden Punkte überschneiden sich. Die ürsprünglichen "
            "Koordinaten werden nach der Berechnung nicht mehr zur verfügung stehen. Soll die Berechnung trotzdem "
            "durchgeführt werden ?");
  EXPECT_EQ(meldung(0).title, "Absteckdaten berechnen");
  EXPECT_EQ(meldung(0).buttons, forms::Buttons::YesNo);
  EXPECT_EQ(meldung(0).icon, forms::Icon::Question);
  EXPECT_EQ(meldung(1).text, kErfolg);
  erwarte(22, 10, 0);
  erwarte(24, 30, 199.999999974);
  erwarte(26, 70.710678119, 49.999999993);

  Lauf zurueck;
  zurueck.rund();
  zurueck.u.dienste.messages.queue(forms::Answer::Yes);
  zurueck.u.lauf("10", "22", "5", "20");
  zurueck.erwarte(20, 30, 199.999999974);
  zurueck.erwarte(22, 70.710678119, 49.999999993);
  zurueck.erwarte(24, 98.994949366, 350.000000007);
}

TEST_F(AbsteckLaufTest, NoLeavesTheTableAndOnePointOntoItselfTakesItsOwnValues) {
  rund();
  u.dienste.messages.queue(forms::Answer::No);
  u.lauf("10", "20", "5", "24");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.p(24).A, 50);
  EXPECT_EQ(u.p(26).A, 70);
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  u.dienste.messages.queue(forms::Answer::Yes);
  u.lauf("10", "25", "1", "25");
  ASSERT_EQ(u.meldungen().size(), 3u);
  EXPECT_EQ(meldung(1).title, "Absteckdaten berechnen");
  erwarte(25, 84.852813742, 250.000000020);
}

TEST_F(AbsteckLaufTest, ANumberBeyondTheRangeStopsTheRunWithTheErrorBox) {
  quellen();
  u.punkt(22, 1e200, 0);
  u.lauf("10", "20", "5", "30");
  u.meldung("Fehler 6:  Overflow\nBeim Berechnen der Absteckdaten trat folgender Fehler auf:", "", forms::Icon::None);
  // Sources before targets: the run goes backward, from 24 down to the failing 22.
  erwarte(34, 250, 359.033447066);
  erwarte(33, 2236.067977500, 270.483276487);
  for (int n : {30, 31, 32}) EXPECT_TRUE(u.zustand.PunktLeer(n)) << n;
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
}

TEST_F(AbsteckLaufTest, AThousandsLongRunReportsItsProgressAndEnds) {
  u.zustand.PunkteDimensionieren(9999);
  u.zustand.WinkelFaktor = kPi / 180;
  for (int k = 1; k <= 4999; ++k) u.punkt(k, k, 2.0 * k);
  u.tippen("0", "-1000");
  u.oeffnen().control("GetPP1").click();
  u.lauf("", "1", "4999", "5001");  // up to the last point of the table
  u.meldung(kErfolg, "", forms::Icon::Information);
  erwarte(5001, 1002.000499002, 89.942818591);
  erwarte(7500, 6500, 67.380135043);
  erwarte(9999, 12080.811437979, 65.556437720);
  const std::vector<std::string>& status = u.dienste.status.history();
  ASSERT_EQ(status.size(), 10u);
  EXPECT_EQ(status.front(), "Absteckdaten: 500 von 4999 Punkten berechnet");
  EXPECT_EQ(status.back(), "Absteckdaten: 4999 von 4999 Punkten berechnet");
  EXPECT_EQ(u.dienste.busy.times(), 1);
  EXPECT_EQ(u.dienste.busy.depth(), 0);
}

TEST_F(AbsteckLaufTest, APolarTableTakesStoredValuesAsTheyStandAndARefusalLeavesARectangular) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(10, 30, 40);
  u.punkt(40, 50, 100);
  u.punkt(41, 20, 350);
  RechenDialog& d = u.lauf("10", "40", "2", "50");
  erwarte(50, 63.245553203, 79.516723520);
  erwarte(51, 310.161248385, 102.052900282);
  EXPECT_NEAR(d.Eingabe(0).A, 50, 1e-9) << "A is polar again";
  d.control("Anz").setText("0");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_NEAR(d.Eingabe(0).A, 30, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, 40, 1e-9);
}

}  // namespace
}  // namespace kolm::calc::testing

// Absteckdaten over a run of table points: the checks with their messages,
// the overlap question, what the table holds afterwards; worked values from
// data/werte.py.
#include "absteckdaten_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr char kTeil[] = "Die Punktnummer des Punktes P muß zwischen 0 und 999 liegen. Der Punkt darf also nicht "
                         "händisch eingegeben werden, sondern muß mit Nummer aufgerufen werden.";
constexpr char kErfolg[] = "Die Absteckdaten wurden erfolgreich berechnet!";

struct AbsteckLaufTest : ::testing::Test {
  AbsteckUmgebung u;
  // Station 10 at (1000, 2000); sources 20..24 with 23 left empty.
  void quellen() {
    u.punkt(10, 1000, 2000);
    u.punkt(20, 1030, 2040, 7);
    u.punkt(21, 950, 2120);
    u.punkt(22, 900, 1900);
    u.punkt(24, 1200, 1850);
  }
  void erwarte(int n, double e, double t) {
    EXPECT_NEAR(u.p(n).A, e, 1e-8) << n;
    EXPECT_NEAR(u.p(n).B, t, 1e-6) << n;
  }
};

TEST_F(AbsteckLaufTest, TheRunFillsTheTargetsAndKeepsTheirOtherFields) {
  quellen();
  u.punkt(31, 1, 1, 44.5);
  u.zustand.Punkte[31].KurzBez = 12;
  RechenDialog& d = u.lauf("10", "20", "5", "30");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kErfolg);
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Information);
  erwarte(30, 50, 59.033447052);
  erwarte(31, 130, 125.133183259);
  erwarte(32, 141.421356237, 250.000000020);
  erwarte(33, 2236.067977500, 270.483276487);  // the empty source counts as 0/0
  erwarte(34, 250, 359.033447066);
  EXPECT_EQ(u.p(31).C, 44.5);
  EXPECT_EQ(u.p(31).KurzBez, 12);
  EXPECT_EQ(u.p(30).C, 0) << "the source's height is not taken over";
  EXPECT_EQ(u.p(20).A, 1030) << "the sources stay";
  EXPECT_TRUE(u.p(35).A == 0 && u.p(35).B == 0);
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(d.control("PP2").captionText(), "");
  EXPECT_EQ(d.control("ErgA").captionText(), "");
  EXPECT_EQ(d.control("ErgB").captionText(), "");
  EXPECT_EQ(d.control("PktNr").text(), "30");
}

TEST_F(AbsteckLaufTest, UnderM31TheDirectionsRunClockwiseFromX) {
  u.zustand.M31 = core::Wahr;
  quellen();
  u.lauf("10", "20", "5", "30");
  erwarte(30, 50, 40.966552934);
  erwarte(31, 130, 374.866816728);
  erwarte(33, 2236.067977500, 229.516723552);
  erwarte(34, 250, 140.966552921);
}

TEST_F(AbsteckLaufTest, EachCheckNamesItsFieldInOrder) {
  struct Fall {
    const char *anz, *p, *s, *text, *feld;
  };
  const Fall faelle[] = {
      {"0", "", "", "Die Anzahl der zu berechnenden Punkt muß mindestens eins betragen.", "Anz"},
      {"", "20", "30", "Die Anzahl der zu berechnenden Punkt muß mindestens eins betragen.", "Anz"},
      {"1", "", "30", kTeil, "PP2Nr"},
      {"1", "1000", "30", kTeil, "PP2Nr"},
      {"1", "-1", "30", kTeil, "PP2Nr"},
      {"1", "20", "", "Die Punktnummer des ersten Punktes zum Abspeichern muß zwischen 0 und 999 liegen.", "PktNr"},
      {"1", "20", "1000", "Die Punktnummer des ersten Punktes zum Abspeichern muß zwischen 0 und 999 liegen.",
       "PktNr"},
      {"6", "995", "30", "Sie können ab Punkt 995 nicht mehr als 5 Punkte berechnen lassen.", "Anz"},
      {"6", "30", "995", "Sie können ab Punkt 995 nicht mehr als 5 Punkte abspeichern lassen.", "Anz"},
      {"100000", "30", "995", "Sie können ab Punkt 30 nicht mehr als 970 Punkte berechnen lassen.", "Anz"},
  };
  for (const Fall& f : faelle) {
    AbsteckUmgebung v;
    v.punkt(10, 1000, 2000);
    v.punkt(30, 5, 6);
    RechenDialog& d = v.lauf("10", f.p, f.anz, f.s);
    SCOPED_TRACE(std::string(f.anz) + " " + f.p + " " + f.s);
    ASSERT_EQ(v.meldungen().size(), 1u);
    EXPECT_EQ(v.meldungen()[0].message.text, f.text);
    EXPECT_EQ(v.meldungen()[0].message.title, "Kolm");
    EXPECT_EQ(v.meldungen()[0].message.icon, forms::Icon::Critical);
    EXPECT_EQ(d.activeControl(), &d.control(f.feld));
    EXPECT_EQ(v.p(30).A, 5) << "nothing is written";
    EXPECT_FALSE(v.zustand.TabelleGeaendert);
  }
}

TEST_F(AbsteckLaufTest, TheRunMayEndOnTheLastPointButNotBeyond) {
  u.punkt(10, 1000, 2000);
  u.punkt(999, 1030, 2040);
  u.lauf("10", "995", "5", "995");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[0].message.title, "Absteckdaten berechnen") << "the overlap question";
  EXPECT_EQ(u.meldungen()[1].message.text, kErfolg);
  erwarte(999, 50, 59.033447052);
}

// Sources 20..26 around the station at the origin (the empty point 10).
struct UeberlappTest : AbsteckLaufTest {
  void SetUp() override {
    const double q[][2] = {{10, 0}, {0, 20}, {-30, 0}, {0, -40}, {50, 50}, {-60, -60}, {70, -70}};
    for (int k = 0; k < 7; ++k) u.punkt(20 + k, q[k][0], q[k][1]);
  }
};

TEST_F(UeberlappTest, ForwardOverlapAsksAndReadsEachSourceBeforeItIsOverwritten) {
  u.dienste.messages.queue(forms::Answer::Yes);
  u.lauf("10", "20", "5", "22");
  ASSERT_EQ(u.meldungen().size(), 2u);
  const forms::Message& frage = u.meldungen()[0].message;
  EXPECT_EQ(frage.text,
            "Die Bereiche der einzulesenden und der abzuspeichernden Punkte überschneiden sich. Die ürsprünglichen "
            "Koordinaten werden nach der Berechnung nicht mehr zur verfügung stehen. Soll die Berechnung trotzdem "
            "durchgeführt werden ?");
  EXPECT_EQ(frage.title, "Absteckdaten berechnen");
  EXPECT_EQ(frage.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(frage.icon, forms::Icon::Question);
  EXPECT_EQ(u.meldungen()[1].message.text, kErfolg);
  erwarte(22, 10, 0);
  erwarte(23, 20, 99.999999987);
  erwarte(24, 30, 199.999999974);
  erwarte(25, 40, 300.000000013);
  erwarte(26, 70.710678119, 49.999999993);
}

TEST_F(UeberlappTest, BackwardOverlapToo) {
  u.dienste.messages.queue(forms::Answer::Yes);
  u.lauf("10", "22", "5", "20");
  erwarte(20, 30, 199.999999974);
  erwarte(21, 40, 300.000000013);
  erwarte(22, 70.710678119, 49.999999993);
  erwarte(23, 84.852813742, 250.000000020);
  erwarte(24, 98.994949366, 350.000000007);
}

TEST_F(UeberlappTest, NoLeavesTheTableAsItWas) {
  u.dienste.messages.queue(forms::Answer::No);
  RechenDialog& d = u.lauf("10", "20", "5", "24");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.p(24).A, 50);
  EXPECT_EQ(u.p(26).A, 70);
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_NE(d.control("PP2").captionText(), "");
}

TEST_F(UeberlappTest, OnePointOntoItselfTakesItsOwnPolarValues) {
  u.dienste.messages.queue(forms::Answer::Yes);
  u.lauf("10", "25", "1", "25");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[0].message.title, "Absteckdaten berechnen");
  erwarte(25, 84.852813742, 250.000000020);
  erwarte(24, 50, 50);
}

TEST_F(AbsteckLaufTest, ANumberBeyondTheRangeStopsTheRunWithTheErrorBox) {
  quellen();
  u.punkt(22, 1e200, 0);
  RechenDialog& d = u.lauf("10", "20", "5", "30");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text,
            "Fehler 6:  Overflow\nBeim Berechnen der Absteckdaten trat folgender Fehler auf:");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::None);
  // Sources before targets: the run goes backward, from 24 down to the failing 22.
  erwarte(34, 250, 359.033447066);
  erwarte(33, 2236.067977500, 270.483276487);
  for (int n : {30, 31, 32}) EXPECT_TRUE(u.p(n).A == 0 && u.p(n).B == 0) << n;
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(d.control("PP2").captionText(), "");
}

TEST_F(AbsteckLaufTest, AThousandsLongRunReportsItsProgressAndEnds) {
  u.zustand.PunkteDimensionieren(9999);
  u.zustand.WinkelFaktor = kPi / 180;
  for (int k = 1; k <= 4999; ++k) u.punkt(k, k, 2.0 * k);
  RechenDialog& d = u.oeffnen();
  u.tippen("0", "-1000");
  d.control("GetPP1").click();
  d.control("CheckMehrere").click();
  d.control("PP2Nr").setText("1");
  d.control("Anz").setText("4999");
  d.control("PktNr").setText("5001");  // up to the last point of the table
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kErfolg);
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

TEST_F(AbsteckLaufTest, APolarTableTakesTheStoredValuesAsTheyStand) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(10, 30, 40);
  u.punkt(40, 50, 100);
  u.punkt(41, 20, 350);
  RechenDialog& d = u.lauf("10", "40", "2", "50");
  ASSERT_EQ(u.meldungen().size(), 1u);
  erwarte(50, 63.245553203, 79.516723520);
  erwarte(51, 310.161248385, 102.052900282);
  EXPECT_NEAR(d.Eingabe(0).A, 50, 1e-9) << "A is polar again";
  EXPECT_NEAR(d.Eingabe(0).B, u.p(10).B, 1e-9);
}

TEST_F(AbsteckLaufTest, ARefusedRunInAPolarTableLeavesTheRecordsRectangular) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(10, 30, 40);
  RechenDialog& d = u.lauf("10", "40", "0", "50");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_NEAR(d.Eingabe(0).A, 30, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, 40, 1e-9);
}

}  // namespace
}  // namespace kolm::calc::testing

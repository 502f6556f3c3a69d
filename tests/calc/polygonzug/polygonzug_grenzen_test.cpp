// Polygonzug at its edges: the range messages, the question on a large
// misclosure, a traverse without length, PA and PE in a polar table.
#include "polygonzug_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr char kStartFalsch[] = "Die Nummer der Startwerte muß im Bereich 0 bis 999 liegen!";
constexpr char kEndeFalsch[] =
    "Die Nummer der Endwerte muß größer als die Startnummer und kleiner als 999 sein!";
constexpr char kFrage[] =
    "Die Berechnung ergibt einen relativen Fehler von über 10 Prozent. Eine Fortsetzung der Berechnung "
    "erscheint nicht sinnvoll. Soll die Berechnung trotzdem fortgesetzt werden?";
constexpr char kAusgeglichenFertig[] = "Berechnung des ausgeglichenen Polygonzugs ist abgeschlossen!";

struct PolygonzugGrenzenTest : ::testing::Test {
  PolygonzugUmgebung u;

  void SetUp() override {
    u.punkt(1, 100, 200);
    u.punkt(2, 130, 200);
    u.schenkel(10, {{10, 0}, {20, 0}});
  }
  // The legs 10 and 11 are still the measured values.
  void unberuehrt() {
    EXPECT_EQ(u.p(10).A, 10);
    EXPECT_EQ(u.p(10).B, 0);
    EXPECT_EQ(u.p(11).A, 20);
    EXPECT_FALSE(u.zustand.TabelleGeaendert);
  }
};

struct Bereich {
  const char *start, *ende;
  bool startFalsch;
};

TEST_F(PolygonzugGrenzenTest, ARangeOutsideTheTableIsRefusedWithItsMessage) {
  const Bereich faelle[] = {
      {"", "11", true},      {"-1", "11", true},  {"1000", "1000", true},
      {"10", "", false},     {"10", "9", false},  {"10", "1000", false},  {"10", "999.6", false},
  };
  for (const Bereich& f : faelle) {
    PolygonzugUmgebung v;
    v.punkt(1, 100, 200);
    v.schenkel(10, {{10, 0}, {20, 0}});
    RechenDialog& d = v.rechnen("1", "", f.start, f.ende, false);
    SCOPED_TRACE(std::string(f.start) + " .. " + f.ende);
    v.meldung(f.startFalsch ? kStartFalsch : kEndeFalsch, forms::Icon::Critical);
    EXPECT_EQ(d.activeControl(), &d.control("Param", f.startFalsch ? 0 : 1));
    EXPECT_EQ(v.p(10).A, 10);
    EXPECT_FALSE(v.zustand.TabelleGeaendert);
  }
}

TEST_F(PolygonzugGrenzenTest, LettersInStartReadAsZeroAndPassTheTest) {
  // "abc" is 0, so Start 0 with an Ende below it: only Ende is refused.
  RechenDialog& d = u.rechnen("1", "", "abc", "0", false);
  EXPECT_EQ(u.meldungen()[0].message.text, "Berechnung des fliegenden Polygonzugs ist abgeschlossen!");
  EXPECT_EQ(u.p(0).A, 100) << "point 0 is the one leg, of length 0";
  EXPECT_EQ(d.control("Param", 0).text(), "abc");
}

TEST_F(PolygonzugGrenzenTest, EndeEqualToAnzahlPunktePasses) {
  u.punkt(999, 5, 0);
  u.rechnen("1", "", "999", "999", false);
  u.meldung("Berechnung des fliegenden Polygonzugs ist abgeschlossen!", forms::Icon::None);
  EXPECT_EQ(u.p(999).A, 105);
  EXPECT_EQ(u.p(999).B, 200);
}

TEST_F(PolygonzugGrenzenTest, TheRangeMessageNamesTheTablesSize) {
  u.zustand.PunkteDimensionieren(2500);
  u.rechnen("1", "", "2600", "2601", false);
  u.meldung("Die Nummer der Startwerte muß im Bereich 0 bis 2500 liegen!", forms::Icon::Critical);
}

TEST_F(PolygonzugGrenzenTest, ALargeMisclosureAnsweredNoLeavesTheTable) {
  u.punkt(2, 140, 200);  // 10 over 30 of length: a third
  u.dienste.messages.queue(forms::Answer::No);
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kFrage);
  EXPECT_EQ(u.meldungen()[0].message.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Question);
  unberuehrt();
  EXPECT_EQ(d.control("ErgA").captionText(), "10.000") << "the misclosure is shown all the same";
  EXPECT_EQ(d.control("ErgB").captionText(), "0.000");
}

TEST_F(PolygonzugGrenzenTest, ALargeMisclosureAnsweredYesIsSharedOut) {
  u.punkt(2, 140, 200);
  u.dienste.messages.queue(forms::Answer::Yes);
  u.rechnen("1", "2", "10", "11", true);
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, kAusgeglichenFertig);
  // Legs of 10 and 20 share out 10: 10 + 10/3 and 30 + 10.
  EXPECT_NEAR(u.p(10).A, 100 + 10 + 10.0 / 3, 1e-9);
  EXPECT_NEAR(u.p(11).A, 140, 1e-9);
  EXPECT_NEAR(u.p(11).B, 200, 1e-9);
}

TEST_F(PolygonzugGrenzenTest, ATenthOfTheLengthInEachComponentPassesWithoutQuestion) {
  // One leg of 100 at 0 gon from (0, 0) to PE (110, 10): each component is
  // exactly a tenth, their length more; no question.
  u.punkt(1, 0, 0);
  u.punkt(2, 110, 10);
  u.punkt(10, 100, 0);
  u.rechnen("1", "2", "10", "10", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  EXPECT_EQ(u.p(10).A, 110);
  EXPECT_EQ(u.p(10).B, 10);
}

TEST_F(PolygonzugGrenzenTest, JustOverATenthInOneComponentAsks) {
  u.punkt(1, 0, 0);
  u.punkt(2, 100, 10.001);
  u.punkt(10, 100, 0);
  u.dienste.messages.queue(forms::Answer::No);
  u.rechnen("1", "2", "10", "10", true);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kFrage);
  EXPECT_EQ(u.p(10).A, 100);
}

TEST_F(PolygonzugGrenzenTest, LegsWithoutLengthAskNothingAndStayOnPA) {
  u.punkt(10, 0, 50);
  u.punkt(11, 0, 0);
  u.punkt(2, 500, 900);  // far off, but S = 0 asks no question
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  for (int n : {10, 11}) {
    EXPECT_EQ(u.p(n).A, 100) << n;
    EXPECT_EQ(u.p(n).B, 200) << n;
  }
  EXPECT_EQ(d.control("ErgA").captionText(), "400.000");
  EXPECT_EQ(d.control("ErgB").captionText(), "700.000");
}

TEST_F(PolygonzugGrenzenTest, InAPolarTablePAAndPEAreReadPolarAndTheLegsAsAlways) {
  // The gon traverse of the other tests, PA (500, 300) and PE (477.5, 442.1)
  // held as distance and angle.
  u.zustand.Polar = core::Wahr;
  u.punkt(7, 583.095189485, 34.404173920);
  u.punkt(8, 650.737012932, 47.550541763);
  u.schenkel(11, {{120.5, 12.5}, {98.25, 87.0}, {143.0, 160.25}, {75.75, 260.0}});
  RechenDialog& d = u.rechnen("7", "8", "11", "14", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  EXPECT_NEAR(u.p(11).A, 618.166687247, 1e-6);
  EXPECT_NEAR(u.p(11).B, 323.527024707, 1e-6);
  EXPECT_NEAR(u.p(13).A, 522.036009860, 1e-6);
  EXPECT_NEAR(u.p(14).A, 477.5, 1e-6);
  EXPECT_NEAR(u.p(14).B, 442.1, 1e-6);
  EXPECT_EQ(d.control("LabelA").captionText(), "DX =") << "polar does not change the captions";
  EXPECT_EQ(d.control("ErgA").captionText(), "-0.065") << "the misclosure stays rectangular";
  EXPECT_NEAR(d.Eingabe(0).A, 583.095189485, 1e-6) << "PA back to polar";
  EXPECT_NEAR(d.Eingabe(1).B, 47.550541763, 1e-6);
}

TEST_F(PolygonzugGrenzenTest, AfterARefusedRangePAStaysRectangularInAPolarTable) {
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 100);  // (0, 10) in gon, system 0
  RechenDialog& d = u.rechnen("1", "", "10", "", false);
  u.meldung(kEndeFalsch, forms::Icon::Critical);
  EXPECT_NEAR(d.Eingabe(0).A, 0, 1e-6);
  EXPECT_NEAR(d.Eingabe(0).B, 10, 1e-6);
  // The next run converts the rectangular record once more: (0, 10) read
  // as distance 0 is the origin.
  d.control("Param", 1).setText("10");
  d.control("Berechnen").click();
  EXPECT_NEAR(u.p(10).A, 10, 1e-6);
  EXPECT_NEAR(u.p(10).B, 0, 1e-6);
  // A fresh fetch mends it.
  d.control("PP1Nr").setText("");
  d.control("PP1Nr").setText("1");
  EXPECT_EQ(d.Eingabe(0).A, 10);
  EXPECT_EQ(d.Eingabe(0).B, 100);
}

TEST_F(PolygonzugGrenzenTest, AfterANoPAAndPEStayRectangularInAPolarTable) {
  u.zustand.Polar = core::Wahr;
  u.punkt(1, 10, 100);  // (0, 10)
  u.punkt(2, 50, 100);  // (0, 50), far from the end of the legs
  u.dienste.messages.queue(forms::Answer::No);
  RechenDialog& d = u.rechnen("1", "2", "10", "11", true);
  EXPECT_EQ(u.meldungen()[0].message.text, kFrage);
  EXPECT_NEAR(d.Eingabe(0).B, 10, 1e-6);
  EXPECT_NEAR(d.Eingabe(1).A, 0, 1e-6);
  EXPECT_NEAR(d.Eingabe(1).B, 50, 1e-6);
  EXPECT_EQ(u.p(10).A, 10);
}

}  // namespace
}  // namespace kolm::calc::testing

// Polygonzug at its edges: the range messages, the question on a large
// misclosure, legs without length, empty slots, PA and PE in a polar table.
#include "polygonzug_umgebung.h"

namespace kolm::calc::testing {
namespace {

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

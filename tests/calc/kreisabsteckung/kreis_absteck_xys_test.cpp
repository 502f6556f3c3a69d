// KreisAbsteckXYS: x and y of a point on an arc from the arc's start, the
// chord S as the first axis; worked values from data/werte.py (the circle
// through both chord ends, walked by the arc length).
#include "kreisabsteckung_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct KreisAbsteckXYSTest : ::testing::Test {
  KreisAbsteckUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisAbsteckungXYS", "KreisAbsteckXYS"); }
  RechenDialog& rechnen(const std::string& r, const std::string& s, const std::string& b) {
    RechenDialog& d = oeffnen();
    d.control("Param", 0).setText(r);
    d.control("Param", 1).setText(s);
    d.control("Param", 2).setText(b);
    d.control("Berechnen").click();
    return d;
  }
  std::string x(RechenDialog& d) { return d.control("Erg", 0).captionText(); }
  std::string y(RechenDialog& d) { return d.control("Erg", 1).captionText(); }
};

TEST_F(KreisAbsteckXYSTest, TheMenuOpensItWithItsCaptions) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Kreisbogenabsteckung mit x, y, s");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&R=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "&S=");
  EXPECT_EQ(d.control("Label", 2).captionText(), "&B=");
  EXPECT_EQ(d.control("ErgLabel", 0).captionText(), "x =");
  EXPECT_EQ(d.control("ErgLabel", 1).captionText(), "y =");
  EXPECT_EQ(d.find("PktNr"), nullptr) << "no point to store";
}

TEST_F(KreisAbsteckXYSTest, GivesXAlongTheChordAndYTowardTheArc) {
  RechenDialog& d = rechnen("50", "60", "20");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(x(d), "17.944904");
  EXPECT_EQ(y(d), "8.52499");
  rechnen("200", "80", "30");
  EXPECT_EQ(x(d), "29.732931");
  EXPECT_EQ(y(d), "3.777115");
}

TEST_F(KreisAbsteckXYSTest, TheWholeArcEndsAtTheChordsEnd) {
  RechenDialog& d = rechnen("50", "60", "64.350110879");
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 0)), 60, 1e-6);
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 1)), 0, 1e-6);
}

TEST_F(KreisAbsteckXYSTest, NegativeArcsAndRadiiWalkTheOtherWay) {
  RechenDialog& d = rechnen("50", "60", "-10");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(x(d), "-7.348771");
  EXPECT_EQ(y(d), "-6.757417");
  // A negative radius mirrors the arc below the chord; B still walks from
  // the start toward the chord's end, and a negative B backward from it.
  rechnen("-50", "60", "20");
  EXPECT_EQ(x(d), "17.944904");
  EXPECT_EQ(y(d), "-8.52499");
  rechnen("-50", "60", "-20");
  EXPECT_EQ(x(d), "-13.208564");
  EXPECT_EQ(y(d), "14.840111");
}

TEST_F(KreisAbsteckXYSTest, AChordLongerThanTheDiameterIsNotRefused) {
  RechenDialog& d = rechnen("10", "30", "5");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(x(d), "4.794255");
  EXPECT_EQ(y(d), "-1.224174");
}

TEST_F(KreisAbsteckXYSTest, AnyZeroValueIsRefusedAndTheResultsStay) {
  RechenDialog& d = rechnen("50", "60", "20");
  for (int i = 0; i < 3; ++i) {
    const std::string vorher = d.control("Param", i).text();
    d.control("Param", i).setText(i == 1 ? "" : "0");
    d.control("Berechnen").click();
    ASSERT_EQ(u.meldungen().size(), static_cast<size_t>(i + 1));
    EXPECT_EQ(u.meldungen()[i].message.text, "Ungültige Parameter!");
    EXPECT_EQ(u.meldungen()[i].message.title, "Kreisbogenabsteckung mit x, y, s");
    EXPECT_EQ(x(d), "17.944904");
    d.control("Param", i).setText(vorher);
  }
}

TEST_F(KreisAbsteckXYSTest, TheAngleUnitAndTheTableDoNotMatter) {
  u.zustand.WinkelFaktor = KreisAbsteckUmgebung::kGrad;
  u.zustand.Polar = core::Wahr;
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = rechnen("50", "60", "20");
  EXPECT_EQ(x(d), "17.944904");
  EXPECT_EQ(y(d), "8.52499");
}

}  // namespace
}  // namespace kolm::calc::testing

// The area of a circular segment from a typed chord or from the arc's start
// and end point; worked values from data/werte.py.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct FlaecheBogenTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& s() { return u.oeffnen("MnuKreisFlächeS", "FlächeBogenS"); }
  RechenDialog& b() { return u.oeffnen("MnuKreisFlächeBABE", "FlächeBogenB"); }
  static void rechnen(RechenDialog& d, const std::string& sehne, const std::string& wert) {
    d.control("Param", 0).setText(sehne);
    d.control("Param", 1).setText(wert);
    d.control("Berechnen").click();
  }
};

TEST_F(FlaecheBogenTest, TheSegmentHeightReplacesTheRadius) {
  RechenDialog& d = s();
  EXPECT_EQ(d.control("OptionSegment").captionText(), "Segmenthöhe &P");
  const std::vector<std::string> namen = {"Radius", "Tangente", "α", "Bogen b", "Sehne S", "P (Ys)", "Fläche"};
  for (size_t i = 0; i < namen.size(); ++i)
    EXPECT_EQ(d.control("ErgLabel", static_cast<int>(i)).captionText(), namen[i]);
  d.control("OptionSegment").click();
  EXPECT_EQ(d.control("Label", 1).captionText(), "P=");
  EXPECT_EQ(d.control("OptionRadius").value(), 0);
}

struct Fall {
  const char* name;
  bool segment;  // the second value is the segment height
  const char *sehne, *wert;
  std::vector<std::string> felder;  // "" is not checked
};

TEST_F(FlaecheBogenTest, RadiusOrSegmentHeightGiveTheSegment) {
  const Fall faelle[] = {
      {"radius", false, "80", "50", {"50.000", "66.666667", "118.066894", "92.730", "80.000", "20.000", "1118.238"}},
      {"the same segment from its height", true, "80", "20",
       {"50.000", "66.666667", "118.066894", "92.730", "80.000", "20.000", "1118.238"}},
      // The height is shown as typed; angle, arc and area are the smaller segment's.
      {"height above half the chord", true, "80", "60",
       {"43.333333", "104.000", "149.733633", "101.920", "80.000", "60.000", "1541.610"}},
      {"half circle", false, "80", "40", {"", "", "200.000", "125.664", "", "40.000", "2513.274"}},
      {"empty fields give zeros", false, "", "", {"0.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000"}},
      {"empty height gives zeros", true, "80", "", {"0.000", "0.000", "0.000", "0.000", "80.000", "0.000", "0.000"}},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung v;
    RechenDialog& d = v.oeffnen("MnuKreisFlächeS", "FlächeBogenS");
    if (f.segment) d.control("OptionSegment").click();
    rechnen(d, f.sehne, f.wert);
    EXPECT_TRUE(v.meldungen().empty());
    MenueUmgebung::felder(d, f.felder);
  }
  // The tangent of half the program's Pi is large and negative.
  RechenDialog& d = s();
  rechnen(d, "80", "40");
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 1)), -195023556112.861664, 1e-3);
}

TEST_F(FlaecheBogenTest, ARadiusBelowHalfTheChordIsTooSmall) {
  RechenDialog& d = s();
  rechnen(d, "80", "50");
  for (const char* radius : {"39.999", ""}) {
    rechnen(d, "80", radius);
    u.meldung("Radius ist zu klein!");
    EXPECT_EQ(d.control("Erg", 6).captionText(), "1118.238") << "the fields stay";
  }
}

TEST_F(FlaecheBogenTest, MitBATakesTheChordFromThePointsInAltgrad) {
  u.zustand.WinkelFaktor = kGrad;
  u.punkt(1, 100, 200);
  u.punkt(2, 160, 280);
  RechenDialog& d = b();
  EXPECT_EQ(d.control("Label", 0).captionText(), "&R=");
  MenueUmgebung::eintragen(d, {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"Param(0)", "60"}});
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  MenueUmgebung::felder(d, {"60.000", "90.453403", "112.88538", "118.213", "100.000", "26.834", "1888.086"});
  d.control("Param", 0).setText("49");
  d.control("Berechnen").click();
  u.meldung("Radius ist zu klein!");
}

TEST_F(FlaecheBogenTest, MitBAInAPolarTableKeepsItsInputs) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 100, 200);
  u.polarPunkt(2, 160, 280);
  RechenDialog& d = b();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("OptionSegment").click();
  d.control("Param", 0).setText("26.8337");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("Erg", 4).captionText(), "100.000");
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 0)), 60, 1e-3);
  EXPECT_NEAR(d.Eingabe(0).A, u.zustand.Punkte[1].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(0).B, u.zustand.Punkte[1].B, 1e-7);
}

}  // namespace
}  // namespace kolm::calc::testing

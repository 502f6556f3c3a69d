// The elements of an arc from an angle, from a chord or arc, and from its
// start and end point, and the area of a circular segment from a typed
// chord or from the arc's start and end point; worked values from
// data/werte.py. Saving the points, M31 and a polar table are covered by
// the rechnen_bogen macros.
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

using Felder = std::vector<std::string>;

struct BogenElementeTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& w() { return u.oeffnen("MnuKreisBogenWinkel", "BogenElementeW"); }
  RechenDialog& s() { return u.oeffnen("MnuKreisBogenSehne", "BogenElementeS"); }
  static void rechnen(RechenDialog& d, const std::string& p0, const std::string& p1) {
    d.control("Param", 0).setText(p0);
    d.control("Param", 1).setText(p1);
    d.control("Berechnen").click();
  }
};

TEST_F(BogenElementeTest, TheOptionsChooseTheLabelsOfTheFields) {
  RechenDialog& d = w();
  EXPECT_EQ(d.control("OptionRadius").value(), 1);
  EXPECT_EQ(d.control("Label", 1).captionText(), "&R=");
  const Felder namen = {"Radius", "Tangente", "α", "Bogen b", "Sehne S", "Xs", "Ys", "ds", "ts"};
  for (size_t i = 0; i < namen.size(); ++i)
    EXPECT_EQ(d.control("ErgLabel", static_cast<int>(i)).captionText(), namen[i]);
  d.control("OptionTangente").click();
  EXPECT_EQ(d.control("Label", 1).captionText(), "&T=");
  EXPECT_EQ(d.control("OptionRadius").value(), 0);

  // With the chord the two groups are independent; an arc goes only with a radius.
  RechenDialog& e = s();
  EXPECT_EQ(e.control("OptionSehne").value(), 1);
  EXPECT_EQ(e.control("OptionRadius").value(), 1);
  e.control("OptionTangente").click();
  EXPECT_EQ(e.control("OptionSehne").value(), 1);
  EXPECT_EQ(e.control("Label", 1).captionText(), "&T=");
  e.control("OptionBogen").click();
  EXPECT_EQ(e.control("OptionRadius").value(), 1);
  EXPECT_EQ(e.control("Label", 1).captionText(), "&R=");
  e.control("OptionTangente").click();
  EXPECT_EQ(e.control("OptionTangente").value(), 0);
  e.control("OptionSehne").click();
  EXPECT_EQ(e.control("Label", 0).captionText(), "&S=");
  EXPECT_TRUE(e.control("OptionTangente").enabled());
}

struct Fall {
  const char* name;
  bool sehne;           // the chord dialog, else the angle dialog
  const char* option;   // clicked before computing, or nullptr
  double faktor;        // the angle unit
  const char *p0, *p1;
  Felder felder;
};

TEST_F(BogenElementeTest, ElementsInEveryUnitAndFromEveryPairOfValues) {
  const Fall faelle[] = {
      {"angle in gon, radius", false, nullptr, kGon, "50", "100",
       {"100.000", "41.421356", "50.000", "78.540", "76.537", "38.268", "7.612", "8.239", "19.891"}},
      {"angle in degrees, tangent", false, "OptionTangente", kGrad, "60", "20",
       {"34.641016", "20.000", "60.000", "36.276", "34.641", "17.321", "4.641", "5.359", "9.282"}},
      {"angle in radians, decimal comma", false, nullptr, 1, "1,2", "50",
       {"50.000", "34.20684", "1.200", "60.000", "56.464", "28.232", "8.733", "10.581", "15.467"}},
      // the cosine of 3.1415 is not exactly -1: no box
      {"radians just below the half circle", false, nullptr, 1, "3.1415", "10",
       {"10.000", "215857.799254", "3.1415", "31.415", "20.000", "10.000", "10.000", "215847.799", "10.000"}},
      {"chord and radius", true, nullptr, kGon, "80", "50",
       {"50.000", "66.666667", "118.066894", "92.730", "80.000", "40.000", "20.000", "33.333", "25.000"}},
      {"chord and tangent", true, "OptionTangente", kGon, "80", "60",
       {"53.665631", "60.000", "107.088189", "90.273", "80.000", "40.000", "17.889", "26.833", "24.000"}},
      {"arc and radius in degrees", true, "OptionBogen", kGrad, "100", "50",
       {"50.000", "77.870386", "114.591559", "100.000", "84.147", "42.074", "22.985", "42.541", "27.315"}},
      // the arc sine gives 0: no arc, every field 0, no box
      {"chord longer than the diameter", true, nullptr, kGon, "120", "50",
       {"50.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000"}},
      // a tangent shorter than half the chord: no radius either
      {"tangent shorter than half the chord", true, "OptionTangente", kGon, "120", "50",
       {"0.000", "50.000", "0.000"}},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung v;
    v.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = f.sehne ? v.oeffnen("MnuKreisBogenSehne", "BogenElementeS")
                              : v.oeffnen("MnuKreisBogenWinkel", "BogenElementeW");
    if (f.option) d.control(f.option).click();
    rechnen(d, f.p0, f.p1);
    EXPECT_TRUE(v.meldungen().empty());
    MenueUmgebung::felder(d, f.felder);
  }
}

struct Ungueltig {
  bool sehne;
  const char* option;
  double faktor;
  const char *p0, *p1;
};

TEST_F(BogenElementeTest, InvalidValuesKeepTheFieldsAndSayWhy) {
  // With the program's Pi the cosine of a half or full circle is exactly -1 or 1.
  const Ungueltig faelle[] = {
      {false, nullptr, kGon, "200", "100"},   {false, nullptr, kGon, "400", "100"},
      {false, nullptr, kGon, "0", "100"},     {false, nullptr, kGon, "50", ""},
      {false, "OptionTangente", kGon, "50", "0"}, {false, nullptr, kGrad, "180", "5"},
      {false, nullptr, 1, "3.141592654", "5"},               {true, nullptr, kGon, "", "50"},
      {true, nullptr, kGon, "80", "0"},
  };
  for (const Ungueltig& f : faelle) {
    SCOPED_TRACE(std::string(f.p0) + " / " + f.p1);
    MenueUmgebung v;
    v.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = f.sehne ? v.oeffnen("MnuKreisBogenSehne", "BogenElementeS")
                              : v.oeffnen("MnuKreisBogenWinkel", "BogenElementeW");
    if (f.option) d.control(f.option).click();
    rechnen(d, "1", "5");
    const std::string vorher = d.control("Erg", 1).captionText();
    rechnen(d, f.p0, f.p1);
    v.meldung("Ungültige Parameter!");
    EXPECT_EQ(d.control("Erg", 1).captionText(), vorher) << "the fields stay";
  }
}

// ---- from the start and end point

struct BUmgebung : MenueUmgebung {
  // BA (100, 200), BE (160, 280): the chord is 100 long.
  BUmgebung() {
    punkt(1, 100, 200, 7);
    punkt(2, 160, 280, 8);
  }
  RechenDialog& rechnen(const std::string& wert, bool tangente = false) {
    RechenDialog& d = oeffnen("MnuKreisBogenBABE", "BogenElementeB");
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    if (tangente) d.control("OptionTangente").click();
    d.control("Param", 0).setText(wert);
    d.control("Berechnen").click();
    return d;
  }
};

struct BogenElementeBTest : ::testing::Test {
  BUmgebung u;
};

TEST_F(BogenElementeBTest, TheNoteFollowsTheOptionBackAndForth) {
  RechenDialog& d = u.oeffnen("MnuKreisBogenBABE", "BogenElementeB");
  EXPECT_EQ(d.control("Ergebnis", 0).captionText(), "Ergebnis Mittelpunkt");
  EXPECT_EQ(d.control("Ergebnis", 1).captionText(), "Ergebnis W-Punkt");
  d.control("OptionTangente").click();
  d.control("OptionRadius").click();
  EXPECT_EQ(d.control("Label", 0).captionText(), "&R=");
  EXPECT_EQ(d.control("Hinweis").captionText(), "R>0 rechtsdrehend    R<0 linksdrehend");
}

struct BFall {
  const char* wert;
  bool tangente;
  double faktor;
  Felder felder;
  double m[2], w[2];  // centre and vertex
};

TEST_F(BogenElementeBTest, TheSignChoosesTheSideOfCentreAndVertex) {
  const BFall faelle[] = {
      {"-80", false, kGon, {"80.000", "64.051262", "85.960417"},
       {80.040016013, 277.469987990}, {162.025630761, 215.980776929}},
      {"70", true, kGrad,
       {"71.443451", "70.000", "88.830617", "110.765", "100.000", "50.000", "20.412", "28.577", "29.167"},
       {170.824829046, 209.381378215}, {90.808164115, 269.393876913}},
      {"-70", true, kGrad, {"71.443451", "70.000", "88.830617"},
       {89.175170954, 270.618621785}, {169.191835885, 210.606123087}},
      // A half circle: the centre in the middle of the chord. The tangent of
      // half the program's Pi is negative: its circles miss, and the vertex
      // stays on BA, where the search for a left turn starts.
      {"-50", false, kGon, {"50.000", "", "200.000"}, {130, 240}, {100, 200}},
  };
  for (const BFall& f : faelle) {
    SCOPED_TRACE(f.wert);
    BUmgebung v;
    v.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = v.rechnen(f.wert, f.tangente);
    EXPECT_TRUE(v.meldungen().empty());
    MenueUmgebung::felder(d, f.felder);
    EXPECT_NEAR(d.Ergebnis(0).A, f.m[0], 1e-6);
    EXPECT_NEAR(d.Ergebnis(0).B, f.m[1], 1e-6);
    EXPECT_NEAR(d.Ergebnis(1).A, f.w[0], 1e-6);
    EXPECT_NEAR(d.Ergebnis(1).B, f.w[1], 1e-6);
  }
}

TEST_F(BogenElementeBTest, AChordLongerThanTheDiameterCannotBeComputed) {
  for (const auto& [wert, tangente] : {std::pair{"49.999", false}, {"0", false}, {"49.999", true}}) {
    SCOPED_TRACE(wert);
    BUmgebung v;
    RechenDialog& d = v.rechnen(wert, tangente);
    v.meldung("Berechnung nicht durchführbar!");
    // The elements are shown before the centre is sought: no angle.
    if (!tangente && std::string(wert) != "0") {
      EXPECT_EQ(d.control("Erg", 2).captionText(), "0.000");
      EXPECT_EQ(d.control("Erg", 4).captionText(), "100.000");
    }
  }
}

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

struct Segment {
  const char* name;
  bool segment;  // the second value is the segment height
  const char *sehne, *wert;
  std::vector<std::string> felder;  // "" is not checked
};

TEST_F(FlaecheBogenTest, RadiusOrSegmentHeightGiveTheSegment) {
  const Segment faelle[] = {
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
  for (const Segment& f : faelle) {
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
  // A radius of exactly half the chord is the half circle, not too small.
  d.control("Param", 0).setText("50");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty());
  MenueUmgebung::felder(d, {"50.000", "", "180.000", "157.080", "100.000", "50.000", "3926.991"});
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

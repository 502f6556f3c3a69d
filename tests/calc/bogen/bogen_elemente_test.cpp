// The elements of an arc from an angle, from a chord or arc, and from its
// start and end point; worked values from data/werte.py.
#include "bogen_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct BogenElementeTest : ::testing::Test {
  BogenUmgebung u;
  RechenDialog& w() { return u.oeffnen("MnuKreisBogenWinkel", "BogenElementeW"); }
  RechenDialog& s() { return u.oeffnen("MnuKreisBogenSehne", "BogenElementeS"); }
  static void rechnen(RechenDialog& d, const std::string& p0, const std::string& p1) {
    d.control("Param", 0).setText(p0);
    d.control("Param", 1).setText(p1);
    d.control("Berechnen").click();
  }
};

// ---- with the angle

TEST_F(BogenElementeTest, WinkelOpensWithItsCaptionsAndRadiusChosen) {
  RechenDialog& d = w();
  EXPECT_EQ(d.caption(), "Bogenelemente mit Winkel");
  EXPECT_EQ(d.control("OptionRadius").value(), 1);
  EXPECT_EQ(d.control("Label", 1).captionText(), "&R=");
  const std::vector<std::string> namen = {"Radius", "Tangente", "α", "Bogen b", "Sehne S", "Xs", "Ys", "ds", "ts"};
  for (size_t i = 0; i < namen.size(); ++i)
    EXPECT_EQ(d.control("ErgLabel", static_cast<int>(i)).captionText(), namen[i]);
  d.control("OptionTangente").click();
  EXPECT_EQ(d.control("Label", 1).captionText(), "&T=");
  EXPECT_EQ(d.control("OptionRadius").value(), 0);
  d.control("OptionRadius").click();
  EXPECT_EQ(d.control("Label", 1).captionText(), "&R=");
}

TEST_F(BogenElementeTest, WinkelInGonWithRadius) {
  RechenDialog& d = w();
  rechnen(d, "50", "100");
  EXPECT_TRUE(u.meldungen().empty());
  BogenUmgebung::felder(d,
                        {"100.000", "41.421356", "50.000", "78.540", "76.537", "38.268", "7.612", "8.239", "19.891"});
}

TEST_F(BogenElementeTest, WinkelInAltgradWithTangent) {
  u.zustand.WinkelFaktor = BogenUmgebung::kGrad;
  RechenDialog& d = w();
  d.control("OptionTangente").click();
  rechnen(d, "60", "20");
  BogenUmgebung::felder(d, {"34.641016", "20.000", "60.000", "36.276", "34.641", "17.321", "4.641", "5.359", "9.282"});
}

TEST_F(BogenElementeTest, WinkelInRadiantUpToJustBelowTheHalfCircle) {
  u.zustand.WinkelFaktor = 1;
  RechenDialog& d = w();
  rechnen(d, "1,2", "50");
  BogenUmgebung::felder(d, {"50.000", "34.20684", "1.200", "60.000", "56.464", "28.232", "8.733", "10.581", "15.467"});
  rechnen(d, "3.1415", "10");
  EXPECT_TRUE(u.meldungen().empty()) << "the cosine of 3.1415 is not exactly -1";
  BogenUmgebung::felder(d, {"10.000", "215857.799254", "3.1415", "31.415", "20.000", "10.000", "10.000", "215847.799",
                            "10.000"});
}

TEST_F(BogenElementeTest, WinkelRefusesAFullOrHalfCircleAndAZeroValue) {
  RechenDialog& d = w();
  rechnen(d, "50", "100");
  // With the program's Pi the cosine of these is exactly -1 or 1.
  for (const char* winkel : {"200", "400", "0"}) {
    rechnen(d, winkel, "100");
    u.meldung(d, "Ungültige Parameter!");
    EXPECT_EQ(d.control("Erg", 1).captionText(), "41.421356") << "the fields stay";
  }
  rechnen(d, "50", "");
  u.meldung(d, "Ungültige Parameter!");
  d.control("OptionTangente").click();
  rechnen(d, "50", "0");
  u.meldung(d, "Ungültige Parameter!");
  u.zustand.WinkelFaktor = BogenUmgebung::kGrad;
  rechnen(d, "180", "5");
  u.meldung(d, "Ungültige Parameter!");
  u.zustand.WinkelFaktor = 1;
  rechnen(d, "3.141592654", "5");
  u.meldung(d, "Ungültige Parameter!");
}

// ---- with the chord or the arc

TEST_F(BogenElementeTest, SehneOpensWithTwoGroupsOfOptions) {
  RechenDialog& d = s();
  EXPECT_EQ(d.caption(), "Bogenelemente mit Sehne");
  EXPECT_EQ(d.control("OptionSehne").value(), 1);
  EXPECT_EQ(d.control("OptionRadius").value(), 1) << "the groups are independent";
  EXPECT_EQ(d.control("Label", 0).captionText(), "&S=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "&R=");
  d.control("OptionTangente").click();
  EXPECT_EQ(d.control("OptionSehne").value(), 1);
  EXPECT_EQ(d.control("Label", 1).captionText(), "&T=");
  // An arc length goes only with a radius.
  d.control("OptionBogen").click();
  EXPECT_EQ(d.control("Label", 0).captionText(), "&B=");
  EXPECT_EQ(d.control("OptionRadius").value(), 1);
  EXPECT_EQ(d.control("Label", 1).captionText(), "&R=");
  EXPECT_FALSE(d.control("OptionTangente").enabled());
  d.control("OptionTangente").click();
  EXPECT_EQ(d.control("OptionTangente").value(), 0);
  d.control("OptionSehne").click();
  EXPECT_EQ(d.control("Label", 0).captionText(), "&S=");
  EXPECT_TRUE(d.control("OptionTangente").enabled());
}

TEST_F(BogenElementeTest, SehneWithRadiusOrTangent) {
  RechenDialog& d = s();
  rechnen(d, "80", "50");
  BogenUmgebung::felder(d, {"50.000", "66.666667", "118.066894", "92.730", "80.000", "40.000", "20.000", "33.333",
                            "25.000"});
  d.control("OptionTangente").click();
  rechnen(d, "80", "60");
  BogenUmgebung::felder(d, {"53.665631", "60.000", "107.088189", "90.273", "80.000", "40.000", "17.889", "26.833",
                            "24.000"});
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(BogenElementeTest, BogenWithRadiusInAltgrad) {
  u.zustand.WinkelFaktor = BogenUmgebung::kGrad;
  RechenDialog& d = s();
  d.control("OptionBogen").click();
  rechnen(d, "100", "50");
  BogenUmgebung::felder(d, {"50.000", "77.870386", "114.591559", "100.000", "84.147", "42.074", "22.985", "42.541",
                            "27.315"});
}

TEST_F(BogenElementeTest, SehneRefusesZeroAndTakesAChordLongerThanTheDiameterQuietly) {
  RechenDialog& d = s();
  rechnen(d, "", "50");
  u.meldung(d, "Ungültige Parameter!");
  rechnen(d, "80", "0");
  u.meldung(d, "Ungültige Parameter!");
  // The arc sine gives 0: no arc, and every field shows 0 without a box.
  rechnen(d, "120", "50");
  EXPECT_TRUE(u.meldungen().empty());
  BogenUmgebung::felder(d, {"50.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000", "0.000"});
  // A tangent shorter than half the chord: no radius either.
  d.control("OptionTangente").click();
  rechnen(d, "120", "50");
  EXPECT_TRUE(u.meldungen().empty());
  BogenUmgebung::felder(d, {"0.000", "50.000", "0.000"});
}

// ---- from the start and end point

struct BogenElementeBTest : ::testing::Test {
  BogenUmgebung u;
  // BA (100, 200), BE (160, 280): the chord is 100 long.
  BogenElementeBTest() {
    u.punkt(1, 100, 200, 7);
    u.punkt(2, 160, 280, 8);
  }
  RechenDialog& b() { return u.oeffnen("MnuKreisBogenBABE", "BogenElementeB"); }
  RechenDialog& rechnen(const std::string& wert, bool tangente = false) {
    RechenDialog& d = b();
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    if (tangente) d.control("OptionTangente").click();
    d.control("Param", 0).setText(wert);
    d.control("Berechnen").click();
    return d;
  }
};

TEST_F(BogenElementeBTest, OpensWithItsCaptionsAndTheNoteFollowsTheOption) {
  RechenDialog& d = b();
  EXPECT_EQ(d.caption(), "Bogenelemente mit BA, BE");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Bogenanfang");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Bogenende");
  EXPECT_EQ(d.control("Ergebnis", 0).captionText(), "Ergebnis Mittelpunkt");
  EXPECT_EQ(d.control("Ergebnis", 1).captionText(), "Ergebnis W-Punkt");
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "MX =");
  EXPECT_EQ(d.control("LabelB", 0).captionText(), "MY =");
  EXPECT_EQ(d.control("LabelA", 1).captionText(), "WX =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "WY =");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&R=");
  EXPECT_EQ(d.control("Hinweis").captionText(), "R>0 rechtsdrehend    R<0 linksdrehend");
  d.control("OptionTangente").click();
  EXPECT_EQ(d.control("Label", 0).captionText(), "&T=");
  EXPECT_EQ(d.control("Hinweis").captionText(), "T>0 rechtsdrehend\nT<0 linksdrehend");
  d.control("OptionRadius").click();
  EXPECT_EQ(d.control("Hinweis").captionText(), "R>0 rechtsdrehend    R<0 linksdrehend");
}

TEST_F(BogenElementeBTest, APositiveRadiusPutsTheCentreRightOfTheChordAndTheVertexLeft) {
  RechenDialog& d = rechnen("80");
  EXPECT_TRUE(u.meldungen().empty());
  BogenUmgebung::felder(d, {"80.000", "64.051262", "85.960417", "108.021", "100.000", "50.000", "17.550", "22.482",
                            "28.080"});
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "179.960");
  EXPECT_EQ(d.control("ErgB", 0).captionText(), "202.530");
  EXPECT_EQ(d.control("ErgA", 1).captionText(), "97.974");
  EXPECT_EQ(d.control("ErgB", 1).captionText(), "264.019");
  EXPECT_EQ(d.control("PktNr", 0).text(), "3");
  EXPECT_EQ(d.control("PktNr", 1).text(), "3");
  d.control("Speichern", 0).click();
  d.control("PktNr", 1).setText("4");
  d.control("Speichern", 1).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 179.959983987, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 202.530012010, 1e-6);
  EXPECT_EQ(u.zustand.Punkte[3].C, 0) << "a calculated point has height 0";
  EXPECT_NEAR(u.zustand.Punkte[4].A, 97.974369239, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[4].B, 264.019223071, 1e-6);
}

TEST_F(BogenElementeBTest, ANegativeRadiusTurnsLeftWithTheSameElements) {
  RechenDialog& d = rechnen("-80");
  BogenUmgebung::felder(d, {"80.000", "64.051262", "85.960417"});
  EXPECT_NEAR(d.Ergebnis(0).A, 80.040016013, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 277.469987990, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 162.025630761, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 215.980776929, 1e-6);
  d.control("Speichern", 0).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 80.040016013, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 277.469987990, 1e-6);
}

TEST_F(BogenElementeBTest, ASignedTangentInAltgrad) {
  u.zustand.WinkelFaktor = BogenUmgebung::kGrad;
  RechenDialog& d = rechnen("70", true);
  BogenUmgebung::felder(d, {"71.443451", "70.000", "88.830617", "110.765", "100.000", "50.000", "20.412", "28.577",
                            "29.167"});
  EXPECT_NEAR(d.Ergebnis(0).A, 170.824829046, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 209.381378215, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 90.808164115, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 269.393876913, 1e-6);
  d.control("Param", 0).setText("-70");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 89.175170954, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 270.618621785, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 169.191835885, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 210.606123087, 1e-6);
}

TEST_F(BogenElementeBTest, AHalfCircleHasItsCentreInTheMiddleOfTheChord) {
  RechenDialog& d = rechnen("-50");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(d.Ergebnis(0).A, 130, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 240, 1e-6);
  EXPECT_EQ(d.control("Erg", 2).captionText(), "200.000");
  // The tangent of half the program's Pi is negative: its circles miss, and
  // the vertex stays on BA, where the search for a left turn starts.
  EXPECT_EQ(d.Ergebnis(1).A, 100);
  EXPECT_EQ(d.Ergebnis(1).B, 200);
}

TEST_F(BogenElementeBTest, AChordLongerThanTheDiameterCannotBeComputed) {
  RechenDialog& d = rechnen("80");
  rechnen("49.999");
  u.meldung(d, "Berechnung nicht durchführbar!");
  // The elements are shown before the centre is sought: no angle.
  EXPECT_EQ(d.control("Erg", 2).captionText(), "0.000");
  EXPECT_EQ(d.control("Erg", 4).captionText(), "100.000");
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "179.960") << "the result points stay";
  EXPECT_NEAR(d.Ergebnis(0).A, 179.959983987, 1e-6);
  rechnen("0");
  u.meldung(d, "Berechnung nicht durchführbar!");
  rechnen("49.999", true);
  u.meldung(d, "Berechnung nicht durchführbar!");
}

TEST_F(BogenElementeBTest, CoincidingPointsAreInvalid) {
  RechenDialog& d = b();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("1");
  d.control("Param", 0).setText("80");
  d.control("Berechnen").click();
  u.meldung(d, "Ungültige Parameter!");
  EXPECT_EQ(d.control("Erg", 0).captionText(), "");
}

TEST_F(BogenElementeBTest, UnderM31OnlyTheCaptionsChange) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = rechnen("80");
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "MY =");
  EXPECT_EQ(d.control("LabelB", 0).captionText(), "MX =");
  EXPECT_EQ(d.control("LabelA", 1).captionText(), "WY =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "WX =");
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "179.960");
  EXPECT_EQ(d.control("ErgB", 1).captionText(), "264.019");
}

TEST_F(BogenElementeBTest, APolarTableGetsPolarResultsAndKeepsItsInputs) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 100, 200);
  u.polarPunkt(2, 160, 280);
  RechenDialog& d = rechnen("80");
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "M-e =");
  EXPECT_EQ(d.control("LabelB", 0).captionText(), "M-Phi =");
  EXPECT_EQ(d.control("LabelA", 1).captionText(), "W-e =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "W-Phi =");
  EXPECT_NEAR(d.Ergebnis(0).A, 270.931728672, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 53.752224657, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 281.611660232, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 77.378570658, 1e-6);
  EXPECT_EQ(d.control("Erg", 4).captionText(), "100.000") << "lengths are not converted";
  EXPECT_NEAR(d.Eingabe(1).A, u.zustand.Punkte[2].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, u.zustand.Punkte[2].B, 1e-7);
  d.control("Speichern", 1).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 281.611660232, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 77.378570658, 1e-6);
}

}  // namespace
}  // namespace kolm::calc::testing

// Polygonzug: open and adjusted traverses in place; worked values from
// data/werte.py.
#include "polygonzug_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr char kFliegendFertig[] = "Berechnung des fliegenden Polygonzugs ist abgeschlossen!";
constexpr char kAusgeglichenFertig[] = "Berechnung des ausgeglichenen Polygonzugs ist abgeschlossen!";

// A note as the user reads it: its line breaks stand for blanks.
std::string Einzeilig(const forms::Control& c) {
  std::string text = c.captionText();
  for (char& ch : text)
    if (ch == '\n') ch = ' ';
  return text;
}

struct PolygonzugTest : ::testing::Test {
  PolygonzugUmgebung u;

  // Degrees, system 0: PA (1000, 2000) as point 1, legs 101..103.
  void altgradZug(double peA, double peB) {
    u.zustand.WinkelFaktor = kGrad;
    u.punkt(1, 1000, 2000, 12.5);
    u.punkt(2, peA, peB);
    u.schenkel(101, {{50, 30}, {40, 75}, {60, 140}});
  }
  void erwarte(int n, double a, double b, double tol = 1e-6) {
    EXPECT_NEAR(u.p(n).A, a, tol) << "point " << n;
    EXPECT_NEAR(u.p(n).B, b, tol) << "point " << n;
  }
};

TEST_F(PolygonzugTest, TheMenuOpensItWithItsCaptionsAndNotes) {
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.caption(), "Polygonzug");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Ausgangspunkt PA");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Endpunkt PE");
  EXPECT_EQ(d.control("Label", 0).captionText(), "S&tart:");
  EXPECT_EQ(d.control("Label", 1).captionText(), "E&nde:");
  EXPECT_EQ(d.control("CheckAusgleichen").captionText(), "Aus&gleichen");
  EXPECT_EQ(d.control("LabelGeschlossen").captionText(), "(nicht für geschlossene Polygonzüge geeignet)");
  EXPECT_EQ(Einzeilig(d.control("LabelBeschreibung")),
            "Die gemessenen Werte werden immer unabhängig von der Stellung des Schalters 'Polar'  als (e, Phi)  "
            "interpretiert. Das Ergebnis wird dann in rechtwinkelligen Koordinaten an die Stelle der Meßwerte "
            "gespeichert. PA und PE können auch polar angegeben werden.");
  EXPECT_EQ(Einzeilig(d.control("LabelMesswerte")),
            "Die Punkte von 'Start' bis 'Ende' enthalten die gemessenen Strecken (e) und Winkel (Phi):");
  EXPECT_EQ(Einzeilig(d.control("LabelAusgleichen")),
            "Wenn 'Ausgleichen' gewählt wird, dann wird der Polygonzug nach der Berechnung korrigiert, indem "
            "die Fehler DX und DY jeweils im Verhältnis der gemessenen Strecke e zur Gesamtlänge des "
            "Polygonzugs aufgeteilt werden.");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Fehler bei Ausgleich:");
  EXPECT_EQ(d.control("LabelA").captionText(), "DX =");
  EXPECT_EQ(d.control("LabelB").captionText(), "DY =");
  EXPECT_EQ(d.control("LabelAlsNr").captionText(), "Als &Nr.:");
  EXPECT_TRUE(d.find("Skizze") != nullptr);
}

TEST_F(PolygonzugTest, EndPointIsEnabledOnlyWhileAdjusting) {
  RechenDialog& d = u.oeffnen();
  EXPECT_FALSE(d.control("Punkt2").enabled());
  d.control("CheckAusgleichen").click();
  EXPECT_TRUE(d.control("Punkt2").enabled());
  d.control("CheckAusgleichen").click();
  EXPECT_FALSE(d.control("Punkt2").enabled());
}

TEST_F(PolygonzugTest, UnderM31TheMisclosureCaptionsSwapAndPolarLeavesThem) {
  u.zustand.M31 = core::Wahr;
  u.zustand.Polar = core::Wahr;
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.control("LabelA").captionText(), "DY =");
  EXPECT_EQ(d.control("LabelB").captionText(), "DX =");
}

TEST_F(PolygonzugTest, OpenTraverseInDegreesOverwritesTheLegsWithCoordinates) {
  altgradZug(0, 0);
  u.zustand.Punkte[102].C = 7.25;
  u.zustand.Punkte[102].KurzBez = 3;
  RechenDialog& d = u.rechnen("1", "", "101", "103", false);
  u.meldung(kFliegendFertig, forms::Icon::None);
  erwarte(101, 1043.301270188, 2025.000000003);
  erwarte(102, 1053.654031985, 2063.637033056);
  erwarte(103, 1007.691365386, 2102.204289623);
  EXPECT_EQ(u.p(102).C, 7.25) << "heights stay";
  EXPECT_EQ(u.p(102).KurzBez, 3) << "designations stay";
  EXPECT_EQ(u.p(1).A, 1000) << "PA is not touched";
  EXPECT_EQ(u.p(100).A, 0) << "nothing outside the range";
  EXPECT_EQ(u.p(104).A, 0);
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(d.control("ErgA").captionText(), "") << "an open traverse has no misclosure";
  EXPECT_EQ(d.activeControl(), &d.control("Schließen"));
}

TEST_F(PolygonzugTest, AdjustedTraverseInDegreesEndsOnPE) {
  altgradZug(1007.80, 2102.10);
  u.punkt(150, 1, 1);  // the highest used number: 151 is offered
  RechenDialog& d = u.rechnen("1", "2", "101", "103", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  erwarte(101, 1043.337481726, 2024.965236795);
  erwarte(102, 1053.719212754, 2063.574459283);
  erwarte(103, 1007.800000000, 2102.100000000);
  EXPECT_EQ(d.control("ErgA").captionText(), "0.109");
  EXPECT_EQ(d.control("ErgB").captionText(), "-0.104");
  EXPECT_NEAR(d.Ergebnis().A, 0.108634614, 1e-8);
  EXPECT_NEAR(d.Ergebnis().B, -0.104289623, 1e-8);
  EXPECT_EQ(d.control("PktNr").text(), "151");
  EXPECT_EQ(d.activeControl(), &d.control("PktNr"));
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
}

TEST_F(PolygonzugTest, TheMisclosureIsStoredAsAPointOnRequest) {
  altgradZug(1007.80, 2102.10);
  RechenDialog& d = u.rechnen("1", "2", "101", "103", true);
  d.control("PktNr").setText("300");
  d.control("Speichern").click();
  erwarte(300, 0.108634614, -0.104289623, 1e-8);
}

TEST_F(PolygonzugTest, AdjustedTraverseInGon) {
  u.punkt(7, 500, 300);
  u.punkt(8, 477.50, 442.10);
  u.schenkel(11, {{120.5, 12.5}, {98.25, 87.0}, {143.0, 160.25}, {75.75, 260.0}});
  RechenDialog& d = u.rechnen("7", "8", "11", "14", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  erwarte(11, 618.166687247, 323.527024707);
  erwarte(12, 638.075912354, 419.750864763);
  erwarte(13, 522.036009860, 503.371319105);
  erwarte(14, 477.500000000, 442.100000000);
  EXPECT_EQ(d.control("ErgA").captionText(), "-0.065");
  EXPECT_EQ(d.control("ErgB").captionText(), "0.068");
}

TEST_F(PolygonzugTest, OpenTraverseInGon) {
  u.punkt(7, 500, 300);
  u.schenkel(11, {{120.5, 12.5}, {98.25, 87.0}, {143.0, 160.25}, {75.75, 260.0}});
  u.rechnen("7", "", "11", "14", false);
  erwarte(11, 618.184626288, 323.508383806);
  erwarte(12, 638.108478040, 419.717024953);
  erwarte(13, 522.089864200, 503.315357728);
  erwarte(14, 477.565131371, 442.032320380);
}

TEST_F(PolygonzugTest, UnderM31TheLegsRunClockwiseFromX) {
  u.zustand.M31 = core::Wahr;
  u.punkt(1, 5000, 8000);
  u.punkt(2, 5159.30, 8116.60);
  u.schenkel(21, {{80, 50}, {65, 120}, {90, 30}});
  RechenDialog& d = u.rechnen("1", "2", "21", "23", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  erwarte(21, 5056.586802573, 8056.543682910);
  erwarte(22, 5118.420312437, 8036.437379852);
  erwarte(23, 5159.300000000, 8116.600000000);
  EXPECT_EQ(d.control("LabelA").captionText(), "DY =");
  EXPECT_EQ(d.control("ErgA").captionText(), "0.054");
  EXPECT_EQ(d.control("ErgB").captionText(), "-0.073");
}

TEST_F(PolygonzugTest, OpenTraverseUnderM31) {
  u.zustand.M31 = core::Wahr;
  u.punkt(1, 5000, 8000);
  u.schenkel(21, {{80, 50}, {65, 120}, {90, 30}});
  u.rechnen("1", "", "21", "23", false);
  erwarte(21, 5056.568542501, 8056.568542489);
  erwarte(22, 5118.387216055, 8036.482437840);
  erwarte(23, 5159.246361036, 8116.673025014);
}

TEST_F(PolygonzugTest, AClosedTraverseIsAccepted) {
  u.punkt(1, 100, 100);
  u.schenkel(31, {{30, 0}, {40, 100}, {50, 259.0334}});
  RechenDialog& d = u.rechnen("1", "1", "31", "33", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  erwarte(31, 130.000007389, 99.999994460);
  erwarte(32, 130.000017233, 139.999987073);
  erwarte(33, 100, 100);
  EXPECT_NEAR(d.Ergebnis().A, 0.000029556, 1e-8);
  EXPECT_NEAR(d.Ergebnis().B, -0.000022161, 1e-8);
}

TEST_F(PolygonzugTest, OneLegIsMovedOntoPE) {
  u.punkt(1, 200, 300);
  u.punkt(2, 205, 310);
  u.punkt(40, 11, 70);
  RechenDialog& d = u.rechnen("1", "2", "40", "40", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  erwarte(40, 205, 310, 1e-9);
  EXPECT_NEAR(d.Ergebnis().A, 0.006104504, 1e-8);
  EXPECT_NEAR(d.Ergebnis().B, 0.198928233, 1e-8);
}

TEST_F(PolygonzugTest, AnEmptyPointInTheRangeTakesItsPredecessorsCoordinates) {
  u.punkt(1, 10, 20);
  u.punkt(50, 5, 0);
  u.punkt(52, 5, 100);  // 51 is empty
  u.rechnen("1", "", "50", "52", false);
  erwarte(50, 15, 20);
  erwarte(51, 15, 20);
  erwarte(52, 15, 25);
}

TEST_F(PolygonzugTest, ASecondRunReadsTheFirstResultsAsLegs) {
  u.punkt(60, 10, 100);
  RechenDialog& d = u.rechnen("1", "", "60", "60", false);
  erwarte(60, 0, 10);
  // (0, 10) read as a leg has no length.
  d.control("Berechnen").click();
  erwarte(60, 0, 0);
}

TEST_F(PolygonzugTest, ThousandsOfLegsAreAdjustedInOneRun) {
  u.zustand.PunkteDimensionieren(9999);
  std::vector<std::pair<double, double>> legs(5000, {1.0, 0.0});
  u.schenkel(1, legs);
  u.punkt(9000, 5000.5, 2);
  RechenDialog& d = u.rechnen("0", "9000", "1", "5000", true);
  u.meldung(kAusgeglichenFertig, forms::Icon::None);
  EXPECT_NEAR(d.Ergebnis().A, 0.5, 1e-9);
  EXPECT_NEAR(d.Ergebnis().B, 2.0, 1e-9);
  erwarte(1, 1.000100000, 0.000400000);
  erwarte(2500, 2500.250000000, 1.000000000);
  erwarte(4999, 4999.499900000, 1.999600000);
  erwarte(5000, 5000.500000000, 2.000000000);
  EXPECT_EQ(u.p(5001).A, 0);
}

}  // namespace
}  // namespace kolm::calc::testing

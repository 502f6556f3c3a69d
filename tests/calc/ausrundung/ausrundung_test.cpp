// Ausrundung: the corner P2 of P1, P2, P3 rounded by an arc given by its
// tangent, radius, chord, arc or ds; worked values from data/werte.py
// (tangent points along the unit vectors, checked against the centre on
// the bisector).
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

constexpr char kGerade[] =
    "P1, P2, und P3 liegen auf einer Geraden. Es kann daher kein Kreisbogen eingerechnet werden!";
constexpr char kWarnung2[] =
    "Achtung! Die Tangentenlänge ist größer als der Abstand zwischen Punkt P2 und Punkt P3. "
    "Der Tangentenpunkt T2 liegt NICHT zwischen P2 und P3!";

struct AusrundungTest : ::testing::Test {
  MenueUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisAusrundung", "Ausrundung"); }
  // Points 1, 2, 3 are the corner; option is the given value's button.
  RechenDialog& rechnen(const std::string& option, const std::string& wert) {
    RechenDialog& d = oeffnen();
    MenueUmgebung::eintragen(d, {{"PP1Nr", "1"}, {"PP2Nr", "2"}, {"PP3Nr", "3"}});
    d.control(option).click();
    d.control("Param", 0).setText(wert);
    d.control("Berechnen").click();
    return d;
  }
  // The blunt corner (0, 0), (100, 0), (180, 60): turning angle 36.87 degrees.
  void stumpf() {
    u.punkt(1, 0, 0, 1.5);
    u.punkt(2, 100, 0, 2.5);
    u.punkt(3, 180, 60, 3.5);
  }
  // A point changed in the table reaches the dialog when its number is given again.
  void neuHolen(RechenDialog& d, int n, double a, double b) {
    u.punkt(n, a, b);
    const std::string feld = "PP" + std::to_string(n) + "Nr";
    d.control(feld).setText("");
    d.control(feld).setText(std::to_string(n));
  }
  static std::string erg(RechenDialog& d, int i) { return d.control("Erg", i).captionText(); }
  static double zahl(RechenDialog& d, int i) { return MenueUmgebung::zahl(d.control("Erg", i)); }
};

TEST_F(AusrundungTest, EachOptionNamesTheField) {
  RechenDialog& d = oeffnen();
  const std::vector<std::string> namen = {"Radius", "Tangente", "ω", "Bogen b", "ds"};
  for (size_t i = 0; i < namen.size(); ++i)
    EXPECT_EQ(d.control("ErgLabel", static_cast<int>(i)).captionText(), namen[i]);
  EXPECT_EQ(d.control("Ergebnis", 0).captionText(), "Ergebnis 1.Tangentenpunkt");
  EXPECT_EQ(d.control("Ergebnis", 1).captionText(), "Ergebnis 2.Tangentenpunkt");
  const std::pair<const char*, const char*> faelle[] = {{"OptionRadius", "&R="},
                                                        {"OptionSehne", "&S="},
                                                        {"OptionBogen", "&b="},
                                                        {"optionDS", "&ds="},
                                                        {"OptionTangente", "&T="}};
  for (const auto& [option, caption] : faelle) {
    d.control(option).click();
    EXPECT_EQ(d.control("Label", 0).captionText(), caption) << option;
    EXPECT_EQ(d.control(option).value(), 1);
  }
  EXPECT_EQ(d.control("OptionRadius").value(), 0) << "one option at a time";
  EXPECT_EQ(d.control("optionDS").captionText(), "&ds (Gegenstich)");
}

TEST_F(AusrundungTest, FromRadiusChordAndArc) {
  stumpf();
  struct Fall {
    const char* option;
    const char* wert;
    double r, t, b, t1a, t2a, t2b;
  };
  for (const Fall& f : {Fall{"OptionRadius", "60", 60, 20.000000014, 38.610, 79.999999986, 116.000000011, 12.000000008},
                        Fall{"OptionSehne", "40", 63.245553164, 21.081851069, 40.699, 78.918148931, 116.865480855,
                             12.649110642},
                        Fall{"OptionBogen", "40", 62.159955015, 20.719985019, 40.000, 79.280014981, 116.575988015,
                             12.431991011}}) {
    RechenDialog& d = rechnen(f.option, f.wert);
    EXPECT_NEAR(zahl(d, 0), f.r, 1e-6) << f.option;
    EXPECT_NEAR(zahl(d, 1), f.t, 1e-6) << f.option;
    EXPECT_NEAR(zahl(d, 3), f.b, 0.0005) << f.option;
    EXPECT_NEAR(d.Ergebnis(0).A, f.t1a, 1e-6) << f.option;
    EXPECT_NEAR(d.Ergebnis(0).B, 0, 1e-6) << f.option;
    EXPECT_NEAR(d.Ergebnis(1).A, f.t2a, 1e-6) << f.option;
    EXPECT_NEAR(d.Ergebnis(1).B, f.t2b, 1e-6) << f.option;
  }
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(AusrundungTest, TheDsTypedComesBackOtherwiseUnlessTheCornerIsSquare) {
  stumpf();
  RechenDialog& d = rechnen("optionDS", "3.245553203");
  EXPECT_NEAR(zahl(d, 0), 20.979585702, 1e-6);
  EXPECT_NEAR(zahl(d, 1), 6.993195239, 1e-6);
  EXPECT_EQ(erg(d, 4), "1.135") << "not the 3.246 typed";
  EXPECT_NEAR(d.Ergebnis(1).A, 105.594556191, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 4.195917143, 1e-6);

  neuHolen(d, 3, 100, 50);
  d.control("Berechnen").click();
  EXPECT_EQ(erg(d, 4), "3.246") << "unchanged field, but now the corner is square";
  d.control("Param", 0).setText("5");
  d.control("Berechnen").click();
  EXPECT_EQ(erg(d, 2), "100.000");
  EXPECT_EQ(erg(d, 4), "5.000");
  EXPECT_NEAR(zahl(d, 0), 12.071067812, 1e-6);
}

TEST_F(AusrundungTest, ASharpCorner) {
  u.punkt(1, 0, 0);
  u.punkt(2, 100, 0);
  u.punkt(3, 40, 80);
  RechenDialog& d = rechnen("OptionRadius", "25");
  EXPECT_EQ(erg(d, 1), "50.000");
  EXPECT_EQ(erg(d, 2), "59.033447");
  EXPECT_EQ(erg(d, 3), "55.357");
  EXPECT_EQ(erg(d, 4), "30.902");
  EXPECT_NEAR(d.Ergebnis(0).A, 49.999999974, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 69.999999985, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 40.000000021, 1e-6);
}

// Both sides too short is the rechnen_ausrundung macro's case; here only
// the second: P3 close to P2.
TEST_F(AusrundungTest, ATangentLongerThanTheSecondSideWarnsOnceAndStillGivesThePoints) {
  u.punkt(1, 0, 0);
  u.punkt(2, 100, 0);
  u.punkt(3, 108, 6);
  RechenDialog& d = rechnen("OptionTangente", "20");
  u.meldung(kWarnung2);
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "80.000");
}

TEST_F(AusrundungTest, ThreePointsOnALineAreRefusedInOrderOrDoubledBack) {
  u.punkt(1, 0, 0);
  u.punkt(2, 100, 0);
  u.punkt(3, 200, 0);
  RechenDialog& d = rechnen("OptionRadius", "60");
  u.meldung(kGerade, "Ausrundung");
  EXPECT_EQ(erg(d, 0), "");
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "");
  EXPECT_EQ(d.control("PktNr", 0).text(), "");

  neuHolen(d, 3, 50, 0);  // back toward P1
  d.control("Berechnen").click();
  u.meldung(kGerade);

  // P1 on P2 gives no angle either.
  neuHolen(d, 1, 100, 0);
  neuHolen(d, 3, 180, 60);
  d.control("Berechnen").click();
  u.meldung(kGerade);
}

TEST_F(AusrundungTest, BothTangentPointsAreStoredWithTheHeightsOfP1AndP2) {
  stumpf();
  RechenDialog& d = rechnen("OptionTangente", "20");
  d.control("Speichern", 0).click();
  d.control("PktNr", 1).setText("5");
  d.control("Speichern", 1).click();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_NEAR(u.zustand.Punkte[4].A, 80, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[4].B, 0, 1e-6);
  EXPECT_EQ(u.zustand.Punkte[4].C, 1.5);
  EXPECT_NEAR(u.zustand.Punkte[5].A, 116, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[5].B, 12, 1e-6);
  EXPECT_EQ(u.zustand.Punkte[5].C, 2.5);
  EXPECT_EQ(u.zustand.Punkte[1].A, 0) << "the input points are untouched";
}

// Gon is the rechnen_ausrundung macro's case: in degrees the interior
// angle and the directions turn with the unit, a length does not.
TEST_F(AusrundungTest, APolarTableInDegreesGetsPolarTangentPointsAndItsRecordsBack) {
  u.zustand.Polar = core::Wahr;
  u.zustand.WinkelFaktor = kGrad;
  const double ecke[3][2] = {{20, 30}, {100, 90}, {160, 40}};
  for (int i = 0; i < 3; ++i)
    u.punkt(i + 1, std::hypot(ecke[i][0], ecke[i][1]), std::atan2(ecke[i][1], ecke[i][0]) / kGrad);
  RechenDialog& d = rechnen("OptionRadius", "30");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("Erg", 1).captionText(), "23.72467") << "a length is not converted";
  EXPECT_EQ(d.control("Erg", 2).captionText(), "103.324531");
  EXPECT_NEAR(d.Ergebnis(0).A, 110.926319935, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 43.080303966, 1e-7);
  EXPECT_NEAR(d.Ergebnis(1).B, 32.325127731, 1e-7);
  EXPECT_NEAR(d.Eingabe(0).B, 56.309932467, 1e-7) << "the records are polar again";
  EXPECT_NEAR(d.Eingabe(2).B, 14.036243466, 1e-7);
}

}  // namespace
}  // namespace kolm::calc::testing

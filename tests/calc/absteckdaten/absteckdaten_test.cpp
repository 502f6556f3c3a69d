// Absteckdaten for one point: distance and direction from A to P in every
// system and unit; worked values from data/werte.py.
#include "absteckdaten_umgebung.h"

namespace kolm::calc::testing {
namespace {

// A (100, 200) as point 1, P (70, 260) as point 2.
RechenDialog& Gerechnet(AbsteckUmgebung& u) {
  u.punkt(1, 100, 200, 5);
  u.punkt(2, 70, 260, 9);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Berechnen").click();
  return d;
}

void System(AbsteckUmgebung& u, int system) {
  u.zustand.M31 = system % 2 ? core::Wahr : core::Falsch;
  u.zustand.Falschdrehend = system >= 2 ? core::Wahr : core::Falsch;
}

struct AbsteckdatenTest : ::testing::Test {
  AbsteckUmgebung u;
  RechenDialog& gerechnet() { return Gerechnet(u); }
};

TEST_F(AbsteckdatenTest, TheMenuAndItsButtonOpenItWithTheRunModeOff) {
  u.anwendung.main()->control("GerButton", 1).click();
  ASSERT_NE(u.forms.find("Absteckdaten"), nullptr);
  RechenDialog& d = u.oeffnen();
  EXPECT_EQ(d.caption(), "Absteckdaten");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Ausgangspunkt A");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Punkt P");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis: polare Absteckdaten");
  EXPECT_EQ(d.control("CheckMehrere").captionText(), "&mehrere Punkte");
  EXPECT_EQ(d.control("Label", 0).captionText(), "A&b Punkt P ");
  EXPECT_EQ(d.control("Label", 1).captionText(), "Punkte berechnen und ab \"Als Nr.:\" abspeichern.");
  EXPECT_EQ(d.control("LabelA").captionText(), "e =");
  EXPECT_EQ(d.control("LabelB").captionText(), "θ =");
  EXPECT_FALSE(d.control("Anz").enabled());
  EXPECT_FALSE(d.control("SpinAnz").enabled());
  EXPECT_FALSE(d.control("Label", 0).enabled());
  EXPECT_FALSE(d.control("Label", 1).enabled());
  d.control("CheckMehrere").click();
  EXPECT_TRUE(d.control("Anz").enabled());
  EXPECT_TRUE(d.control("SpinAnz").enabled());
  EXPECT_TRUE(d.control("Label", 0).enabled());
  EXPECT_TRUE(d.control("Label", 1).enabled());
  d.control("Skizze").click();
  ASSERT_FALSE(u.dienste.help.topics().empty());
  EXPECT_EQ(u.dienste.help.topics().back(), "Absteckdaten");
}

TEST_F(AbsteckdatenTest, TheSpinButtonCountsWithoutLimit) {
  RechenDialog& d = u.oeffnen();
  d.control("CheckMehrere").click();
  d.control("SpinAnz").raise(forms::Event::SpinUp);
  EXPECT_EQ(d.control("Anz").text(), "1") << "an empty field counts as 0";
  d.control("SpinAnz").raise(forms::Event::SpinDown);
  d.control("SpinAnz").raise(forms::Event::SpinDown);
  EXPECT_EQ(d.control("Anz").text(), "-1");
  d.control("Anz").setText("41,5");
  d.control("SpinAnz").raise(forms::Event::SpinUp);
  EXPECT_EQ(d.control("Anz").text(), "43") << "42.5 in the number pattern";
}

// e and the direction under each system and unit, as data/werte.py gives them.
TEST_F(AbsteckdatenTest, DirectionFollowsTheSystemAndTheUnit) {
  struct Fall {
    int system;
    double faktor;
    double richtung;
    const char* gezeigt;
  };
  const Fall faelle[] = {
      {0, kPi / 200, 129.516723513, "129.517"}, {0, kPi / 180, 116.565051162, "116.565"},
      {0, 1, 2.034443936, "2.034"},             {1, kPi / 200, 370.483276474, "370.483"},
      {1, kPi / 180, 333.434948826, "333.435"}, {1, 1, 5.819537699, "5.820"},
      {2, kPi / 200, 370.483276487, "370.483"}, {3, kPi / 180, 116.565051174, "116.565"},
      {3, 1, 2.034443936, "2.034"},
  };
  for (const Fall& f : faelle) {
    AbsteckUmgebung v;
    System(v, f.system);
    v.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = Gerechnet(v);
    SCOPED_TRACE("system " + std::to_string(f.system) + ", factor " + std::to_string(f.faktor));
    EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
    EXPECT_EQ(d.control("ErgB").captionText(), f.gezeigt);
    EXPECT_NEAR(d.Ergebnis().A, 67.082039325, 1e-8);
    EXPECT_NEAR(d.Ergebnis().B, f.richtung, 1e-6);
    EXPECT_EQ(d.control("LabelB").captionText(), "θ =");
  }
}

TEST_F(AbsteckdatenTest, TheNextNumberIsOfferedAndSpeichernStoresDistanceAndDirection) {
  RechenDialog& d = gerechnet();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("PktNr").text(), "3");
  EXPECT_EQ(d.activeControl(), &d.control("PktNr"));
  d.control("Speichern").click();
  EXPECT_NEAR(u.p(3).A, 67.082039325, 1e-8);
  EXPECT_NEAR(u.p(3).B, 129.516723513, 1e-6);
  EXPECT_EQ(u.p(3).C, 0) << "no height is computed";
}

TEST_F(AbsteckdatenTest, CoincidentPointsGiveZeroOrAQuarterCircle) {
  const double viertel[] = {0, 0, 100, 100};
  for (int system = 0; system < 4; ++system) {
    AbsteckUmgebung v;
    System(v, system);
    v.punkt(1, 100, 200);
    RechenDialog& d = v.oeffnen();
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("1");
    d.control("Berechnen").click();
    EXPECT_EQ(d.control("ErgA").captionText(), "0.000") << system;
    EXPECT_NEAR(d.Ergebnis().B, viertel[system], 1e-9) << system;
    EXPECT_TRUE(v.meldungen().empty());
  }
}

TEST_F(AbsteckdatenTest, APolarTableGivesTheSameValuesAndKeepsItsInputsPolar) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 100, 200);
  u.polarPunkt(2, 70, 260);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText("2");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("LabelA").captionText(), "e =");
  EXPECT_NEAR(d.Ergebnis().A, 67.082039325, 1e-7);
  EXPECT_NEAR(d.Ergebnis().B, 129.516723513, 1e-6) << "not turned into polar a second time";
  EXPECT_NEAR(d.Eingabe(0).A, u.p(1).A, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, u.p(2).B, 1e-7);
}

TEST_F(AbsteckdatenTest, AStationTypedByHandIsUsed) {
  u.punkt(2, 70, 260);
  RechenDialog& d = u.oeffnen();
  u.tippen("100", "200");
  d.control("GetPP1").click();
  d.control("PP2Nr").setText("2");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
  EXPECT_EQ(d.control("ErgB").captionText(), "129.517");
}

TEST_F(AbsteckdatenTest, ADistanceBeyondTheNumberRangeLeavesTheResultAlone) {
  RechenDialog& d = gerechnet();
  u.punkt(3, -1e200, 0);
  u.punkt(4, 1e200, 1);
  d.control("PP1Nr").setText("3");
  d.control("PP2Nr").setText("4");
  d.control("Berechnen").click();
  EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
  EXPECT_TRUE(u.meldungen().empty());
}

}  // namespace
}  // namespace kolm::calc::testing

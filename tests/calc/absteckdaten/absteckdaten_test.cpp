// Absteckdaten for one point: distance and direction from A to P in every
// system and unit; worked values from data/werte.py.
#include "absteckdaten_umgebung.h"

namespace kolm::calc::testing {
namespace {

// A (100, 200) as point 1, P (70, 260) as point 2, in system 0 .. 3.
RechenDialog& Gerechnet(AbsteckUmgebung& u, int system = 0, int p = 2) {
  u.zustand.M31 = system % 2 ? core::Wahr : core::Falsch;
  u.zustand.Falschdrehend = system >= 2 ? core::Wahr : core::Falsch;
  u.punkt(1, 100, 200, 5);
  u.punkt(2, 70, 260, 9);
  RechenDialog& d = u.oeffnen();
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText(std::to_string(p));
  d.control("Berechnen").click();
  return d;
}

// Captions, storing one point and a polar table are covered end to end by
// the rechnen_absteckdaten* macros.

TEST(Absteckdaten, TheRunModeSwitchesItsFieldsAndTheButtonOpensIt) {
  AbsteckUmgebung u;
  u.anwendung.main()->control("GerButton", 1).click();
  RechenDialog& d = u.oeffnen();
  for (bool an : {false, true}) {
    EXPECT_EQ(d.control("SpinAnz").enabled(), an);
    EXPECT_EQ(d.control("Label", 0).enabled(), an);
    EXPECT_EQ(d.control("Label", 1).enabled(), an);
    d.control("CheckMehrere").click();
  }
}

TEST(Absteckdaten, TheSpinButtonCountsWithoutLimit) {
  AbsteckUmgebung u;
  u.oeffnen().control("CheckMehrere").click();
  forms::Control& spin = u.oeffnen().control("SpinAnz");
  forms::Control& anz = u.oeffnen().control("Anz");
  spin.raise(forms::Event::SpinUp);
  EXPECT_EQ(anz.text(), "1") << "an empty field counts as 0";
  spin.raise(forms::Event::SpinDown);
  spin.raise(forms::Event::SpinDown);
  EXPECT_EQ(anz.text(), "-1");
  anz.setText("41,5");
  spin.raise(forms::Event::SpinUp);
  EXPECT_EQ(anz.text(), "43") << "42.5 in the number pattern";
}

TEST(Absteckdaten, TheDirectionFollowsTheSystemAndTheUnit) {
  struct Fall {
    int system;
    double faktor, richtung;
    const char* gezeigt;
  };
  for (const Fall& f : {Fall{0, kPi / 200, 129.516723513, "129.517"}, Fall{0, kPi / 180, 116.565051162, "116.565"},
                        Fall{0, 1, 2.034443936, "2.034"}, Fall{1, kPi / 200, 370.483276474, "370.483"},
                        Fall{1, kPi / 180, 333.434948826, "333.435"}, Fall{1, 1, 5.819537699, "5.820"},
                        Fall{2, kPi / 200, 370.483276487, "370.483"}, Fall{3, kPi / 180, 116.565051174, "116.565"}}) {
    AbsteckUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    RechenDialog& d = Gerechnet(u, f.system);
    SCOPED_TRACE(std::string(f.gezeigt));
    EXPECT_EQ(d.control("ErgA").captionText(), "67.082");
    EXPECT_EQ(d.control("ErgB").captionText(), f.gezeigt);
    EXPECT_NEAR(d.Ergebnis().B, f.richtung, 1e-6);
    EXPECT_EQ(d.control("LabelB").captionText(), "θ =");
  }
}

TEST(Absteckdaten, APointOnTheStationGivesZeroOrAQuarterCircle) {
  const double richtung[] = {0, 0, 100, 100};
  for (int system = 0; system < 4; ++system) {
    AbsteckUmgebung u;
    RechenDialog& d = Gerechnet(u, system, 1);
    EXPECT_EQ(d.control("ErgA").captionText(), "0.000") << system;
    EXPECT_NEAR(d.Ergebnis().B, richtung[system], 1e-9) << system;
  }
}

TEST(Absteckdaten, ADistanceBeyondTheNumberRangeLeavesTheLastResult) {
  AbsteckUmgebung u;
  RechenDialog& d = Gerechnet(u);
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

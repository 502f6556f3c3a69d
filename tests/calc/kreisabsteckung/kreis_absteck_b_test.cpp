// KreisAbsteckB: the point at arc length B from the arc's start around the
// centre; worked values from data/werte.py (the radius vector turned by a
// rotation matrix).
#include "kreisabsteckung_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct KreisAbsteckBTest : ::testing::Test {
  KreisAbsteckUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisAbsteckungB", "KreisAbsteckB"); }
  RechenDialog& rechnen(const std::string& b) {
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Param", 0).setText(b);
    d.control("Berechnen").click();
    return d;
  }
  // M (1000, 2000) as point 1, the arc's start (1030, 2040) as point 2: r = 50.
  void punkte() {
    u.punkt(1, 1000, 2000, 7);
    u.punkt(2, 1030, 2040, 8);
  }
};

TEST_F(KreisAbsteckBTest, TheMenuOpensItWithItsCaptions) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Kreisbogenabsteckung mit b");
  EXPECT_EQ(d.control("Punkt1").captionText(), "Kreis-Mittelpunkt");
  EXPECT_EQ(d.control("Punkt2").captionText(), "Bogenanfang");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&B=");
  EXPECT_EQ(d.control("LabelDrehsinn").captionText(), "B>0 rechtsdrehend    B<0 linksdrehend");
  EXPECT_EQ(d.control("Ergebnis").captionText(), "Ergebnis Punkt am Bogen");
  EXPECT_EQ(d.control("LabelA").captionText(), "&X =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&Y =");
}

TEST_F(KreisAbsteckBTest, APositiveArcTurnsClockwiseAndANegativeOneBack) {
  punkte();
  RechenDialog& d = rechnen("25");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("ErgA").captionText(), "1045.504");
  EXPECT_EQ(d.control("ErgB").captionText(), "2020.721");
  EXPECT_NEAR(d.Ergebnis().A, 1045.504498401, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 2020.720536317, 1e-6);
  EXPECT_EQ(d.Ergebnis().C, 0) << "no height is calculated";
  EXPECT_EQ(d.control("PktNr").text(), "3");

  d.control("Param", 0).setText("-25");
  d.control("Berechnen").click();
  EXPECT_TRUE(u.meldungen().empty()) << "only 0 is refused";
  EXPECT_EQ(d.control("ErgA").captionText(), "1007.150");
  EXPECT_EQ(d.control("ErgB").captionText(), "2049.486");

  // More than a quarter turn, with a comma as decimal point.
  d.control("Param", 0).setText("100,0");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis().A, 1023.887491977, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 1956.075203733, 1e-6);
}

TEST_F(KreisAbsteckBTest, AZeroArcOrACentreOnTheStartIsRefusedAndTheFieldsStay) {
  punkte();
  RechenDialog& d = rechnen("25");
  d.control("Param", 0).setText("0");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Ungültige Parameter!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Kreisbogenabsteckung mit b");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.control("ErgA").captionText(), "1045.504");

  d.control("Param", 0).setText("");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u) << "an empty field counts as 0";

  d.control("Param", 0).setText("25");
  d.control("PP2Nr").setText("1");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 3u);
  EXPECT_EQ(u.meldungen()[2].message.text, "Ungültige Parameter!");
}

TEST_F(KreisAbsteckBTest, StoresThePointOnTheArcUnderTheOfferedNumber) {
  punkte();
  RechenDialog& d = rechnen("25");
  d.control("Speichern").click();
  const core::Punkt& p = u.zustand.Punkte[3];
  EXPECT_EQ(p.Nummer, 3);
  EXPECT_NEAR(p.A, 1045.504498401, 1e-6);
  EXPECT_NEAR(p.B, 2020.720536317, 1e-6);
  EXPECT_EQ(p.C, 0);
  EXPECT_NEAR(std::hypot(p.A - 1000, p.B - 2000), 50, 1e-9) << "on the circle";
}

TEST_F(KreisAbsteckBTest, UnderM31OnlyTheCaptionsChange) {
  u.zustand.M31 = core::Wahr;
  punkte();
  RechenDialog& d = rechnen("25");
  EXPECT_EQ(d.control("LabelA").captionText(), "&Y =");
  EXPECT_EQ(d.control("LabelB").captionText(), "&X =");
  EXPECT_NEAR(d.Ergebnis().A, 1045.504498401, 1e-6);
  EXPECT_NEAR(d.Ergebnis().B, 2020.720536317, 1e-6);
}

TEST_F(KreisAbsteckBTest, APolarTableInGonAndInDegreesGetsPolarResultsAndItsRecordsBack) {
  struct Fall {
    double faktor, phiM, phiBA, phiErg;
  };
  for (const Fall& f : {Fall{KreisAbsteckUmgebung::kGon, 70.483276461, 70.234111482, 69.603688195},
                        Fall{KreisAbsteckUmgebung::kGrad, 63.434948815, 63.210700333, 62.643319376}}) {
    KreisAbsteckUmgebung v;
    v.polarPunkt(1, 1000, 2000, f.faktor);
    v.polarPunkt(2, 1030, 2040, f.faktor);
    RechenDialog& d = v.oeffnen("MnuKreisAbsteckungB", "KreisAbsteckB");
    d.control("PP1Nr").setText("1");
    d.control("PP2Nr").setText("2");
    d.control("Param", 0).setText("25");
    d.control("Berechnen").click();
    EXPECT_TRUE(v.meldungen().empty());
    EXPECT_EQ(d.control("LabelA").captionText(), "&e =");
    EXPECT_EQ(d.control("LabelB").captionText(), "&Phi =");
    EXPECT_NEAR(d.Ergebnis().A, 2275.168376642, 1e-6);
    EXPECT_NEAR(d.Ergebnis().B, f.phiErg, 1e-7);
    // The inputs are in the table's form again.
    EXPECT_NEAR(d.Eingabe(0).A, 2236.0679775, 1e-7);
    EXPECT_NEAR(d.Eingabe(0).B, f.phiM, 1e-7);
    EXPECT_NEAR(d.Eingabe(1).B, f.phiBA, 1e-7);
    d.control("PktNr").setText("5");
    d.control("Speichern").click();
    EXPECT_NEAR(v.zustand.Punkte[5].A, 2275.168376642, 1e-6);
    EXPECT_NEAR(v.zustand.Punkte[5].B, f.phiErg, 1e-7);
  }
}

}  // namespace
}  // namespace kolm::calc::testing

// KreisTangenten: the touching points from a point outside a circle; worked
// values from data/werte.py.
#include "kreise_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct KreisTangentenTest : ::testing::Test {
  KreiseUmgebung u;
  RechenDialog& oeffnen() { return u.oeffnen("MnuKreisTangenten", "KreisTangenten"); }
  RechenDialog& rechnen(const std::string& m, const std::string& p, const std::string& r) {
    RechenDialog& d = oeffnen();
    d.control("PP1Nr").setText(m);
    d.control("PP2Nr").setText(p);
    d.control("Param", 0).setText(r);
    d.control("Berechnen").click();
    return d;
  }
  // M (10, 20) r 5 as point 1, P (40, 60) as point 2.
  RechenDialog& gerechnet() {
    u.punkt(1, 10, 20, 3);
    u.punkt(2, 40, 60, 4);
    return rechnen("1", "2", "5");
  }
};

TEST_F(KreisTangentenTest, TheMenuOpensItWithItsCaptions) {
  RechenDialog& d = oeffnen();
  EXPECT_EQ(d.caption(), "Tangenten an Kreis");
  EXPECT_EQ(d.control("Punkt1").captionText(), "&M Nr.:");
  EXPECT_EQ(d.control("Punkt2").captionText(), "&P Nr.:");
  EXPECT_EQ(d.control("Label", 0).captionText(), "&Radius");
  EXPECT_EQ(d.control("FrameErgebnis").captionText(), "Tangentenlänge");
  EXPECT_EQ(d.control("Ergebnis", 0).captionText(), "Ergebnis 1.Punkt");
  EXPECT_EQ(d.control("Ergebnis", 1).captionText(), "Ergebnis 2.Punkt");
  EXPECT_EQ(d.control("Speichern", 1).captionText(), "S&peichern");
}

TEST_F(KreisTangentenTest, GivesTheTangentLengthAndThePointLeftOfPToMFirst) {
  RechenDialog& d = gerechnet();
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(d.control("Erg", 0).captionText(), "49.749372");
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "14.280");
  EXPECT_EQ(d.control("ErgB", 0).captionText(), "17.415");
  EXPECT_NEAR(d.Ergebnis(0).A, 14.279949748, 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, 17.415037689, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).A, 6.320050252, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 23.384962311, 1e-6);
  EXPECT_EQ(d.Ergebnis(1).C, 0) << "heights are not taken over";
  EXPECT_EQ(d.control("PktNr", 0).text(), "3");
  EXPECT_EQ(d.control("PktNr", 1).text(), "3");
}

TEST_F(KreisTangentenTest, APointTypedByHandIsUsed) {
  u.punkt(1, 10, 20);
  RechenDialog& d = oeffnen();
  d.control("PP1Nr").setText("1");
  u.host.onModal([](forms::Form& f) {
    f.control("TextA").setText("40");
    f.control("TextB").setText("60");
    f.control("OK").click();
  });
  d.control("GetPP2").click();
  d.control("Param", 0).setText("5");
  d.control("Berechnen").click();
  EXPECT_NEAR(d.Ergebnis(0).A, 14.279949748, 1e-6);
  EXPECT_NEAR(d.Ergebnis(1).B, 23.384962311, 1e-6);
}

TEST_F(KreisTangentenTest, StoresUnderTheOfferedNumberAndAsksForTheUsedOne) {
  RechenDialog& d = gerechnet();
  d.control("Speichern", 1).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 6.320050252, 1e-6);
  EXPECT_TRUE(u.meldungen().empty());
  u.dienste.messages.queue(forms::Answer::No);
  d.control("Speichern", 0).click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_NEAR(u.zustand.Punkte[3].A, 6.320050252, 1e-6);
  u.dienste.messages.queue(forms::Answer::Yes);
  d.control("Speichern", 0).click();
  EXPECT_NEAR(u.zustand.Punkte[3].A, 14.279949748, 1e-6);
  EXPECT_NEAR(u.zustand.Punkte[3].B, 17.415037689, 1e-6);
}

TEST_F(KreisTangentenTest, UnderM31OnlyTheCaptionsChange) {
  u.zustand.M31 = core::Wahr;
  RechenDialog& d = gerechnet();
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "Y1 =");
  EXPECT_EQ(d.control("LabelB", 1).captionText(), "X2 =");
  EXPECT_NEAR(d.Ergebnis(0).A, 14.279949748, 1e-6);
}

TEST_F(KreisTangentenTest, APolarTableGetsPolarResults) {
  u.zustand.Polar = core::Wahr;
  u.polarPunkt(1, 10, 20);
  u.polarPunkt(2, 40, 60);
  RechenDialog& d = rechnen("1", "2", "5");
  EXPECT_EQ(d.control("LabelA", 0).captionText(), "e1 =");
  EXPECT_EQ(d.control("LabelB", 0).captionText(), "Phi1 =");
  EXPECT_NEAR(d.Ergebnis(0).A, std::hypot(14.279949748, 17.415037689), 1e-6);
  EXPECT_NEAR(d.Ergebnis(0).B, std::atan2(17.415037689, 14.279949748) * 200 / kPi, 1e-6);
  EXPECT_NEAR(KreiseUmgebung::zahl(d.control("Erg", 0)), 49.749371855, 1e-6) << "a length is not converted";
  EXPECT_NEAR(d.Eingabe(1).A, u.zustand.Punkte[2].A, 1e-9);
  EXPECT_NEAR(d.Eingabe(1).B, u.zustand.Punkte[2].B, 1e-7);
}

TEST_F(KreisTangentenTest, APointOnOrInsideTheCircleHasNoTangentsAndClearsTheRecords) {
  u.punkt(1, 10, 20);
  u.punkt(2, 13, 24);  // at distance 5: on the circle
  u.punkt(3, 11, 21);
  RechenDialog& d = rechnen("1", "2", "5");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Keine Tangenten vorhanden!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Tangenten an Kreis");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(d.Ergebnis(0).A, 0);
  EXPECT_EQ(d.Ergebnis(0).B, 0);
  EXPECT_EQ(d.Ergebnis(1).A, 0);
  EXPECT_EQ(d.Ergebnis(1).B, 0);
  EXPECT_EQ(d.control("ErgA", 0).captionText(), "");
  d.control("PP2Nr").setText("3");
  d.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, "Keine Tangenten vorhanden!");
}

}  // namespace
}  // namespace kolm::calc::testing

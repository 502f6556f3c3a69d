// FormEiWendelinie from its two menu entries; worked values from
// data/werte.py, which also checks them against the integrated clothoid.
#include <variant>
#include <vector>

#include "calc/eilinie/ei_wendelinie.h"
#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

const char* const kEiFehler =
    "Bei der Berechnung zur Eilinie sind Fehler aufgetreten. Geben Sie bitte vernünftige Parameter an und "
    "versuchen Sie es erneut!";
const char* const kWendeFehler =
    "Bei der Berechnung zur Wendelinie sind Fehler aufgetreten. Geben Sie bitte vernünftige Parameter an und "
    "versuchen Sie es erneut!";

struct EiWendelinieTest : ::testing::Test {
  MenueUmgebung u;
  EiWendelinieForm& ei() { return static_cast<EiWendelinieForm&>(u.oeffnen("MnuKreisEilinie", "FormEiWendelinie")); }
  EiWendelinieForm& wende() {
    return static_cast<EiWendelinieForm&>(u.oeffnen("MnuKreisWendelinie", "FormEiWendelinie"));
  }
  static void rechnen(RechenDialog& d, const char* r1, const char* r2, const char* abstand) {
    d.control("Param", 0).setText(r1);
    d.control("Param", 1).setText(r2);
    d.control("Param", 2).setText(abstand);
    d.control("Berechnen").click();
  }
  static std::vector<std::string> ergebnis(const RechenDialog& d) {
    std::vector<std::string> e;
    for (int i = 0; i < 4; ++i) e.push_back(d.control("Erg", i).captionText());
    return e;
  }
  using Texte = std::vector<std::string>;
};

TEST_F(EiWendelinieTest, TheEggLineEntryOpensTheEggLine) {
  EiWendelinieForm& d = ei();
  EXPECT_EQ(d.caption(), "Eilinie");
  EXPECT_EQ(d.control("F").captionText(), "1");
  EXPECT_FALSE(d.control("F").visible());
  EXPECT_EQ(d.control("Label", 0).captionText(), "R&1=");
  EXPECT_EQ(d.control("Label", 1).captionText(), "R&2=");
  EXPECT_EQ(d.control("Label", 2).captionText(), "&D=");
  EXPECT_EQ(d.control("ErgLabel", 0).captionText(), "Klotoidenparameter");
  EXPECT_EQ(d.control("ErgLabel", 1).captionText(), "L1");
  EXPECT_EQ(d.control("ErgLabel", 2).captionText(), "L2");
  EXPECT_EQ(d.control("ErgLabel", 3).captionText(), "L1 - L2");
  EXPECT_TRUE(d.control("Image1").visible());
  EXPECT_FALSE(d.control("Image2").visible());
  EXPECT_EQ(d.HilfeNummer(), 4020);
  d.control("Skizze").click();
  EXPECT_EQ(u.dienste.help.topics(), std::vector<std::string>{"Eilinie"});
}

TEST_F(EiWendelinieTest, TheInflectionLineEntryOpensTheInflectionLine) {
  EiWendelinieForm& d = wende();
  EXPECT_EQ(d.caption(), "Wendelinie");
  EXPECT_EQ(d.control("F").captionText(), "-1");
  EXPECT_EQ(d.control("ErgLabel", 3).captionText(), "L1 + L2");
  EXPECT_FALSE(d.control("Image1").visible());
  EXPECT_TRUE(d.control("Image2").visible());
  EXPECT_EQ(d.HilfeNummer(), 4030);
  d.control("Skizze").click();
  EXPECT_EQ(u.dienste.help.topics(), std::vector<std::string>{"Wendelinie"});
}

TEST_F(EiWendelinieTest, TheEntriesAndTheirButtonsAreOn) {
  EXPECT_TRUE(u.anwendung.main()->control("MnuKreisEilinie").enabled());
  EXPECT_TRUE(u.anwendung.main()->control("MnuKreisWendelinie").enabled());
}

TEST_F(EiWendelinieTest, EggLineInAnyAngleUnit) {
  // Nothing here is an angle: degrees and gon give the same lengths.
  for (double faktor : {kPi / 200, kPi / 180}) {
    u.zustand.WinkelFaktor = faktor;
    EiWendelinieForm& d = ei();
    rechnen(d, "100", "300", "2");
    EXPECT_EQ(ergebnis(d), (Texte{"112.928687", "127.529", "42.510", "85.019"})) << faktor;
    EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 0)), 112.928686977634, 1e-6);
  }
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(EiWendelinieTest, TheLargerRadiusMayComeFirstAndCommasAreDecimalPoints) {
  EiWendelinieForm& d = ei();
  rechnen(d, "600", "250", "0,5");
  EXPECT_EQ(ergebnis(d), (Texte{"175.33141", "122.964", "51.235", "71.729"}));
}

TEST_F(EiWendelinieTest, InflectionLine) {
  EiWendelinieForm& d = wende();
  rechnen(d, "100", "300", "2");
  EXPECT_EQ(ergebnis(d), (Texte{"67.142644", "45.081", "15.027", "60.108"}));
  rechnen(d, "150", "90", "3");
  EXPECT_EQ(ergebnis(d), (Texte{"59.932477", "39.910", "23.946", "63.856"}));
  EXPECT_TRUE(u.meldungen().empty());
}

TEST_F(EiWendelinieTest, ReopeningFromTheOtherEntrySwitchesTheSameDialog) {
  EiWendelinieForm& d = ei();
  rechnen(d, "100", "300", "2");
  EiWendelinieForm& w = wende();
  EXPECT_EQ(&w, &d);
  EXPECT_EQ(w.caption(), "Wendelinie");
  EXPECT_TRUE(w.control("Image2").visible());
  EXPECT_EQ(w.control("Param", 0).text(), "100") << "the fields stay";
  w.control("Berechnen").click();
  EXPECT_EQ(ergebnis(w), (Texte{"67.142644", "45.081", "15.027", "60.108"}));
  EXPECT_EQ(&ei(), &d);
  EXPECT_EQ(d.caption(), "Eilinie");
  EXPECT_FALSE(d.control("Image2").visible());
  d.control("Berechnen").click();
  EXPECT_EQ(ergebnis(d), (Texte{"112.928687", "127.529", "42.510", "85.019"}));
  d.control("Skizze").click();
  EXPECT_EQ(u.dienste.help.topics().back(), "Eilinie");
}

TEST_F(EiWendelinieTest, AMissingOrNegativeRadiusGivesTheMessageAndKeepsTheResults) {
  EiWendelinieForm& d = ei();
  rechnen(d, "100", "300", "2");
  rechnen(d, "", "300", "2");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kEiFehler);
  EXPECT_EQ(u.meldungen()[0].message.title, "Eilinie berechnen");
  EXPECT_EQ(u.meldungen()[0].message.icon, forms::Icon::Exclamation);
  EXPECT_EQ(ergebnis(d), (Texte{"112.928687", "127.529", "42.510", "85.019"}));
  rechnen(d, "100", "-300", "2");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, kEiFehler);
  rechnen(d, "Radius", "300", "2");
  ASSERT_EQ(u.meldungen().size(), 3u);
}

TEST_F(EiWendelinieTest, EqualRadiiHaveNeitherLine) {
  EiWendelinieForm& d = ei();
  rechnen(d, "200", "200", "2");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, kEiFehler);
  EXPECT_EQ(ergebnis(d), (Texte{"", "", "", ""}));
  EiWendelinieForm& w = wende();
  w.control("Berechnen").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, kWendeFehler);
  EXPECT_EQ(u.meldungen()[1].message.title, "Wendelinie berechnen");
}

TEST_F(EiWendelinieTest, AGapExactlyAtTheVanishingDenominatorIsRefused) {
  // R1 = 100, R2 = 300: D = 100 makes p exactly 0 for the egg line, D = 400
  // for the inflection line; a little more is a result.
  EiWendelinieForm& d = ei();
  rechnen(d, "100", "300", "100");
  EXPECT_EQ(u.meldungen().size(), 1u);
  rechnen(d, "100", "300", "100.5");
  EXPECT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(d.control("Erg", 0).captionText(), "343.437746");
  rechnen(wende(), "100", "300", "400");
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1].message.text, kWendeFehler);
}

TEST_F(EiWendelinieTest, NoGapGivesZeroWithoutMessage) {
  EiWendelinieForm& d = ei();
  rechnen(d, "100", "300", "");
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(ergebnis(d), (Texte{"0.000", "0.000", "0.000", "0.000"}));
}

TEST_F(EiWendelinieTest, ThePicturesShowTheTwoCircles) {
  EiWendelinieForm& d = ei();
  auto kreise = [&](const char* bild) {
    std::vector<forms::DisplayList::Circle> k;
    for (const auto& c : d.control(bild).picture().commands())
      if (const auto* kreis = std::get_if<forms::DisplayList::Circle>(&c)) k.push_back(*kreis);
    return k;
  };
  // Egg line: the smaller circle inside the larger one, just short of it.
  const auto ei = kreise("Image1");
  ASSERT_EQ(ei.size(), 2u);
  const double abstandEi = std::hypot(ei[0].cx - ei[1].cx, ei[0].cy - ei[1].cy);
  EXPECT_NEAR(ei[1].radius / ei[0].radius, 78.0 / 28.0, 1e-9);
  EXPECT_GT(ei[1].radius - ei[0].radius - abstandEi, 0);
  // Inflection line: the circles outside each other.
  const auto wende = kreise("Image2");
  ASSERT_EQ(wende.size(), 2u);
  const double abstandWende = std::hypot(wende[0].cx - wende[1].cx, wende[0].cy - wende[1].cy);
  EXPECT_GT(abstandWende - wende[0].radius - wende[1].radius, 0);
}

}  // namespace
}  // namespace kolm::calc::testing

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

// Captions, pictures shown, the worked values of both lines in gon and
// the messages are covered end to end by the rechnen_eilinie and
// rechnen_wendelinie macros.

TEST_F(EiWendelinieTest, NothingIsAnAngleSoDegreesGiveTheSameLengths) {
  u.zustand.WinkelFaktor = kPi / 180;
  EiWendelinieForm& d = ei();
  rechnen(d, "100", "300", "2");
  EXPECT_EQ(ergebnis(d), (Texte{"112.928687", "127.529", "42.510", "85.019"}));
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

TEST_F(EiWendelinieTest, UnreasonableParametersGiveTheLinesMessageAndKeepTheResults) {
  // R1 = 100, R2 = 300: D = 100 makes p exactly 0 for the egg line, D = 400
  // for the inflection line; equal radii have neither line.
  struct Fall {
    bool wendelinie;
    const char *r1, *r2, *abstand;
  };
  for (const Fall& f : {Fall{false, "", "300", "2"}, Fall{false, "100", "-300", "2"}, Fall{false, "Radius", "300", "2"},
                        Fall{false, "100", "300", "100"}, Fall{true, "100", "300", "400"},
                        Fall{false, "200", "200", "2"}, Fall{true, "200", "200", "2"}}) {
    SCOPED_TRACE(std::string(f.r1) + " " + f.r2 + " " + f.abstand);
    MenueUmgebung v;
    EiWendelinieForm& d = static_cast<EiWendelinieForm&>(v.oeffnen(
        f.wendelinie ? "MnuKreisWendelinie" : "MnuKreisEilinie", "FormEiWendelinie"));
    rechnen(d, "150", "90", "3");
    const Texte vorher = ergebnis(d);
    rechnen(d, f.r1, f.r2, f.abstand);
    v.meldung(f.wendelinie ? kWendeFehler : kEiFehler, f.wendelinie ? "Wendelinie berechnen" : "Eilinie berechnen");
    EXPECT_EQ(ergebnis(d), vorher);
  }
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

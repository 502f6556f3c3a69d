// How points are shown and how letter keys act in number fields.
#include <gtest/gtest.h>

#include "core/settings/einstellungen.h"
#include "points/koordinaten.h"
#include "points/variablen.h"

namespace kolm::points {
namespace {

core::Punkt Punkt(int nr, double a, double b, double c, int kurz = 0) {
  core::Punkt p;
  p.Nummer = static_cast<core::Integer>(nr);
  p.A = a;
  p.B = b;
  p.C = c;
  p.KurzBez = static_cast<core::Integer>(kurz);
  return p;
}

TEST(Beschriftung, FollowsPolarBeforeTheSystem) {
  core::Zustand z;
  EXPECT_EQ(KoordinatenBeschriftung(z).a, "X =");
  EXPECT_EQ(KoordinatenBeschriftung(z, true).b, "&Y =");
  z.M31 = core::Wahr;
  EXPECT_EQ(KoordinatenBeschriftung(z).a, "Y =");
  EXPECT_EQ(KoordinatenBeschriftung(z).c, "H =");
  z.Polar = core::Wahr;
  EXPECT_EQ(KoordinatenBeschriftung(z, true).a, "&e =");
  EXPECT_EQ(KoordinatenBeschriftung(z).b, "Phi =");
  EXPECT_EQ(AndereBeschriftung(z).a, "Y =") << "the other form of a polar M31 table";
}

TEST(PunktText, ShowsTheLinesOfTheTable) {
  core::Zustand z;
  const core::Punkt p = Punkt(12, 1.5, -2, 240.12345);
  EXPECT_EQ(PunktText(z, p), "X = 1.500\rY = -2.000");
  z.Dritte = core::Wahr;
  z.M31 = core::Wahr;
  EXPECT_EQ(PunktText(z, p), "Y = 1.500\rX = -2.000\rH = 240.12345");
  z.Polar = core::Wahr;
  EXPECT_EQ(PunktText(z, p), "e = 1.500\rPhi = -2.000\rH = 240.12345");
}

TEST(PunktZeile, IsTheOneLineFormOfListsAndDrags) {
  core::Zustand z;
  z.Kurzbezeichnungen[0].Text = "Pkt.";
  z.Kurzbezeichnungen[3].Text = "Grenzstein";
  EXPECT_EQ(PunktZeile(z, Punkt(7, 10, 20, 0)), "Pkt. 7  X= 10.000  Y= 20.000");
  z.Dritte = core::Wahr;
  z.Polar = core::Wahr;
  EXPECT_EQ(PunktZeile(z, Punkt(1234, 5, 100, 3, 3)), "Grenzstein 1234  e= 5.000  Phi= 100.000   Z= 3.000");
  EXPECT_EQ(PunktZeile(z, Punkt(8, 0, 0, 0, 150)), " 8  e= 0.000  Phi= 0.000   Z= 0.000")
      << "a designation index of 100 or more has no text";
}

TEST(VariablenTaste, CapitalStoresSmallInsertsOthersPass) {
  core::Zustand z;
  std::string text = "12,5";
  int key = 'A';
  EXPECT_EQ(VariablenTaste(z, key, text), VariablenWirkung::Gespeichert);
  EXPECT_EQ(key, 0) << "the key is swallowed";
  EXPECT_EQ(text, "12,5") << "the field keeps its text";
  EXPECT_EQ(z.Variablen[0], 12.5);
  text = "99";
  key = 'a';
  EXPECT_EQ(VariablenTaste(z, key, text), VariablenWirkung::Eingesetzt);
  EXPECT_EQ(text, "12.500") << "a small letter replaces even a number";
  key = '7';
  EXPECT_EQ(VariablenTaste(z, key, text), VariablenWirkung::Keine);
  EXPECT_EQ(key, '7');
  key = U'ä';
  EXPECT_EQ(VariablenTaste(z, key, text), VariablenWirkung::Keine);
  text = "";
  key = 'Z';
  VariablenTaste(z, key, text);
  EXPECT_EQ(z.Variablen[25], 0) << "an empty field stores 0";
}

TEST(PolarWrappers, UseTheActiveTablesSettings) {
  core::Zustand z;
  z.M31 = core::Wahr;
  double a = 0, b = 10;
  RechtwinkligZuPolar(z, a, b);
  EXPECT_EQ(a, 10);
  EXPECT_NEAR(b, 0, 1e-12);
  PolarZuRechtwinklig(z, a, b);
  EXPECT_NEAR(a, 0, 1e-9);
  EXPECT_NEAR(b, 10, 1e-9);
}

}  // namespace
}  // namespace kolm::points

#include "points/zellen_eingabe.h"

namespace kolm::points {
namespace {

TEST(ZellenEingabe, BuildsANumberKeyByKey) {
  std::string t;
  for (char c : std::string("12,5.3"))
    ZellenTaste(t, c);
  EXPECT_EQ(t, "12,53") << "a second decimal sign is not taken";
  EXPECT_TRUE(ZellenTaste(t, '-'));
  EXPECT_EQ(t, "-12,53");
  ZellenTaste(t, '-');
  EXPECT_EQ(t, "12,53") << "minus toggles";
  EXPECT_FALSE(ZellenTaste(t, 'x'));
  EXPECT_FALSE(ZellenTaste(t, ' '));
  ZellenTaste(t, 8);
  EXPECT_EQ(t, "12,5");
  std::string leer;
  EXPECT_FALSE(ZellenTaste(leer, 8));
}

TEST(ZellenEingabe, AnEditedCellShowsWholeNumbersWithoutDecimals) {
  EXPECT_EQ(ZellenBearbeitungsText(240), "240");
  EXPECT_EQ(ZellenBearbeitungsText(0), "") << "a whole 0 shows empty";
  EXPECT_EQ(ZellenBearbeitungsText(-12.125), "-12.125");
  EXPECT_EQ(ZellenBearbeitungsText(1.23456789), "1.234568");
}

}  // namespace
}  // namespace kolm::points

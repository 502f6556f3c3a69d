// Polar to rectangular and back: the whole table, or the selected rows of
// the open point grid.
#include <gtest/gtest.h>

#include "points/koordinaten.h"
#include "points/tabelle/umwandlung.h"
#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

TEST(PunkteUmwandeln, TheWholeTableTurnsPolarAndMainsBoxFollows) {
  Tabelle t;
  t.zustand.AktiveTabelle = 0;
  t.zustand.Tabellen[0].TablName = "Profil";
  t.punkt(1, 0, 10);
  t.punkt(2, 10, 0, 4.5);
  t.main->control("MnuWerKoorRzuP").click();
  // Mathematical system, Neugrad: the Y axis lies at 100 gon.
  EXPECT_NEAR(t.p(1).A, 10, 1e-9);
  EXPECT_NEAR(t.p(1).B, 100, 1e-6);
  EXPECT_NEAR(t.p(2).A, 10, 1e-9);
  EXPECT_NEAR(t.p(2).B, 0, 1e-9);
  EXPECT_DOUBLE_EQ(t.p(2).C, 4.5) << "the third value is no part of it";
  EXPECT_TRUE(t.zustand.PunktLeer(3));
  EXPECT_EQ(t.main->control("CheckPolar").value(), 1);
  EXPECT_TRUE(t.zustand.Polar);
  EXPECT_TRUE(t.zustand.Tabellen[0].Polar) << "the flag of the active table";
  EXPECT_TRUE(t.zustand.TabelleGeaendert);

  t.main->control("MnuWerKoorPzuR").click();
  EXPECT_NEAR(t.p(1).A, 0, 1e-6);
  EXPECT_NEAR(t.p(1).B, 10, 1e-9);
  EXPECT_EQ(t.main->control("CheckPolar").value(), 0);
  EXPECT_FALSE(t.zustand.Polar);
}

TEST(PunkteUmwandeln, WithTheGridOpenOnlyTheSelectedRowsChangeAndTheFlagStays) {
  Tabelle t;
  t.punkt(1, 0, 10);
  t.punkt(2, 0, 20);
  t.punkt(3, 0, 30);
  t.oeffnen();
  t.grid().setGridSelection(3, 2, 4, 3);  // points 2 and 3
  t.main->control("MnuWerKoorRzuP").click();
  EXPECT_DOUBLE_EQ(t.p(1).A, 0);
  EXPECT_NEAR(t.p(2).A, 20, 1e-9);
  EXPECT_NEAR(t.p(3).B, 100, 1e-6);
  EXPECT_EQ(t.main->control("CheckPolar").value(), 0);
  EXPECT_FALSE(t.zustand.Polar);
  EXPECT_EQ(t.zelle(4, 2), "30.000") << "the grid shows the new values";
  EXPECT_EQ(t.zelle(4, 3), "100.000");
  EXPECT_EQ(t.zelle(2, 3), "10.000");

  // Every row selected is the whole table again.
  t.grid().setGridSelection(1, 1, t.grid().rows() - 1, 3);
  t.main->control("MnuWerKoorRzuP").click();
  EXPECT_EQ(t.main->control("CheckPolar").value(), 1);
  EXPECT_NEAR(t.p(1).A, 10, 1e-9);
}

TEST(PunkteUmwandeln, M31AndTheOtherSenseOfRotationTakeTheirOwnDirections) {
  Tabelle t;
  t.main->control("KoordinatenSystem").setListIndex(1);  // M31 rechts
  t.punkt(1, 0, 10);
  t.main->control("MnuWerKoorRzuP").click();
  EXPECT_NEAR(t.p(1).B, 0, 1e-9) << "M31 counts from the second coordinate";
  t.main->control("MnuWerKoorPzuR").click();
  EXPECT_NEAR(t.p(1).A, 0, 1e-6);
  EXPECT_NEAR(t.p(1).B, 10, 1e-6);
}

TEST(PunkteUmwandeln, ARangeBeyondTheTableIsCut) {
  core::Zustand z;
  z.Punkte[999].A = 3;
  z.Punkte[999].B = 4;
  PunkteUmwandeln(z, Umwandlung::RechtwinkligZuPolar, {990, 5000});
  EXPECT_NEAR(z.Punkte[999].A, 5, 1e-12);
  PunkteUmwandeln(z, Umwandlung::PolarZuRechtwinklig, {-5, 3});
  EXPECT_TRUE(z.PunktLeer(0));
}

}  // namespace
}  // namespace kolm::points::test

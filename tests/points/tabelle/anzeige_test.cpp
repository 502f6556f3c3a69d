// What the point grid shows: its rows and columns, captions by the
// coordinate flags, the texts of a point, and repainting one row or all.
#include <gtest/gtest.h>

#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

TEST(PunkteTabelleAnzeige, EverySlotHasARowBehindTheHeaderUpToAnzahlPunkte) {
  Tabelle t;
  t.zustand.PunkteDimensionieren(1500);
  t.punkt(1500, 7, 8);
  forms::Form& f = t.oeffnen();
  EXPECT_EQ(f.caption(), "Punkte-Tabelle");
  forms::Control& g = t.grid();
  EXPECT_EQ(g.rows(), 1502);
  EXPECT_EQ(g.gridData().fixedRows, 1);
  EXPECT_EQ(g.gridData().fixedCols, 1);
  EXPECT_EQ(t.zelle(1, 0), "0");
  EXPECT_EQ(t.zelle(1501, 0), "1500") << "the row of slot AnzahlPunkte";
  EXPECT_EQ(t.zelle(1501, 2), "7.000");
  EXPECT_EQ(f.control("Cancel").captionText(), "Schließen");
}

TEST(PunkteTabelleAnzeige, CaptionsFollowTheCoordinateFlagsAndTheThirdColumnExistsOnlyWithDritte) {
  Tabelle t;
  t.oeffnen();
  EXPECT_EQ(t.grid().cols(), 4);
  EXPECT_EQ(t.zelle(0, 0), "Punkt Nr.");
  EXPECT_EQ(t.zelle(0, 1), "Bezeichnung");
  EXPECT_EQ(t.zelle(0, 2), "X =");
  EXPECT_EQ(t.zelle(0, 3), "Y =");

  // The strip of Main changes the flags and the open grid follows.
  t.main->control("KoordinatenSystem").setListIndex(1);
  t.main->control("Check3D").setValue(1);
  ASSERT_EQ(t.grid().cols(), 5);
  EXPECT_EQ(t.zelle(0, 2), "Y =");
  EXPECT_EQ(t.zelle(0, 3), "X =");
  EXPECT_EQ(t.zelle(0, 4), "H =");

  t.main->control("KoordinatenSystem").setListIndex(0);
  t.main->control("CheckPolar").setValue(1);
  EXPECT_EQ(t.zelle(0, 2), "e =");
  EXPECT_EQ(t.zelle(0, 3), "Phi =");
  EXPECT_EQ(t.zelle(0, 4), "Z =");

  t.main->control("Check3D").setValue(0);
  EXPECT_EQ(t.grid().cols(), 4);
}

TEST(PunkteTabelleAnzeige, APointShowsNumberDesignationAndValuesAnEmptyOneBlanks) {
  Tabelle t;
  t.zustand.Dritte = core::Wahr;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.zustand.Kurzbezeichnungen[7].Text = "Grenzstein";
  t.zustand.Einstellungen.NummernFormat = "0000";
  t.punkt(12, 5432100.1234567, -12.5, 310.25, 7);
  t.punkt(13, 0, 0, 0.001);  // only a height: still a point
  t.oeffnen();
  EXPECT_EQ(t.zelle(13, 0), "0012");
  EXPECT_EQ(t.zelle(13, 1), "Grenzstein");
  EXPECT_EQ(t.zelle(13, 2), "5432100.123457") << "StandardFormat shows at most six decimals";
  EXPECT_EQ(t.zelle(13, 3), "-12.500");
  EXPECT_EQ(t.zelle(13, 4), "310.250");
  EXPECT_EQ(t.zelle(14, 1), "Pkt.");
  EXPECT_EQ(t.zelle(14, 2), "0.000");
  EXPECT_EQ(t.zelle(14, 4), "0.001");
  for (int c = 1; c <= 4; ++c) EXPECT_EQ(t.zelle(15, c), "") << "empty slot 14, column " << c;
  EXPECT_EQ(t.zelle(15, 0), "0014");
}

TEST(PunkteTabelleAnzeige, RepaintPunktRewritesOnlyTheRowAskedForRepaintAll) {
  Tabelle t;
  t.punkt(3, 1, 2);
  t.punkt(4, 5, 6);
  t.oeffnen();
  t.punkt(3, 10, 20);
  t.punkt(4, 50, 60);
  t.anwendung.RefreshPunkt(3);
  EXPECT_EQ(t.zelle(4, 2), "10.000");
  EXPECT_EQ(t.zelle(5, 2), "5.000") << "row of point 4 untouched";
  t.anwendung.RefreshPunkteTabelle();
  EXPECT_EQ(t.zelle(5, 2), "50.000");
  t.zustand.PunktLoeschen(3);
  t.anwendung.RefreshPunkt(3);
  EXPECT_EQ(t.zelle(4, 2), "");
  t.anwendung.RefreshPunkt(-1);
  t.anwendung.RefreshPunkt(100000);  // numbers outside the grid are ignored
}

TEST(PunkteTabelleAnzeige, MoreSlotsMeanMoreRowsAtTheNextRepaint) {
  Tabelle t;
  t.oeffnen();
  EXPECT_EQ(t.grid().rows(), 1001);
  t.zustand.PunkteDimensionieren(9999);
  t.punkt(9999, 1, 1);
  t.anwendung.RefreshPunkt(9999);  // a single row cannot fit: the grid is rebuilt
  EXPECT_EQ(t.grid().rows(), 10001);
  EXPECT_EQ(t.zelle(10000, 0), "9999");
  EXPECT_EQ(t.zelle(10000, 2), "1.000");
}

TEST(PunkteTabelleAnzeige, TheMenuEntryOpensTheDialogOnceAndTheStripLabelToo) {
  Tabelle t;
  EXPECT_TRUE(t.main->control("MnuTabellePunkte").enabled());
  forms::Form& f = t.oeffnen();
  t.oeffnen();
  int geladen = 0;
  for (forms::Form* form : t.forms.loaded()) geladen += form->name() == "PunkteTabelle";
  EXPECT_EQ(geladen, 1);
  EXPECT_EQ(t.forms.active(), &f);
  f.control("Cancel").click();
  EXPECT_EQ(t.forms.FormGeladen("PunkteTabelle"), -1);
  t.main->control("LabelPktTab").click();
  EXPECT_GE(t.forms.FormGeladen("PunkteTabelle"), 0);
}

}  // namespace
}  // namespace kolm::points::test

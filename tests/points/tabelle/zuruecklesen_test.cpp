// Cells changed by Delete, cut or paste reach the table through ReRead.
#include <gtest/gtest.h>

#include "points/tabelle/auswahl.h"
#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

TEST(PunkteTabelleEntfernen, DeleteBlanksTheSelectionAndClearsPointsLeftBlank) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(1, 10, 20);
  t.punkt(2, 30, 40);
  t.punkt(3, 50, 60);
  t.zustand.Verbindungen[0].Von = 1;
  t.zustand.Verbindungen[0].Nach = 2;
  t.oeffnen();
  t.grid().setGridSelection(2, 1, 3, 3);  // points 1 and 2, designation to B
  t.zustand.TabelleGeaendert = core::Falsch;
  t.taste("{DELETE}");
  EXPECT_TRUE(t.zustand.PunktLeer(1));
  EXPECT_TRUE(t.zustand.PunktLeer(2));
  EXPECT_FALSE(t.zustand.PunktLeer(3));
  EXPECT_TRUE(t.zustand.TabelleGeaendert);
  EXPECT_EQ(t.zelle(2, 1), "");
  EXPECT_EQ(t.zelle(4, 1), "Pkt.");
  EXPECT_EQ(t.zustand.Verbindungen[0].Von, 1) << "connections stay";
  EXPECT_EQ(t.zustand.Verbindungen[0].Nach, 2);
}

TEST(PunkteTabelleEntfernen, OneBlankCellMakesThatCoordinateZeroAndShiftDeleteDoesNothing) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(5, 10, 20);
  t.oeffnen();
  t.tippe(6, 3, "{DELETE}");
  EXPECT_DOUBLE_EQ(t.p(5).A, 10);
  EXPECT_DOUBLE_EQ(t.p(5).B, 0);
  EXPECT_EQ(t.zelle(6, 3), "0.000");
  t.tippe(6, 2, "{DELETE}", forms::keys::ShiftMask);
  EXPECT_DOUBLE_EQ(t.p(5).A, 10);
  EXPECT_EQ(t.zelle(6, 2), "10.000");
  t.grid().setGridSelection(6, 1, 6, 1);
  t.taste("{DELETE}");
  EXPECT_EQ(t.zelle(6, 1), "Pkt.") << "the designation is not a value: it comes back";
  EXPECT_DOUBLE_EQ(t.p(5).A, 10);
}

TEST(PunkteTabelleZurueckLesen, PastedTextIsReadCommaTolerantNonNumbersAsZero) {
  Tabelle t;
  t.zustand.Dritte = core::Wahr;
  t.punkt(2, 1, 1, 1);
  t.oeffnen();
  forms::Control& g = t.grid();
  // What the Bearbeiten menu leaves in the cells before it rereads.
  g.setCell(2, 2, "12,5");
  g.setCell(2, 3, "abc");
  g.setCell(2, 4, "7");
  g.setCell(3, 2, "x");
  g.setCell(3, 3, "0");
  g.setCell(3, 4, "");
  g.setCell(4, 2, "1,234.5");
  t.anwendung.RereadPunkteTabelle();
  EXPECT_DOUBLE_EQ(t.p(1).A, 12.5);
  EXPECT_DOUBLE_EQ(t.p(1).B, 0);
  EXPECT_DOUBLE_EQ(t.p(1).C, 7);
  EXPECT_EQ(t.zelle(2, 3), "0.000");
  EXPECT_TRUE(t.zustand.PunktLeer(2)) << "a row of zeros is an empty point";
  EXPECT_EQ(t.zelle(3, 2), "");
  EXPECT_EQ(t.zelle(3, 3), "");
  EXPECT_DOUBLE_EQ(t.p(3).A, 1.234) << "a comma is never a thousands separator";
  EXPECT_EQ(t.zelle(4, 2), "1.234");
}

TEST(PunkteTabelleZurueckLesen, RowsNotTouchedKeepTheDigitsTheFormatHides) {
  Tabelle t;
  t.punkt(1, 5432100.123456789, 1200.000000001);
  t.punkt(2, 1, 2);
  t.oeffnen();
  t.grid().setCell(3, 2, "3");
  t.anwendung.RereadPunkteTabelle();
  EXPECT_DOUBLE_EQ(t.p(1).A, 5432100.123456789);
  EXPECT_DOUBLE_EQ(t.p(1).B, 1200.000000001);
  EXPECT_DOUBLE_EQ(t.p(2).A, 3);
  EXPECT_TRUE(t.zustand.TabelleGeaendert);
}

TEST(PunkteTabelleZurueckLesen, WithoutDritteTheHiddenThirdValueStays) {
  Tabelle t;
  t.punkt(1, 1, 2, 9.5);
  t.punkt(2, 3, 4, 0);
  t.oeffnen();
  ASSERT_EQ(t.grid().cols(), 4);
  t.grid().setGridSelection(2, 2, 3, 3);
  t.taste("{DELETE}");
  EXPECT_FALSE(t.zustand.PunktLeer(1)) << "its height keeps point 1";
  EXPECT_DOUBLE_EQ(t.p(1).C, 9.5);
  EXPECT_EQ(t.zelle(2, 2), "0.000");
  EXPECT_TRUE(t.zustand.PunktLeer(2));
}

TEST(PunkteTabelleZurueckLesen, APastedPointTakesTheDefaultsOfANewPoint) {
  Tabelle t;
  t.zustand.StandardKurzBezeichnung = 2;
  t.zustand.Kurzbezeichnungen[2].Text = "Baum";
  t.zustand.Punkte[7].KurzBez = 5;
  t.oeffnen();
  t.grid().setCell(8, 2, "4");
  t.grid().setCell(8, 3, "5");
  t.anwendung.RereadPunkteTabelle();
  EXPECT_EQ(t.p(7).KurzBez, 2);
  EXPECT_EQ(t.p(7).Nummer, 7);
  EXPECT_EQ(t.zelle(8, 1), "Baum");
}

// Stands in for the graphic: counts its repaints.
class Grafik : public forms::Form {
 public:
  explicit Grafik(forms::Forms& f, int& zaehler) : Form(f, "Grafik", "Grafik") {
    add(forms::ControlKind::CommandButton, "Repaint").hidden();
    on("Repaint", forms::Event::Click, [&zaehler](forms::Control&, forms::EventArgs&) { ++zaehler; });
  }
};

TEST(PunkteTabelleZurueckLesen, TheGraphicRedrawsWhenAPointChanged) {
  Tabelle t;
  int neuGezeichnet = 0;
  t.forms.registerForm("Grafik", [&](forms::Forms& f) { return std::make_unique<Grafik>(f, neuGezeichnet); });
  t.forms.show("Grafik");
  t.punkt(1, 1, 2);
  t.oeffnen();
  t.anwendung.RereadPunkteTabelle();
  EXPECT_EQ(neuGezeichnet, 0) << "nothing changed";
  t.grid().setCell(2, 2, "5");
  t.anwendung.RereadPunkteTabelle();
  EXPECT_EQ(neuGezeichnet, 1);
  t.tippe(3, 3, "8{ENTER}");
  EXPECT_EQ(neuGezeichnet, 2);
  t.tippe(2, 2, "{DELETE}");
  EXPECT_EQ(neuGezeichnet, 3);
}

TEST(PunkteTabelleAuswahl, TheSelectedRowsGiveFirstAndLastPointInEitherDirection) {
  Tabelle t;
  EXPECT_FALSE(MarkiertePunkte(t.zustand, t.forms).has_value()) << "closed: no selection";
  t.oeffnen();
  t.grid().setGridSelection(40, 3, 12, 2);
  auto bereich = MarkiertePunkte(t.zustand, t.forms);
  ASSERT_TRUE(bereich.has_value());
  EXPECT_EQ(bereich->erste, 11);
  EXPECT_EQ(bereich->letzte, 39);
  t.grid().setGridSelection(0, 1, 0, 1);
  bereich = MarkiertePunkte(t.zustand, t.forms);
  EXPECT_EQ(bereich->erste, 0) << "the header row stands for no point";
  EXPECT_EQ(bereich->letzte, 0);
  t.grid().setGridSelection(1, 1, 1000, 3);
  bereich = MarkiertePunkte(t.zustand, t.forms);
  EXPECT_EQ(bereich->erste, 0);
  EXPECT_EQ(bereich->letzte, 999);
}

}  // namespace
}  // namespace kolm::points::test

// Typing into the cells of the point grid: the text a key builds, when a
// cell is taken into the table, the letter variables, and the defaults of a
// new point.
#include <gtest/gtest.h>

#include <random>

#include "tabelle_fixture.h"

namespace kolm::points::test {
namespace {

TEST(PunkteTabelleTippen, EnterTakesTheCellIntoTheTableAndShowsItFormatted) {
  Tabelle t;
  t.oeffnen();
  t.tippe(6, 2, "12,5");
  EXPECT_EQ(t.zelle(6, 2), "12,5") << "while typing the cell shows the keys";
  EXPECT_TRUE(t.zustand.PunktLeer(5)) << "nothing stored before the cell ends";
  t.taste("{ENTER}");
  EXPECT_DOUBLE_EQ(t.p(5).A, 12.5);
  EXPECT_EQ(t.p(5).Nummer, 5);
  EXPECT_EQ(t.zelle(6, 2), "12.500");
  EXPECT_EQ(t.zelle(6, 3), "0.000") << "the new point shows all its columns";
  EXPECT_TRUE(t.zustand.TabelleGeaendert);
}

TEST(PunkteTabelleTippen, ArrowsEndTheCellAndMoveOnMovingTheCursorEndsItToo) {
  Tabelle t;
  t.oeffnen();
  t.tippe(2, 2, "100{RIGHT}200{DOWN}");
  EXPECT_DOUBLE_EQ(t.p(1).A, 100);
  EXPECT_DOUBLE_EQ(t.p(1).B, 200);
  EXPECT_EQ(t.grid().gridData().row, 3);
  EXPECT_EQ(t.grid().gridData().col, 3);
  t.taste("7");
  t.grid().setCurrentCell(10, 2);  // a click elsewhere
  EXPECT_DOUBLE_EQ(t.p(2).B, 7);
  t.taste("8");
  t.grid().form().setActiveControl(&t.grid().form().control("Speichern"));  // focus leaves the grid
  EXPECT_DOUBLE_EQ(t.p(9).A, 8);
}

TEST(PunkteTabelleTippen, ATypedCellStartsFromTheValueInTheEditingPattern) {
  Tabelle t;
  t.punkt(1, 12.5, 40);
  t.oeffnen();
  t.tippe(2, 2, "3");
  EXPECT_EQ(t.zelle(2, 2), "12.53") << "digits are appended to the value";
  t.taste("{BACKSPACE}{BACKSPACE}{BACKSPACE}");
  EXPECT_EQ(t.zelle(2, 2), "12");
  t.taste("-{ENTER}");
  EXPECT_DOUBLE_EQ(t.p(1).A, -12);
  t.tippe(2, 3, "-");
  EXPECT_EQ(t.zelle(2, 3), "-40") << "a whole number shows without decimals";
  t.taste("-");
  EXPECT_EQ(t.zelle(2, 3), "40") << "minus toggles";
  t.taste(".5.,7{ENTER}");
  EXPECT_DOUBLE_EQ(t.p(1).B, 40.57) << "a second decimal sign is not taken";
}

TEST(PunkteTabelleTippen, OtherKeysAndOtherColumnsTypeNothing) {
  Tabelle t;
  t.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  t.punkt(1, 1, 2);
  t.oeffnen();
  t.tippe(2, 0, "55{ENTER}");
  EXPECT_EQ(t.zelle(2, 0), "1") << "the number column is not edited";
  t.tippe(2, 1, "55{ENTER}");
  EXPECT_EQ(t.zelle(2, 1), "Pkt.") << "nor the designation";
  t.tippe(2, 2, "#+ /{ENTER}");
  EXPECT_DOUBLE_EQ(t.p(1).A, 1);
  t.tippe(0, 2, "9{ENTER}");
  EXPECT_EQ(t.zelle(0, 2), "X =");
}

TEST(PunkteTabelleTippen, AFirstFilledPointTakesTheDefaultsOfANewPoint) {
  Tabelle t;
  t.zustand.StandardKurzBezeichnung = 4;
  t.zustand.Kurzbezeichnungen[4].Text = "Schacht";
  t.zustand.PunktFarben[2] = {0x00FF00, "Grün"};
  t.zustand.StandardPunktFarbe = 2;
  t.zustand.StandardAusrichtung = 3;
  t.zustand.StandardDistanz = 0.5;
  t.zustand.StandardVersatzBerechnen();
  // Slot 20 was left with other values by an earlier point.
  t.zustand.Punkte[20].KurzBez = 9;
  t.zustand.Punkte[20].Farbe = 0x123456;
  t.oeffnen();
  t.tippe(21, 3, "4{ENTER}");
  EXPECT_EQ(t.p(20).KurzBez, 4);
  EXPECT_EQ(t.p(20).Farbe, 0x00FF00);
  EXPECT_FLOAT_EQ(t.p(20).TextDx, 0.5f);
  EXPECT_FLOAT_EQ(t.p(20).TextDy, 0.0f);
  EXPECT_EQ(t.zelle(21, 1), "Schacht");

  t.zustand.Punkte[20].KurzBez = 1;  // an existing point keeps its own
  t.tippe(21, 2, "5{ENTER}");
  EXPECT_EQ(t.p(20).KurzBez, 1);
}

TEST(PunkteTabelleTippen, TypingAPointDownToZeroEmptiesIt) {
  Tabelle t;
  t.punkt(3, 5, 0);
  t.oeffnen();
  t.tippe(4, 2, "{BACKSPACE}{ENTER}");
  EXPECT_TRUE(t.zustand.PunktLeer(3));
  EXPECT_EQ(t.zelle(4, 2), "");
  EXPECT_EQ(t.zelle(4, 3), "");
}

TEST(PunkteTabelleTippen, LetterKeysStoreAndInsertVariables) {
  Tabelle t;
  t.punkt(1, 12.5, 3);
  t.zustand.Variablen[1] = 99.25;  // B
  t.oeffnen();
  t.tippe(2, 2, "K");
  EXPECT_DOUBLE_EQ(t.zustand.Variablen[10], 12.5) << "the cell's value went into K";
  EXPECT_EQ(t.zelle(2, 2), "12.500");
  t.tippe(2, 3, "b");
  EXPECT_DOUBLE_EQ(t.p(1).B, 99.25) << "the point takes the variable at once";
  EXPECT_EQ(t.zelle(2, 3), "99.250");
  t.tippe(5, 2, "k");
  EXPECT_DOUBLE_EQ(t.p(4).A, 12.5) << "an empty slot becomes a point";
}

TEST(PunkteTabelleTippen, ClosingTheDialogKeepsTheValueBeingTyped) {
  Tabelle t;
  t.oeffnen();
  t.tippe(3, 2, "42");
  t.taste("{ESC}");  // Esc presses Schließen
  EXPECT_EQ(t.forms.FormGeladen("PunkteTabelle"), -1);
  EXPECT_DOUBLE_EQ(t.p(2).A, 42);
}

TEST(PunkteTabelleTippen, TheRowOfAnzahlPunkteTakesAPointToo) {
  Tabelle t;
  t.oeffnen();
  t.tippe(1000, 2, "1{ENTER}");
  EXPECT_DOUBLE_EQ(t.p(999).A, 1);
}

TEST(PunkteTabelleTippen, AnyKeysInAnyCellNeverBreakTheTable) {
  Tabelle t;
  t.zustand.Dritte = core::Wahr;
  t.punkt(0, 1, 2, 3);
  t.oeffnen();
  std::mt19937 zufall(17);
  const std::string tasten = "0123456789,.-+eE aZz#\x7f";
  for (int i = 0; i < 3000; ++i) {
    forms::Control& g = t.grid();
    if (i % 40 == 0) g.setCurrentCell(static_cast<int>(zufall() % 6), static_cast<int>(zufall() % 5));
    const int wahl = static_cast<int>(zufall() % (tasten.size() + 4));
    if (wahl < static_cast<int>(tasten.size())) {
      const char32_t ch = static_cast<unsigned char>(tasten[static_cast<size_t>(wahl)]);
      g.form().sendKey(g, forms::keys::KeyCodeOfChar(ch), 0, ch);
    } else {
      const int codes[] = {forms::keys::Return, forms::keys::Back, forms::keys::Delete, forms::keys::Down};
      g.form().sendKey(g, codes[wahl - tasten.size()], 0, wahl - tasten.size() == 1 ? 8 : 0);
    }
  }
  t.grid().form().setActiveControl(nullptr);  // the last cell ends as the focus leaves
  // Whatever was typed, the grid shows what the table holds.
  for (int n = 0; n < 5; ++n) {
    const bool leer = t.zustand.PunktLeer(n);
    EXPECT_EQ(t.zelle(n + 1, 2).empty(), leer) << "point " << n;
  }
  EXPECT_TRUE(t.dienste.messages.shown().empty());
}

TEST(PunkteTabelleTippen, ANumberBeyondTheRangeOfADoubleIsRefusedWithTheOverflowMessage) {
  Tabelle t;
  t.punkt(5, 12.5, 7, 0);
  t.oeffnen();
  t.tippe(6, 3, "{BACKSPACE}{BACKSPACE}{BACKSPACE}" + std::string(400, '9') + "{ENTER}");
  ASSERT_EQ(t.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(t.dienste.messages.shown()[0].message.text, "Error 6 Overflow: Zahlenbereich überschritten!");
  EXPECT_DOUBLE_EQ(t.p(5).B, 7) << "the stored value is not lost";
  EXPECT_EQ(t.zelle(6, 3), "7.000");
  t.tippe(6, 3, "{BACKSPACE}" + std::string(300, '9') + "{ENTER}");
  EXPECT_GT(t.p(5).B, 9e299) << "a large but finite number is taken";
  EXPECT_EQ(t.dienste.messages.shown().size(), 1u);
}

}  // namespace
}  // namespace kolm::points::test

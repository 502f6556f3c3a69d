// The variable grid: the 26 letters, typing into a cell as in the point
// grid, and the hidden commands the other dialogs and the Bearbeiten menu use.
#include <gtest/gtest.h>

#include "kontrolle_hilfen.h"

namespace kolm::points::test {
namespace {

struct Variablen : Umgebung {
  forms::Form& f;
  forms::Control& grid;
  Variablen() : f(zeige("VariablenTabelle")), grid(f.control("Grid")) { f.setActiveControl(&grid); }
  void zelle(int zeile) { grid.setCurrentCell(zeile, 1); }
  double& wert(char buchstabe) { return zustand.Variablen[static_cast<std::size_t>(buchstabe - 'A')]; }
};

TEST(VariablenTabelle, ShowsTheTwentySixLettersWithTheirValuesInTheStandardFormat) {
  Umgebung u;
  u.zustand.Variablen[0] = 12.5;
  u.zustand.Variablen[25] = -0.0001234;
  forms::Form& f = u.zeige("VariablenTabelle");
  const forms::Control& grid = f.control("Grid");
  ASSERT_EQ(grid.rows(), 26);
  EXPECT_EQ(grid.cell(0, 0), "A =");
  EXPECT_EQ(grid.cell(25, 0), "Z =");
  EXPECT_EQ(grid.cell(0, 1), "12.500");
  EXPECT_EQ(grid.cell(1, 1), "0.000");
  EXPECT_EQ(grid.cell(25, 1), "-0.000123");
  u.zustand.Variablen[1] = 3;
  u.anwendung.RefreshVariablen();
  EXPECT_EQ(grid.cell(1, 1), "3.000");
}

TEST(VariablenTabelle, TypingIntoACellStoresTheValueWhenTheCellIsLeft) {
  Variablen v;
  v.zelle(1);
  Tippe(v.grid, "12,5");
  EXPECT_EQ(v.grid.cell(1, 1), "12,5") << "while typed, the cell shows the keys";
  Taste(v.grid, forms::keys::Return, U'\r');
  EXPECT_DOUBLE_EQ(v.wert('B'), 12.5);
  EXPECT_EQ(v.grid.cell(1, 1), "12.500");

  v.zelle(2);
  Tippe(v.grid, "7");
  Taste(v.grid, forms::keys::Down);
  EXPECT_DOUBLE_EQ(v.wert('C'), 7);
  EXPECT_EQ(v.grid.gridData().row, 3);
  EXPECT_EQ(v.grid.cell(2, 1), "7.000");
}

TEST(VariablenTabelle, KeysFollowThePointGridRules) {
  Variablen v;
  v.wert('D') = 3;
  v.zelle(3);
  Tippe(v.grid, "4");
  EXPECT_EQ(v.grid.cell(3, 1), "34") << "a whole number is edited without decimals";
  Tippe(v.grid, ".5.,#-");
  EXPECT_EQ(v.grid.cell(3, 1), "-34.5") << "one decimal sign only, other keys ignored, minus toggles";
  Taste(v.grid, forms::keys::Back, 8);
  Tippe(v.grid, "-");
  Taste(v.grid, forms::keys::Return, U'\r');
  EXPECT_DOUBLE_EQ(v.wert('D'), 34);

  v.wert('E') = 0.25;
  v.anwendung.RefreshVariablen();
  v.zelle(4);
  Tippe(v.grid, "1");
  EXPECT_EQ(v.grid.cell(4, 1), "0.251");
  v.wert('F') = 0;
  v.zelle(5);
  Taste(v.grid, forms::keys::Back, 8);
  Tippe(v.grid, "9");
  EXPECT_EQ(v.grid.cell(5, 1), "9") << "a zero starts empty";
  v.f.setActiveControl(nullptr);
  EXPECT_DOUBLE_EQ(v.wert('F'), 9) << "leaving the grid takes the cell";
}

TEST(VariablenTabelle, LetterKeysStoreTheCellInAVariableOrInsertOne) {
  Variablen v;
  v.wert('A') = 1.5;
  v.anwendung.RefreshVariablen();
  v.zelle(0);
  Tippe(v.grid, "K");
  EXPECT_DOUBLE_EQ(v.wert('K'), 1.5);
  EXPECT_EQ(v.grid.cell(10, 1), "1.500");
  EXPECT_EQ(v.grid.cell(0, 1), "1.500");

  v.zelle(2);
  Tippe(v.grid, "25");
  Tippe(v.grid, "M");
  EXPECT_DOUBLE_EQ(v.wert('M'), 25) << "the typed text counts";
  v.zelle(3);
  Tippe(v.grid, "a");
  EXPECT_DOUBLE_EQ(v.wert('D'), 1.5);
  EXPECT_EQ(v.grid.cell(3, 1), "1.500");
}

TEST(VariablenTabelle, ReReadTakesPastedCellsAndDeleteClearsTheMarkedOnes) {
  Variablen v;
  v.wert('A') = 1;
  v.wert('B') = 2;
  v.wert('C') = 3;
  v.anwendung.RefreshVariablen();
  // What the Bearbeiten menu's paste leaves before it asks for ReRead.
  v.grid.setCell(0, 1, "10,25");
  v.grid.setCell(1, 1, "abc");
  v.anwendung.RereadVariablen();
  EXPECT_DOUBLE_EQ(v.wert('A'), 10.25);
  EXPECT_DOUBLE_EQ(v.wert('B'), 0);
  EXPECT_EQ(v.grid.cell(0, 1), "10.250");
  EXPECT_EQ(v.grid.cell(1, 1), "0.000");

  v.grid.setGridSelection(0, 1, 1, 1);
  Taste(v.grid, forms::keys::Delete);
  EXPECT_DOUBLE_EQ(v.wert('A'), 0);
  EXPECT_DOUBLE_EQ(v.wert('C'), 3);
  v.grid.setGridSelection(2, 1, 2, 1);
  Taste(v.grid, forms::keys::Delete, 0, forms::keys::ShiftMask);
  EXPECT_DOUBLE_EQ(v.wert('C'), 3) << "Shift+Delete is not the delete of cells";
}

TEST(VariablenTabelle, ACellSetAsAWholeCountsAtOnce) {
  Variablen v;
  v.grid.setCell(6, 1, "-2,5");
  forms::EventArgs a;
  a.row = 6;
  a.col = 1;
  v.grid.raise(forms::Event::Change, a);
  EXPECT_DOUBLE_EQ(v.wert('G'), -2.5);
  EXPECT_EQ(v.grid.cell(6, 1), "-2.500");
}

TEST(VariablenTabelle, WhatIsBeingTypedIsKeptWhenTheGridIsRepaintedOrClosed) {
  Variablen v;
  v.zelle(7);
  Tippe(v.grid, "8");
  v.wert('Z') = 4;
  v.anwendung.RefreshVariablen();
  EXPECT_DOUBLE_EQ(v.wert('H'), 8);
  EXPECT_EQ(v.grid.cell(25, 1), "4.000");
  v.zelle(8);
  Tippe(v.grid, "6");
  v.forms.unload(v.f);
  EXPECT_DOUBLE_EQ(v.wert('I'), 6);
}

}  // namespace
}  // namespace kolm::points::test

// Properties and events of single controls, as form logic sees them.
#include <gtest/gtest.h>

#include "forms/keys.h"
#include "forms/names.h"
#include "test_forms.h"

namespace kolm::forms::testing {
namespace {

TEST(Names, CompareWithoutCaseAndWithEitherUmlautSpelling) {
  EXPECT_EQ(NameKey("Schließen"), "schliessen");
  EXPECT_EQ(NameKey("SCHLIESSEN"), "schliessen");
  EXPECT_EQ(NameKey("MnuDateiÖffnenTabelle"), NameKey("mnudateioeffnentabelle"));
  EXPECT_EQ(NameKey("mnuDateiÜbernahmeTC500"), "mnudateiuebernahmetc500");
  EXPECT_EQ(NameKey("Vorwärtsschnitt"), NameKey("VORWAERTSSCHNITT"));
  EXPECT_NE(NameKey("Punkt1"), NameKey("Punkt2"));
}

TEST(Names, ControlsAndArraysAreFoundByAnySpelling) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  EXPECT_EQ(e.find("schliessen"), e.find("Schließen"));
  ASSERT_NE(e.find("SCHLIESSEN"), nullptr);
  EXPECT_EQ(e.find("Param"), nullptr) << "an array member needs its index";
  ASSERT_NE(e.find("param", 2), nullptr);
  EXPECT_EQ(e.find("Param", 2)->address(), "Param(2)");
  EXPECT_EQ(e.find("Param", 3), nullptr);
  const auto members = e.array("PARAM");
  ASSERT_EQ(members.size(), 3u);
  EXPECT_EQ(members[0]->index(), 0);
  EXPECT_EQ(members[2]->index(), 2);
}

TEST(TextFields, SettingTextRaisesChangeOnceAndOnlyWhenItDiffers) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("Param", 1).setText("12.5");
  e.control("Param", 1).setText("12.5");
  e.control("Param", 1).setText("");
  EXPECT_EQ(e.log, (std::vector<std::string>{"Change Param(1)=12.5", "Change Param(1)="}));
}

TEST(TextFields, SelectionIsCountedInCharactersNotBytes) {
  FormsFixture f;
  Control& c = f.eingabe().control("PP1Nr");
  c.setText("Größe");
  c.setSelection(2, 2);
  EXPECT_EQ(c.selectedText(), "öß");
  c.replaceSelection("ss");
  EXPECT_EQ(c.text(), "Grsse");
  EXPECT_EQ(c.selStart(), 4);
  c.setSelection(3, 99);
  EXPECT_EQ(c.selLength(), 2) << "a selection is clamped to the text";
}

TEST(Labels, TextOfACaptionedControlIsItsCaptionAndRaisesNoChange) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("PP1").setText("X = 1.000");
  EXPECT_EQ(e.control("PP1").captionText(), "X = 1.000");
  EXPECT_EQ(e.control("PP1").shownText(), "X = 1.000");
}

TEST(CheckBoxes, ClickTogglesAndRaisesClickWithTheNewValue) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("CheckAnders").click();
  e.control("CheckAnders").click();
  e.control("CheckAnders").setValue(1);  // code setting the value clicks too
  EXPECT_EQ(e.log, (std::vector<std::string>{"Click CheckAnders=1", "Click CheckAnders=0",
                                             "Click CheckAnders=1"}));
}

TEST(CheckBoxes, DisabledControlsIgnoreClicks) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("CheckAnders").setEnabled(false);
  e.control("CheckAnders").click();
  EXPECT_EQ(e.control("CheckAnders").value(), 0);
  EXPECT_TRUE(e.log.empty());
}

TEST(OptionButtons, ChoosingOneClearsTheOthersOfItsContainerOnly) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("optAndere").click();
  e.control("optArt", 0).click();
  e.control("optArt", 1).click();
  EXPECT_EQ(e.control("optArt", 0).value(), 0);
  EXPECT_EQ(e.control("optArt", 1).value(), 1);
  EXPECT_EQ(e.control("optAndere").value(), 1) << "an option in a frame is a group of its own";
  EXPECT_EQ(e.log, (std::vector<std::string>{"Click optArt(0)", "Click optArt(1)"}));
}

TEST(Lists, ComboTextFollowsTheIndexAndClickIsRaisedOncePerChange) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& c = e.control("Einheit");
  c.setListIndex(2);
  c.setListIndex(2);
  EXPECT_EQ(c.text(), "Radiant");
  c.setListIndex(7);  // out of range means none
  EXPECT_EQ(c.listIndex(), -1);
  EXPECT_EQ(e.log, (std::vector<std::string>{"Click Einheit=Radiant", "Click Einheit=Radiant"}));
}

TEST(Lists, MultiSelectKeepsEverySelectedEntry) {
  FormsFixture f;
  Control& l = f.eingabe().control("Liste");
  l.setSelected(0, true);
  l.setSelected(2, true);
  EXPECT_TRUE(l.selected(0));
  EXPECT_FALSE(l.selected(1));
  EXPECT_TRUE(l.selected(2));
  EXPECT_FALSE(l.selected(9));
  l.removeItem(0);
  EXPECT_EQ(l.listCount(), 2);
  EXPECT_TRUE(l.selected(1)) << "the selection moves with its entry";
}

TEST(Grids, CellsSurviveChangesOfShape) {
  FormsFixture f;
  Control& g = f.eingabe().control("Grid");
  g.setCell(1, 1, "A");
  g.setCell(4, 2, "B");
  g.setCell(5, 0, "ausserhalb");
  g.setCols(4);
  EXPECT_EQ(g.cell(1, 1), "A");
  EXPECT_EQ(g.cell(4, 2), "B");
  EXPECT_EQ(g.cell(4, 3), "");
  g.setRows(3);
  EXPECT_EQ(g.cell(4, 2), "");
  g.setRows(10001);
  EXPECT_EQ(g.rows(), 10001);
  EXPECT_EQ(g.cell(1, 1), "A");
  EXPECT_EQ(g.cell(-1, 0), "");
}

TEST(Grids, ArrowKeysMoveTheCurrentCellButNotIntoTheFixedRows) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& g = e.control("Grid");
  EXPECT_EQ(g.gridData().row, 1);
  EXPECT_EQ(g.gridData().col, 1);
  e.sendKey(g, keys::Up, 0, 0);
  e.sendKey(g, keys::Down, 0, 0);
  e.sendKey(g, keys::Right, 0, 0);
  e.sendKey(g, keys::PageDown, 0, 0);
  EXPECT_EQ(g.gridData().row, 4);
  EXPECT_EQ(g.gridData().col, 2);
  EXPECT_EQ(e.log, (std::vector<std::string>{"RowColChange 2,1", "RowColChange 2,2", "RowColChange 4,2"}));
}

TEST(Pictures, ADisplayListReplaysWhatWasDrawn) {
  DisplayList drawn;
  drawn.clear(0xFFFFFF);
  drawn.setScale(0, 100, 200, 0);
  drawn.setPen(0xFF0000, 2, LineStyle::Dash);
  drawn.line(0, 0, 200, 100);
  drawn.text(10, 90, "Station 0+100");
  drawn.polygon({{0, 0}, {10, 0}, {10, 10}}, 0x00FF00, 3);
  DisplayList copy;
  copy.clear(0x000000);
  drawn.replay(copy);
  // The copy holds its own clear, then exactly what was drawn.
  const auto& a = drawn.commands();
  const auto& b = copy.commands();
  ASSERT_GE(b.size(), a.size());
  const size_t offset = b.size() - a.size();
  for (size_t i = 0; i < a.size(); ++i) EXPECT_EQ(a[i].index(), b[offset + i].index()) << i;
  const auto* text = std::get_if<DisplayList::Text>(&b[b.size() - 2]);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text, "Station 0+100");
  const auto* poly = std::get_if<DisplayList::Polygon>(&b.back());
  ASSERT_NE(poly, nullptr);
  EXPECT_EQ(poly->pattern, 3);
  EXPECT_EQ(poly->corners.size(), 3u);
  EXPECT_EQ(drawn.generation(), 1u);
}

TEST(Pictures, TextExtentIsInTheUnitsOfTheScale) {
  DisplayList d;
  d.setDeviceSize(400, 200);
  d.setScale(0, 0, 800, 100);  // 2 units per pixel across, 0.5 down
  Font font;
  font.sizePt = 12;  // 16 px
  d.setFont(font);
  const TextSize px = ApproximateMeasurer().measure(font, "Ä1");
  const TextSize units = d.textExtent("Ä1");
  EXPECT_DOUBLE_EQ(units.width, 2 * px.width);
  EXPECT_DOUBLE_EQ(units.height, 0.5 * px.height);
  EXPECT_DOUBLE_EQ(px.width, ApproximateMeasurer().measure(font, "AB").width)
      << "an umlaut is one character";
}

}  // namespace
}  // namespace kolm::forms::testing

// Cut, copy, paste and select-all of the Bearbeiten menu on what the user
// works in: a text field, a grid, or a form with commands of its own.
#include <gtest/gtest.h>

#include <cstdlib>

#include "points/eingabe/bearbeiten.h"
#include "umgebung.h"

namespace kolm::points::testing {
namespace {

using forms::ControlKind;

// A dialog with fields of every kind and a grid of 5 rows and 4 columns
// behind one fixed row and column, whose ReRead is recorded.
class Felder : public Protokoll {
 public:
  explicit Felder(forms::Forms& f) : Protokoll(f, "Felder", {"Repaint", "RepaintPunkt", "ReRead"}) {
    add(ControlKind::TextBox, "Text1");
    add(ControlKind::TextBox, "Notiz").multiLine();
    add(ControlKind::ComboBox, "Combo");
    add(ControlKind::ComboBox, "Liste").dropDownList().items({"eins", "zwei"});
    add(ControlKind::Label, "Label1").caption("Beschriftung");
    add(ControlKind::Grid, "Grid").grid(5, 4);
  }
};

// A form that handles the clipboard itself, as the calculator does.
class Rechner : public forms::Form {
 public:
  explicit Rechner(forms::Forms& f, bool nurKopieren) : Form(f, "Taschenrechner", "Taschenrechner") {
    add(ControlKind::TextBox, "Anzeige");
    for (const char* befehl : {"Ausschneiden", "Kopieren", "Einfügen"}) {
      if (nurKopieren && std::string(befehl) != "Kopieren") continue;
      add(ControlKind::CommandButton, befehl).hidden();
      on(befehl, forms::Event::Click, [this, befehl](forms::Control&, forms::EventArgs&) { gerufen.push_back(befehl); });
    }
  }
  std::vector<std::string> gerufen;
};

struct Menue : Umgebung {
  bool nurKopieren = false;
  Menue() {
    setenv("KOLM_DEZIMALZEICHEN", ",", 1);
    forms.registerForm("Felder", [](forms::Forms& f) { return std::make_unique<Felder>(f); });
    forms.registerForm("Taschenrechner", [this](forms::Forms& f) { return std::make_unique<Rechner>(f, nurKopieren); });
    BearbeitenVerbinden(main(), anwendung);
  }
  ~Menue() { unsetenv("KOLM_DEZIMALZEICHEN"); }

  Felder& felder() { return static_cast<Felder&>(*forms.show("Felder")); }
  forms::Control& fokus(const char* name) {
    forms::Control& c = felder().control(name);
    c.setFocus();
    return c;
  }
  forms::Control& raster() {
    forms::Control& g = fokus("Grid");
    for (int r = 0; r < 5; ++r)
      for (int c = 0; c < 4; ++c) g.setCell(r, c, std::to_string(r) + "." + std::to_string(c));
    return g;
  }
  void menue(const char* eintrag) {
    main().control("MnuBearbeiten").click();  // opening the menu enables its entries
    main().control(eintrag).click();
  }
  std::string ablage() { return dienste.clipboard.text(); }
  bool frei(const char* eintrag) { return main().control(eintrag).enabled(); }
  void oeffnen() { main().control("MnuBearbeiten").click(); }
};

TEST(BearbeitenText, CopyCutAndPasteWorkOnTheSelectedText) {
  Menue m;
  forms::Control& feld = m.fokus("Text1");
  feld.setText("Höhe 12.5 m");
  feld.setSelection(5, 4);
  m.menue("MnuBearbeitenKopieren");
  EXPECT_EQ(m.ablage(), "12.5") << "a field's text is copied as it is";
  m.menue("MnuBearbeitenAusschneiden");
  EXPECT_EQ(feld.text(), "Höhe  m");
  feld.setSelection(0, 4);
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(feld.text(), "12.5  m");
  EXPECT_TRUE(m.felder().gerufen.empty()) << "a field is no grid: nothing is reread";
}

TEST(BearbeitenText, NothingSelectedLeavesTheClipboardAndPasteInsertsAtTheCaret) {
  Menue m;
  m.dienste.clipboard.setText("alt");
  forms::Control& feld = m.fokus("Combo");
  feld.setText("abc");
  feld.setSelection(1, 0);
  m.menue("MnuBearbeitenKopieren");
  m.menue("MnuBearbeitenAusschneiden");
  EXPECT_EQ(m.ablage(), "alt");
  EXPECT_EQ(feld.text(), "abc");
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(feld.text(), "aaltbc") << "an editable combo box takes text like a field";
}

TEST(BearbeitenText, AOneLineFieldTakesOnlyTheFirstLineOfThePaste) {
  Menue m;
  m.dienste.clipboard.setText("1,5\t2\r\n3\t4\r\n");
  forms::Control& feld = m.fokus("Text1");
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(feld.text(), "1,5\t2");
  forms::Control& notiz = m.fokus("Notiz");
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(notiz.text(), "1,5\t2\r\n3\t4\r\n");
}

TEST(BearbeitenText, SelectAllTakesTheWholeText) {
  Menue m;
  forms::Control& feld = m.fokus("Text1");
  feld.setText("Straße");
  m.menue("MnuBearbeitenAllesMarkieren");
  EXPECT_EQ(feld.selStart(), 0);
  EXPECT_EQ(feld.selectedText(), "Straße");
}

TEST(BearbeitenRaster, CopyGivesTheRectangleWithTheSystemsDecimalCharacter) {
  Menue m;
  forms::Control& g = m.raster();
  g.setGridSelection(3, 2, 2, 1);  // dragged up and to the left
  m.menue("MnuBearbeitenKopieren");
  EXPECT_EQ(m.ablage(), "2,1\t2,2\r\n3,1\t3,2");
  g.setGridSelection(0, 0, 1, 1);  // from the headers
  m.menue("MnuBearbeitenKopieren");
  EXPECT_EQ(m.ablage(), "1,1") << "the fixed row and column stay out";
  EXPECT_TRUE(m.felder().gerufen.empty()) << "copying changes nothing";
}

TEST(BearbeitenRaster, CutBlanksTheRectangleAndRereads) {
  Menue m;
  forms::Control& g = m.raster();
  g.setGridSelection(1, 2, 2, 3);
  m.menue("MnuBearbeitenAusschneiden");
  EXPECT_EQ(m.ablage(), "1,2\t1,3\r\n2,2\t2,3");
  for (int r = 1; r <= 2; ++r)
    for (int c = 2; c <= 3; ++c) EXPECT_EQ(g.cell(r, c), "") << r << "," << c;
  EXPECT_EQ(g.cell(1, 1), "1.1");
  EXPECT_EQ(g.cell(3, 2), "3.2");
  EXPECT_EQ(m.felder().gerufen, std::vector<std::string>{"ReRead"});
}

TEST(BearbeitenRaster, PasteTakesTheShapeOfTheTextFromTheTopLeftCorner) {
  Menue m;
  forms::Control& g = m.raster();
  m.dienste.clipboard.setText("a\tb\r\nc\td\r\n");  // a final break adds no row
  g.setGridSelection(4, 3, 2, 1);
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(g.cell(2, 1), "a");
  EXPECT_EQ(g.cell(2, 2), "b");
  EXPECT_EQ(g.cell(3, 1), "c");
  EXPECT_EQ(g.cell(3, 2), "d");
  EXPECT_EQ(g.cell(4, 1), "4.1") << "the old selection does not count, the text does";
  EXPECT_EQ(g.cell(2, 3), "2.3");
  const forms::GridData& d = g.gridData();
  EXPECT_EQ(std::min(d.row, d.rowSel), 2);
  EXPECT_EQ(std::max(d.row, d.rowSel), 3);
  EXPECT_EQ(std::min(d.col, d.colSel), 1);
  EXPECT_EQ(std::max(d.col, d.colSel), 2);
  EXPECT_EQ(m.felder().gerufen, std::vector<std::string>{"ReRead"});
}

TEST(BearbeitenRaster, PasteStopsAtTheLastRowAndColumn) {
  Menue m;
  forms::Control& g = m.raster();
  m.dienste.clipboard.setText("1\t2\t3\n4\t5\t6\n7\t8\t9");
  g.setCurrentCell(4, 2);
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(g.cell(4, 2), "1");
  EXPECT_EQ(g.cell(4, 3), "2");
  EXPECT_EQ(g.cell(3, 2), "3.2") << "nothing above the corner";
  const forms::GridData& d = g.gridData();
  EXPECT_EQ(std::max(d.row, d.rowSel), 4) << "the surplus rows are dropped";
  EXPECT_EQ(std::max(d.col, d.colSel), 3);
  for (int c = 0; c < 4; ++c) EXPECT_EQ(g.cell(0, c), "0." + std::to_string(c)) << "the header stays";
}

TEST(BearbeitenRaster, PasteIntoTheFixedAreaStartsBehindIt) {
  Menue m;
  forms::Control& g = m.raster();
  m.dienste.clipboard.setText("x\ty");
  g.setCurrentCell(0, 0);
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(g.cell(0, 0), "0.0");
  EXPECT_EQ(g.cell(1, 1), "x");
  EXPECT_EQ(g.cell(1, 2), "y");
}

TEST(BearbeitenRaster, ShortRowsLeaveTheirOtherCellsAndAnEmptyClipboardDoesNothing) {
  Menue m;
  forms::Control& g = m.raster();
  m.dienste.clipboard.setText("a\tb\tc\rd");
  g.setCurrentCell(1, 1);
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(g.cell(2, 1), "d");
  EXPECT_EQ(g.cell(2, 2), "2.2");
  EXPECT_EQ(g.cell(1, 3), "c");
  m.felder().gerufen.clear();
  m.dienste.clipboard.setText("");
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(g.cell(1, 1), "a");
  EXPECT_TRUE(m.felder().gerufen.empty());
}

TEST(BearbeitenRaster, SelectAllStartsBehindTheFixedRowsAndColumns) {
  Menue m;
  forms::Control& g = m.raster();
  m.menue("MnuBearbeitenAllesMarkieren");
  const forms::GridData& d = g.gridData();
  EXPECT_EQ(d.row, 1);
  EXPECT_EQ(d.col, 1);
  EXPECT_EQ(d.rowSel, 4);
  EXPECT_EQ(d.colSel, 3);
  m.menue("MnuBearbeitenKopieren");
  EXPECT_EQ(m.ablage().substr(0, 11), "1,1\t1,2\t1,3");
}

TEST(BearbeitenMenue, EntriesAreEnabledByWhatTheUserWorksIn) {
  Menue m;
  const char* alle[] = {"MnuBearbeitenAusschneiden", "MnuBearbeitenKopieren", "MnuBearbeitenEinfügen",
                        "MnuBearbeitenAllesMarkieren"};
  m.oeffnen();
  for (const char* e : alle) EXPECT_FALSE(m.frei(e)) << e << ": no dialog is open";
  for (const char* feld : {"Text1", "Combo", "Grid"}) {
    m.fokus(feld);
    m.oeffnen();
    for (const char* e : alle) EXPECT_TRUE(m.frei(e)) << feld << " " << e;
  }
  for (const char* feld : {"Liste", "Label1"}) {
    m.fokus(feld);
    m.oeffnen();
    for (const char* e : alle) EXPECT_FALSE(m.frei(e)) << feld << " " << e;
  }
  m.felder().control("Text1").setFocus();
  m.felder().control("Text1").setEnabled(false);
  m.oeffnen();
  EXPECT_FALSE(m.frei("MnuBearbeitenEinfügen")) << "a disabled field takes nothing";
}

TEST(BearbeitenMenue, AFormWithItsOwnCommandsHandlesThemItself) {
  Menue m;
  m.dienste.clipboard.setText("7");
  auto& rechner = static_cast<Rechner&>(*m.forms.show("Taschenrechner"));
  rechner.control("Anzeige").setText("42");
  rechner.control("Anzeige").setFocus();
  rechner.control("Anzeige").setSelection(0, 2);
  m.menue("MnuBearbeitenKopieren");
  m.menue("MnuBearbeitenAusschneiden");
  m.menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(rechner.gerufen, (std::vector<std::string>{"Kopieren", "Ausschneiden", "Einfügen"}));
  EXPECT_EQ(rechner.control("Anzeige").text(), "42") << "the field itself is not touched";
  EXPECT_EQ(m.ablage(), "7");
}

TEST(BearbeitenMenue, OnlyTheCommandsAFormHasAreEnabled) {
  Menue m;
  m.nurKopieren = true;
  forms::Form& rechner = *m.forms.show("Taschenrechner");
  m.oeffnen();
  EXPECT_TRUE(m.frei("MnuBearbeitenKopieren"));
  EXPECT_FALSE(m.frei("MnuBearbeitenAusschneiden"));
  EXPECT_FALSE(m.frei("MnuBearbeitenEinfügen"));
  EXPECT_FALSE(m.frei("MnuBearbeitenAllesMarkieren")) << "no field has the focus";
  rechner.control("Anzeige").setFocus();
  m.oeffnen();
  EXPECT_TRUE(m.frei("MnuBearbeitenAllesMarkieren"));
  EXPECT_FALSE(m.frei("MnuBearbeitenEinfügen")) << "the form's own commands decide";
}

TEST(BearbeitenMenue, TheBarButtonsActWhateverTheMenuShowedLast) {
  Menue m;
  m.oeffnen();  // nothing open: the entries are disabled now
  forms::Control& feld = m.fokus("Text1");
  feld.setText("abc");
  feld.setSelection(0, 3);
  int kopieren = -1, einfuegen = -1;
  for (int i = 0; i < 64; ++i) {
    const std::string tip = m.main().find("FnLButton", i) ? m.main().control("FnLButton", i).toolTip() : "";
    if (tip == "Kopieren") kopieren = i;
    if (tip == "Einfügen") einfuegen = i;
  }
  ASSERT_GE(kopieren, 0);
  ASSERT_GE(einfuegen, 0);
  EXPECT_TRUE(m.main().control("FnLButton", kopieren).enabled());
  m.main().control("FnLButton", kopieren).click();
  EXPECT_EQ(m.ablage(), "abc");
  feld.setSelection(3, 0);
  m.main().control("FnLButton", einfuegen).click();
  EXPECT_EQ(feld.text(), "abcabc");
}

}  // namespace
}  // namespace kolm::points::testing

// Taschenrechner: cut, copy and paste through the Bearbeiten menu, and
// values dragged onto the display.
#include <cstdlib>

#include "rechner_umgebung.h"

namespace kolm::calc::testing {
namespace {

struct ZwischenablageTest : ::testing::Test {
  RechnerUmgebung u;
  ZwischenablageTest() { setenv("KOLM_DEZIMALZEICHEN", ",", 1); }
  ~ZwischenablageTest() override { unsetenv("KOLM_DEZIMALZEICHEN"); }

  void menue(const char* eintrag) {
    core::MainForm& main = *u.anwendung.main();
    main.control("MnuBearbeiten").click();  // opening the menu enables its entries
    EXPECT_TRUE(main.control(eintrag).enabled()) << eintrag;
    main.control(eintrag).click();
  }
  std::string ablage() { return u.dienste.clipboard.text(); }
};

TEST_F(ZwischenablageTest, CopyTakesTheDisplayWithTheSystemsDecimalCharacter) {
  u.tippe("7\r2/");
  u.rechner().control("Funk", 2).setFocus();  // whatever control is active
  menue("MnuBearbeitenKopieren");
  EXPECT_EQ(ablage(), "3,5");
  EXPECT_EQ(u.anzeige(), "3.5");
  setenv("KOLM_DEZIMALZEICHEN", ".", 1);
  menue("MnuBearbeitenKopieren");
  EXPECT_EQ(ablage(), "3.5");
}

TEST_F(ZwischenablageTest, CutEmptiesTheDisplayButNotTheStack) {
  u.tippe("5\r12,75");
  menue("MnuBearbeitenAusschneiden");
  EXPECT_EQ(ablage(), "12,75");
  EXPECT_EQ(u.anzeige(), "");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"5."}));
  u.tippe("3+");
  EXPECT_EQ(u.anzeige(), "8.");
  u.dienste.clipboard.setText("alt");
  u.text().setText("");
  menue("MnuBearbeitenAusschneiden");
  EXPECT_EQ(ablage(), "alt") << "nothing to cut leaves the clipboard";
}

TEST_F(ZwischenablageTest, PasteReadsTheNumberAsAFinishedX) {
  u.tippe("4\r");
  u.dienste.clipboard.setText("1234,5\r\n99");
  menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(u.anzeige(), "1234.5") << "the first line, its comma a decimal point";
  u.tippe("\r");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"4.", "1234.5"}));
  u.tippe("2");
  EXPECT_EQ(u.anzeige(), "2") << "the next digit starts a new number";
  u.dienste.clipboard.setText("-0,0000005");
  menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(u.anzeige(), "-5.E-7");
}

TEST_F(ZwischenablageTest, PasteRefusesTextThatIsNoNumber) {
  u.tippe("42");
  for (const char* text : {"abc", "X = 12", "", " 5"}) {
    u.dienste.clipboard.setText(text);
    menue("MnuBearbeitenEinfügen");
    EXPECT_EQ(u.anzeige(), "42") << text;
  }
  u.dienste.clipboard.setText("1e400");
  menue("MnuBearbeitenEinfügen");
  EXPECT_EQ(u.anzeige(), "42");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Error 6 Overflow: Zahlenbereich überschritten!");
}

TEST_F(ZwischenablageTest, AValueDroppedOnTheDisplayBecomesX) {
  u.tippe("10\r");
  forms::Form& r = u.rechner();
  forms::Control& quelle = u.anwendung.main()->control("LabelInfo");
  quelle.setCaption("2,5");
  forms::EventArgs drop;
  drop.source = &quelle;
  u.text().raise(forms::Event::DragDrop, drop);
  EXPECT_EQ(u.anzeige(), "2.5");
  u.tippe("*");
  EXPECT_EQ(u.anzeige(), "25.");
  quelle.setCaption("Blue Box");
  u.text().raise(forms::Event::DragDrop, drop);
  EXPECT_EQ(u.anzeige(), "25.") << "a text that is no number is refused";
  EXPECT_TRUE(u.text().isDraggable());
  EXPECT_EQ(r.activeControl(), &u.text());
}

}  // namespace
}  // namespace kolm::calc::testing

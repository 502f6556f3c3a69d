// Taschenrechner: stack, keys and functions, cut, copy and paste through
// the Bearbeiten menu and values dragged onto the display; display texts
// from data/werte.py. The calculator session of the taschenrechner macro
// covers the basic keys end to end.
#include <cstdlib>
#include <string>

#include "calc/frame/menue_umgebung.h"
#include "calc/taschenrechner/taschenrechner.h"
#include "forms/keys.h"
#include "points/eingabe/bearbeiten.h"

namespace kolm::calc::testing {
namespace {

struct RechnerUmgebung : MenueUmgebung {
  RechnerUmgebung() { points::BearbeitenVerbinden(*anwendung.main(), anwendung); }

  TaschenrechnerForm& rechner() {
    anwendung.main()->control("MnuWerTaschenrechner").click();
    return static_cast<TaschenrechnerForm&>(*forms.find("Taschenrechner"));
  }
  forms::Control& text() { return rechner().control("Text"); }
  std::string anzeige() { return text().text(); }
  std::vector<std::string> stack() { return rechner().control("Stack").list(); }

  // Each character as its key: "\r" is Enter, "\b" Backspace.
  void tippe(const std::string& tasten) {
    namespace keys = forms::keys;
    for (const char c : tasten) {
      forms::Control& feld = text();
      if (c == '\r')
        feld.form().sendKey(feld, keys::Return, 0, U'\r');
      else if (c == '\b')
        feld.form().sendKey(feld, keys::Back, 0, 8);
      else
        feld.form().sendKey(feld, keys::KeyCodeOfChar(static_cast<char32_t>(c)), 0, static_cast<char32_t>(c));
    }
  }
  void klicke(const char* knopf, int index = -1) { rechner().control(knopf, index).click(); }
  // Types a value, runs a button, returns the display.
  std::string mit(const std::string& x, const char* knopf, int index) {
    tippe(x);
    klicke(knopf, index);
    return anzeige();
  }
  void winkeleinheit(int eintrag) { anwendung.main()->control("ComboWinkelEinheit").setListIndex(eintrag); }
};

struct TaschenrechnerTest : ::testing::Test {
  RechnerUmgebung u;
};

TEST_F(TaschenrechnerTest, EveryEntryOpensTheOneCalculator) {
  core::MainForm& main = *u.anwendung.main();
  EXPECT_TRUE(main.control("FnLButton", 8).enabled());
  EXPECT_EQ(main.control("FnLButton", 8).toolTip(), "Taschenrechner mit UPN");
  main.control("mnuAnsichtTaschenrechner").click();
  forms::Form* f = u.forms.find("Taschenrechner");
  ASSERT_NE(f, nullptr);
  u.tippe("42");
  main.control("FnLButton", 8).click();
  main.control("MnuWerTaschenrechner").click();
  EXPECT_EQ(u.forms.find("Taschenrechner"), f);
  EXPECT_EQ(u.anzeige(), "42") << "opening again keeps what was typed";
  EXPECT_EQ(f->activeControl(), &f->control("Text"));
}

TEST_F(TaschenrechnerTest, ButtonsCarryTheirFaces) {
  forms::Form& r = u.rechner();
  const std::pair<std::pair<const char*, int>, const char*> faces[] = {
      {{"Calc", 0}, "±C&hs"},     {{"Calc", 2}, "x ~ y"},   {{"Funk", 0}, "&1/x"},
      {{"Funk", 2}, "x²"},        {{"Funk", 7}, "y^(1/x)"}, {{"Log", 0}, "L&N x"},
      {{"Log", 2}, "LO&G x"},     {{"Log", 3}, "1&0^x"},    {{"Trig", 0}, "&SIN"},
      {{"Trig", 1}, "ArcS&IN"},   {{"Trig", 2}, "&COS"},    {{"Trig", 3}, "ArcC&OS"},
      {{"Trig", 4}, "&TAN"},      {{"Trig", 5}, "ArcT&AN"}, {{"Löschen", -1}, "Stack &löschen"},
      {{"LetztLöschen", -1}, "Let&ztes löschen"},
  };
  for (const auto& [knopf, face] : faces)
    EXPECT_EQ(r.control(knopf.first, knopf.second).captionText(), face) << knopf.first << knopf.second;
}

TEST_F(TaschenrechnerTest, EnterPushesAndTheNextDigitStartsANumber) {
  u.tippe("12,5\r3*\r\r");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"37.5", "37.5"})) << "a finished result is pushed as it stands";
  u.tippe("7");
  EXPECT_EQ(u.anzeige(), "7");
  u.tippe("-");
  EXPECT_EQ(u.anzeige(), "30.5");
  u.tippe("2/");
  EXPECT_EQ(u.anzeige(), "18.75");
  u.tippe("1.25+");
  EXPECT_EQ(u.anzeige(), "1.25") << "the empty stack gives y = 0";
}

TEST_F(TaschenrechnerTest, DyadicKeysAndButtonsTakeYFromTheStack) {
  u.tippe("7\r2");
  u.klicke("Calc", 7);
  EXPECT_EQ(u.anzeige(), "5.");
  u.tippe("\r2\r10");
  u.klicke("Funk", 6);
  EXPECT_EQ(u.anzeige(), "1024.");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"5."}));
  u.tippe("^");  // 5 ^ 1024 overflows: nothing changes
  EXPECT_EQ(u.anzeige(), "1024.");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"5."}));
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Error 6 Overflow: Zahlenbereich überschritten!");
  u.klicke("Löschen");
  u.tippe("27\r3");
  u.klicke("Funk", 7);
  EXPECT_EQ(u.anzeige(), "3.");
  u.tippe("7\r2.25");
  u.klicke("Calc", 6);
  EXPECT_EQ(u.anzeige(), "9.25");
  u.tippe("5");
  u.klicke("Calc", 3);
  EXPECT_EQ(u.anzeige(), "0.E0") << "0 * 5 on the empty stack, shown in the exponent pattern";
  u.tippe("5-");
  EXPECT_EQ(u.anzeige(), "-5.");
}

TEST_F(TaschenrechnerTest, FunctionsOfXInEachAngleUnit) {
  struct Fall {
    int einheit;  // the main window's entry: 0 gon, 1 degrees, 2 radians
    const char* x;
    const char* knopf;
    int index;
    const char* anzeige;
  };
  const Fall faelle[] = {
      {0, "8", "Funk", 0, "0.125"},       {0, "5", "Funk", 2, "25."},          {0, "2", "Funk", 3, "1.414214"},
      {0, "50", "Funk", 4, "0.5"},        {0, "5", "Funk", 5, "120."},         {0, "10", "Log", 0, "2.302585"},
      {0, "1", "Log", 1, "2.718282"},     {0, "1000", "Log", 2, "3."},         {0, "2.5", "Log", 3, "316.227766"},
      // the factorial rounds half to even and stops at 170
      {0, "2.5", "Funk", 5, "2."},        {0, "3.5", "Funk", 5, "24."},        {0, "0", "Funk", 5, "1."},
      {0, "170.4", "Funk", 5, "7.2574156E306"},
      {0, "50", "Trig", 0, "0.707107"},
      {0, "100", "Trig", 2, "-2.0510343E-10"},  // cos of 100 gon with Pi = 3.141592654
      {0, "100", "Trig", 4, "-4.8755889E9"},    {0, "0.5", "Trig", 1, "33.333333"},
      {0, "1", "Trig", 1, "100."},              {0, "0.5", "Trig", 3, "66.666667"},
      {0, "-0.5", "Trig", 3, "-66.666667"},     // negative for a negative argument
      {0, "0", "Trig", 3, "0.E0"},              // 0, not 100 gon
      {0, "1", "Trig", 5, "50."},               {1, "30", "Trig", 0, "0.5"},
      {1, "-1", "Trig", 1, "-90."},             {2, "1", "Trig", 0, "0.841471"},
      {2, "1", "Trig", 5, "0.785398"},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(std::string(f.knopf) + std::to_string(f.index) + " of " + f.x);
    u.winkeleinheit(f.einheit);
    u.text().setText(f.x);
    u.klicke(f.knopf, f.index);
    EXPECT_EQ(u.anzeige(), f.anzeige);
  }
  EXPECT_TRUE(u.stack().empty());
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.mit("171", "Funk", 5), "171");
  u.meldung("Die Fakultät ist nur für Zahlen\nkleiner oder gleich 170 berechenbar!", "Taschenrechner Fehler");
}

TEST_F(TaschenrechnerTest, PiPushesXAndTakesTheKeysOwnValue) {
  u.tippe("2");
  u.klicke("Funk", 1);
  EXPECT_EQ(u.anzeige(), "3.141593");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"2."}));
  EXPECT_EQ(u.rechner().stapel().Werte(), (std::vector<double>{2}));
  // X is what the display shows: 3.141593 from here on.
  u.klicke("Funk", 2);
  EXPECT_EQ(u.anzeige(), "9.869607");
  u.klicke("Funk", 1);
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"2.", "9.869607"}));
  u.klicke("Calc", 7);
  EXPECT_EQ(u.anzeige(), "6.728014");
}

TEST_F(TaschenrechnerTest, RefusedArgumentsLeaveStackAndX) {
  struct Fall {
    const char* x;
    const char* knopf;
    int index;
    const char* titel;
    const char* text;
  };
  const Fall faelle[] = {
      {"0", "Calc", 4, "Overflow", "Die Division durch 0 ist nicht definiert"},
      {"0", "Funk", 0, "Taschenrechner Fehler", "Der Kehrwert von 0 ist nicht definiert!"},
      {"-4", "Funk", 3, "Taschenrechner Fehler", "Wurzelziehen kann man nur von positiven Zahlen!"},
      {"-1", "Funk", 5, "Taschenrechner Fehler", "Die Fakultät ist nur für positive Zahlen definiert!"},
      {"0", "Funk", 7, "Taschenrechner-Fehler",
       "Glauben Sie wirklich, daß man heutzutage\nschon die Nullte Wurzel ziehen kann?"},
      {"0", "Log", 0, "Taschenrechner-Fehler", "Der Logarithmus von negativen Zahlen ist nicht definiert!"},
      {"-2", "Log", 2, "Taschenrechner-Fehler", "Der Logarithmus von negativen Zahlen ist nicht definiert!"},
      {"1.5", "Trig", 1, "Taschenrechner-Fehler", "Arcus-Sinus ist nur zwischen -1 und 1 möglich!"},
      {"-1.01", "Trig", 3, "Taschenrechner-Fehler", "Arcus-Cosinus ist nur zwischen -1 und 1 möglich!"},
  };
  u.tippe("9\r");
  for (const Fall& f : faelle) {
    u.meldungen().clear();
    u.text().setText(f.x);
    u.klicke(f.knopf, f.index);
    SCOPED_TRACE(std::string(f.knopf) + std::to_string(f.index));
    u.meldung(f.text, f.titel);
    EXPECT_EQ(u.anzeige(), f.x);
    EXPECT_EQ(u.stack(), (std::vector<std::string>{"9."}));
  }
}

TEST_F(TaschenrechnerTest, TheStackHoldsTwentyOneEntries) {
  for (int i = 1; i <= 21; ++i) u.tippe(std::to_string(i) + "\r");
  EXPECT_EQ(u.stack().size(), 21u);
  EXPECT_EQ(u.stack().front(), "1.");
  u.tippe("22\r");
  ASSERT_EQ(u.stack().size(), 21u);
  EXPECT_EQ(u.stack().front(), "2.") << "the oldest entry is dropped";
  EXPECT_EQ(u.stack().back(), "22.");
  EXPECT_EQ(u.rechner().control("Stack").listIndex(), 20) << "the top stays in view";
  u.klicke("LetztLöschen");
  EXPECT_EQ(u.stack().back(), "21.");
  EXPECT_EQ(u.stack().size(), 20u);
  u.klicke("Löschen");
  EXPECT_TRUE(u.stack().empty());
  u.klicke("LetztLöschen");
  EXPECT_TRUE(u.stack().empty());
  EXPECT_EQ(u.anzeige(), "22") << "clearing the stack leaves X";
}

TEST_F(TaschenrechnerTest, ExchangeSwapsXAndTheTop) {
  u.tippe("1\r2\r3");
  u.klicke("Calc", 2);
  EXPECT_EQ(u.anzeige(), "2.");
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"1.", "3."}));
  u.klicke("Löschen");
  u.klicke("Calc", 2);
  EXPECT_EQ(u.anzeige(), "0.E0") << "an empty stack gives 0";
  EXPECT_EQ(u.stack(), (std::vector<std::string>{"2."}));
}

TEST_F(TaschenrechnerTest, NumberPatternsChangeAtTheirBounds) {
  const std::pair<const char*, const char*> faelle[] = {
      {"99999999.9", "99999999.9"}, {"0.00000325", "0.000003"}, {"0.000001", "1.E-6"},
      {"100000000", "1.E8"},        {"0.0000001", "1.E-7"},     {"0", "0.E0"},
      {"123456789012", "1.2345679E11"}, {"12345678.5", "12345678.5"},
  };
  for (const auto& [x, gezeigt] : faelle) {
    u.text().setText(x);
    u.tippe("\r");
    EXPECT_EQ(u.stack().back(), gezeigt) << x;
    // The same pattern for a result: x times 1.
    u.text().setText("1");
    u.tippe("*");
    EXPECT_EQ(u.anzeige(), gezeigt) << x;
  }
  u.text().setText("123456789");
  u.klicke("Calc", 0);
  EXPECT_EQ(u.anzeige(), "-1.2345679E8");
}

TEST_F(TaschenrechnerTest, SignKeyNegatesXAsAFinishedResult) {
  u.tippe("12 ");
  EXPECT_EQ(u.anzeige(), "-12.") << "the typed number is taken as X";
  EXPECT_TRUE(u.rechner().fertig());
  u.tippe("5");
  EXPECT_EQ(u.anzeige(), "5") << "the next digit starts a new number";
  u.tippe("\r3+ ");
  EXPECT_EQ(u.anzeige(), "-8.");
  u.tippe(" ");
  EXPECT_EQ(u.anzeige(), "8.");
}

TEST_F(TaschenrechnerTest, BackspaceTakesADigitOrTheWholeResult) {
  u.tippe("123\b");
  EXPECT_EQ(u.anzeige(), "12");
  u.klicke("Calc", 1);
  EXPECT_EQ(u.anzeige(), "1");
  u.tippe("\r4+");
  EXPECT_EQ(u.anzeige(), "5.");
  u.tippe("\b");
  EXPECT_EQ(u.anzeige(), "");
  u.tippe("\b7");
  EXPECT_EQ(u.anzeige(), "7");
}

TEST_F(TaschenrechnerTest, OtherKeysAndVariableLetters) {
  u.tippe("1#?=2");
  EXPECT_EQ(u.anzeige(), "12") << "keys that belong in no number are swallowed";
  u.tippe("%");
  EXPECT_EQ(u.anzeige(), "0.12");
  u.tippe("B");
  EXPECT_EQ(u.zustand.Variablen[1], 0.12) << "a capital letter stores X";
  u.tippe("4\r5!");
  EXPECT_EQ(u.anzeige(), "120.");
  u.tippe("b");
  EXPECT_EQ(numbers::ZahlLesen(u.anzeige()), 0.12) << "a small letter fetches the variable";
  u.tippe("^");
  EXPECT_EQ(u.anzeige(), "1.180993") << "4 ^ 0.12";
}

TEST_F(TaschenrechnerTest, ButtonsHandTheFocusBackAndF1ShowsHelp) {
  forms::Form& r = u.rechner();
  r.control("Funk", 2).setFocus();
  u.klicke("Funk", 2);
  EXPECT_EQ(r.activeControl(), &r.control("Text"));
  u.tippe("3");
  r.sendKey(u.text(), forms::keys::F1, 0, 0);
  ASSERT_FALSE(u.dienste.help.topics().empty());
  EXPECT_EQ(u.dienste.help.topics().back(), "Taschenrechner");
}

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

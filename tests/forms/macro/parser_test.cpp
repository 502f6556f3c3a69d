// Reading macro files: words, addresses, keys and commands.
#include <gtest/gtest.h>

#include "forms/keys.h"
#include "forms/macro/parser.h"

namespace kolm::forms::macro {
namespace {

std::vector<std::string> Texts(std::string_view line) {
  std::vector<Word> words;
  std::string error;
  EXPECT_TRUE(SplitWords(line, words, error)) << error;
  std::vector<std::string> texts;
  for (const Word& w : words) texts.push_back(w.text);
  return texts;
}

std::string SplitError(std::string_view line) {
  std::vector<Word> words;
  std::string error;
  EXPECT_FALSE(SplitWords(line, words, error)) << line;
  return error;
}

TEST(MacroWords, BlanksSeparateAndQuotesHoldBlanks) {
  EXPECT_EQ(Texts("setze  Eingabe.PP1Nr\t\"12 A\""), (std::vector<std::string>{"setze", "Eingabe.PP1Nr", "12 A"}));
  EXPECT_EQ(Texts("   "), std::vector<std::string>{});
  std::vector<Word> words;
  std::string error;
  ASSERT_TRUE(SplitWords("antworte Datei \"\"", words, error));
  ASSERT_EQ(words.size(), 3u);
  EXPECT_EQ(words[2].text, "");
  EXPECT_TRUE(words[2].quoted);
  EXPECT_FALSE(words[1].quoted);
}

TEST(MacroWords, EscapesInsideQuotes) {
  EXPECT_EQ(Texts(R"(x "a \"b\" c")"), (std::vector<std::string>{"x", "a \"b\" c"}));
  EXPECT_EQ(Texts(R"(x "C:\\Daten\\P.pkt")"), (std::vector<std::string>{"x", "C:\\Daten\\P.pkt"}));
  EXPECT_EQ(Texts(R"(x "Zeile 1\nZeile 2")"), (std::vector<std::string>{"x", "Zeile 1\nZeile 2"}));
  // Outside quotes a backslash is an ordinary character.
  EXPECT_EQ(Texts(R"(x C:\tmp)"), (std::vector<std::string>{"x", "C:\\tmp"}));
}

TEST(MacroWords, BlanksInsideBracketsStayInTheWord) {
  EXPECT_EQ(Texts("setze Eingabe.Grid[1, 2] \"x\""), (std::vector<std::string>{"setze", "Eingabe.Grid[1, 2]", "x"}));
}

TEST(MacroWords, MalformedQuotingIsAnError) {
  EXPECT_EQ(SplitError("setze A.B \"offen"), "Das Anführungszeichen wird nicht geschlossen");
  EXPECT_EQ(SplitError("setze A.B \"endet mit \\"), "Das Anführungszeichen wird nicht geschlossen");
  EXPECT_EQ(SplitError(R"(setze A.B "a\tb")"), "Unbekannte Escape-Folge \\t (möglich sind \\\" \\\\ \\n)");
  EXPECT_EQ(SplitError(R"(setze A.B "a"b)"), "Nach dem schließenden Anführungszeichen fehlt ein Leerzeichen");
  EXPECT_NE(SplitError(R"(setze A.B a"b")").find("mitten im Wort"), std::string::npos);
}

Address Addr(std::string_view text) {
  Address a;
  std::string error;
  EXPECT_TRUE(ParseAddress(text, a, error)) << text << ": " << error;
  return a;
}

TEST(MacroAddresses, FormControlArrayMemberAndCell) {
  Address form = Addr("Rechnen");
  EXPECT_TRUE(form.isForm());
  EXPECT_EQ(form.form, "Rechnen");

  Address field = Addr("Rechnen.PP1Nr");
  EXPECT_EQ(field.form, "Rechnen");
  EXPECT_EQ(field.control, "PP1Nr");
  EXPECT_EQ(field.index, -1);
  EXPECT_FALSE(field.isCell());

  Address member = Addr("Main.FnLButton(3)");
  EXPECT_EQ(member.control, "FnLButton");
  EXPECT_EQ(member.index, 3);

  Address cell = Addr("PunkteTabelle.Grid[12, 0]");
  EXPECT_EQ(cell.control, "Grid");
  EXPECT_EQ(cell.row, 12);
  EXPECT_EQ(cell.col, 0);
  EXPECT_TRUE(cell.isCell());
  EXPECT_EQ(cell.written, "PunkteTabelle.Grid[12, 0]");

  Address umlaut = Addr("Bestätigung.Schließen");
  EXPECT_EQ(umlaut.form, "Bestätigung");
  EXPECT_EQ(umlaut.control, "Schließen");
}

TEST(MacroAddresses, MalformedAddressesAreRejected) {
  for (const char* bad : {"", ".X", "F.", "F.X(", "F.X(a)", "F.X(-1)", "F.X[1]", "F.X[1,b]", "F.X(1)y",
                          "F.X[1,2", "F.A.B", "F(1)"}) {
    Address a;
    std::string error;
    EXPECT_FALSE(ParseAddress(bad, a, error)) << bad;
    EXPECT_FALSE(error.empty()) << bad;
  }
}

TEST(MacroKeys, OrdinaryCharactersCarryTheirKeyCode) {
  std::vector<KeyStroke> k;
  std::string error;
  ASSERT_TRUE(ParseKeys("a1,Ä", k, error)) << error;
  ASSERT_EQ(k.size(), 4u);
  EXPECT_EQ(k[0], (KeyStroke{'A', 0, U'a'}));
  EXPECT_EQ(k[1], (KeyStroke{'1', 0, U'1'}));
  EXPECT_EQ(k[2], (KeyStroke{keys::KeyCodeOfChar(U','), 0, U','}));
  EXPECT_EQ(k[3], (KeyStroke{keys::KeyCodeOfChar(U'Ä'), keys::ShiftMask, U'Ä'}));
}

TEST(MacroKeys, NamedKeysInBraces) {
  std::vector<KeyStroke> k;
  std::string error;
  ASSERT_TRUE(ParseKeys("{ENTER}{tab}{ESC}{BACKSPACE}{DELETE}{LEFT}{RIGHT}{UP}{DOWN}{PGUP}{PGDN}{HOME}{END}"
                        "{ADD}{SUBTRACT}{F1}{F12}",
                        k, error))
      << error;
  const std::vector<KeyStroke> expected = {
      {keys::Return, 0, U'\r'}, {keys::Tab, 0, U'\t'}, {keys::Escape, 0, 27},  {keys::Back, 0, 8},
      {keys::Delete, 0, 0},     {keys::Left, 0, 0},    {keys::Right, 0, 0},    {keys::Up, 0, 0},
      {keys::Down, 0, 0},       {keys::PageUp, 0, 0},  {keys::PageDown, 0, 0}, {keys::Home, 0, 0},
      {keys::End, 0, 0},        {keys::Add, 0, U'+'},  {keys::Subtract, 0, U'-'}, {keys::F1, 0, 0},
      {keys::F1 + 11, 0, 0}};
  EXPECT_EQ(k, expected);
}

TEST(MacroKeys, ModifiersApplyToTheNextKeyOnly) {
  std::vector<KeyStroke> k;
  std::string error;
  ASSERT_TRUE(ParseKeys("^c+a%{F4}^+{END}x", k, error)) << error;
  const std::vector<KeyStroke> expected = {
      {'C', keys::CtrlMask, 0},                      // Ctrl types no character
      {'A', keys::ShiftMask, U'A'},                  // Shift makes a capital
      {keys::F1 + 3, keys::AltMask, 0},
      {keys::End, keys::CtrlMask | keys::ShiftMask, 0},
      {'X', 0, U'x'}};
  EXPECT_EQ(k, expected);
}

TEST(MacroKeys, BracedCharactersStandForThemselves) {
  std::vector<KeyStroke> k;
  std::string error;
  ASSERT_TRUE(ParseKeys("{^}{+}{%}{{}{}}", k, error)) << error;
  ASSERT_EQ(k.size(), 5u);
  EXPECT_EQ(k[0].ch, U'^');
  EXPECT_EQ(k[1], (KeyStroke{keys::KeyCodeOfChar(U'+'), 0, U'+'}));
  EXPECT_EQ(k[2].ch, U'%');
  EXPECT_EQ(k[3].ch, U'{');
  EXPECT_EQ(k[4].ch, U'}');
  for (const KeyStroke& s : k) EXPECT_EQ(s.shift, 0);
}

TEST(MacroKeys, LineBreakInTheTextIsEnter) {
  std::vector<KeyStroke> k;
  std::string error;
  ASSERT_TRUE(ParseKeys("1\n", k, error));
  ASSERT_EQ(k.size(), 2u);
  EXPECT_EQ(k[1], (KeyStroke{keys::Return, 0, U'\r'}));
}

TEST(MacroKeys, MalformedKeysAreErrors) {
  std::vector<KeyStroke> k;
  std::string error;
  EXPECT_FALSE(ParseKeys("{ENTR}", k, error));
  EXPECT_NE(error.find("Unbekannte Taste {ENTR}"), std::string::npos);
  EXPECT_FALSE(ParseKeys("{F13}", k, error));
  EXPECT_FALSE(ParseKeys("{F0}", k, error));
  EXPECT_FALSE(ParseKeys("ab{ENTER", k, error));
  EXPECT_NE(error.find("fehlt \"}\""), std::string::npos);
  EXPECT_FALSE(ParseKeys("abc^", k, error));
  EXPECT_NE(error.find("fehlt die Taste"), std::string::npos);
  EXPECT_FALSE(ParseKeys("^^a", k, error));
}

TEST(MacroScript, CommentsAndBlankLinesAreSkippedAndLinesCounted) {
  const Script s = ParseMacro("\xEF\xBB\xBF# Kopf\r\n\r\n  klicke Main.FnLButton(1)\r\n   # eingerückt\n"
                              "warte 10",
                              "a.makro");
  ASSERT_TRUE(s.ok());
  ASSERT_EQ(s.commands.size(), 2u);
  EXPECT_EQ(s.commands[0].verb, Verb::Klicke);
  EXPECT_EQ(s.commands[0].line, 3);
  EXPECT_EQ(s.commands[0].file, "a.makro");
  EXPECT_EQ(s.commands[0].source, "klicke Main.FnLButton(1)");
  EXPECT_EQ(s.commands[1].verb, Verb::Warte);
  EXPECT_EQ(s.commands[1].line, 5);
  EXPECT_EQ(s.commands[1].numbers, std::vector<int>{10});
}

TEST(MacroScript, CommandWordsIgnoreCaseAndAcceptUmlauts) {
  const Script s = ParseMacro("Prüfe Main \"Kolm\"\nÖFFNE Eingabe\nwähle Eingabe.Auswahl 1\nmenü MnuPunkte\n"
                              "schließe Eingabe\nprüfe-keine-meldung",
                              "a.makro");
  ASSERT_TRUE(s.ok()) << s.errors[0].message;
  std::vector<Verb> verbs;
  for (const Command& c : s.commands) verbs.push_back(c.verb);
  EXPECT_EQ(verbs, (std::vector<Verb>{Verb::Pruefe, Verb::Oeffne, Verb::Waehle, Verb::Menue, Verb::Schliesse,
                                      Verb::PruefeKeineMeldung}));
  EXPECT_EQ(s.commands[3].addresses[0].form, "Main");
  EXPECT_EQ(s.commands[3].addresses[0].control, "MnuPunkte");
}

TEST(MacroScript, ArgumentsAreTakenApart) {
  const Script s = ParseMacro(
      "pruefe Eingabe.Liste Selected(2) wahr\n"
      "pruefe Eingabe.Grid Rows 5\n"
      "pruefe Eingabe.Art(1) Value -1\n"
      "pruefe Eingabe.PP1Nr \"12\"\n"
      "pruefe-punkt 7 100,5 200.25 -3\n"
      "pruefe-punkt 8 1 2 3 0.01\n"
      "pruefe-punkt 9 LEER\n"
      "timer Eingabe.Uhr\n"
      "markiere Eingabe.Grid 1 1 2 2\n"
      "tippe Eingabe.PP1Nr \"1{ENTER}\"\n",
      "a.makro");
  ASSERT_TRUE(s.ok()) << s.errors[0].message;
  const auto& c = s.commands;
  EXPECT_EQ(c[0].property, Prop::Selected);
  EXPECT_EQ(c[0].item, 2);
  EXPECT_EQ(c[0].texts, std::vector<std::string>{"Wahr"});
  EXPECT_EQ(c[1].property, Prop::Rows);
  EXPECT_EQ(c[2].texts, std::vector<std::string>{"-1"});
  EXPECT_EQ(c[3].property, Prop::None);
  EXPECT_EQ(c[3].texts, std::vector<std::string>{"12"});
  EXPECT_DOUBLE_EQ(c[4].coords[0], 100.5);
  EXPECT_DOUBLE_EQ(c[4].coords[1], 200.25);
  EXPECT_DOUBLE_EQ(c[4].coords[2], -3);
  EXPECT_DOUBLE_EQ(c[4].tolerance, 0.0005);
  EXPECT_EQ(c[4].coordsWritten[0], "100,5");
  EXPECT_DOUBLE_EQ(c[5].tolerance, 0.01);
  EXPECT_TRUE(c[6].expectEmpty);
  EXPECT_EQ(c[7].numbers, std::vector<int>{1});
  EXPECT_EQ(c[8].numbers, (std::vector<int>{1, 1, 2, 2}));
  EXPECT_EQ(c[9].keys.size(), 2u);
}

TEST(MacroScript, AnswersAreSortedByTheBoxesTheyFit) {
  const Script s = ParseMacro("antworte ja\nantworte OK\nantworte OK \"12\"\nantworte Abbrechen\n"
                              "antworte Datei \"/tmp/a.pkt\"\nantworte Datei \"\"\nantworte Wiederholen",
                              "a.makro");
  ASSERT_TRUE(s.ok()) << s.errors[0].message;
  const auto& c = s.commands;
  EXPECT_EQ(c[0].reply.kind, Reply::Kind::Message);
  EXPECT_EQ(c[0].reply.word, "Ja");
  EXPECT_EQ(c[1].reply.kind, Reply::Kind::Message);
  EXPECT_EQ(c[2].reply.kind, Reply::Kind::Input);
  EXPECT_EQ(c[2].reply.text, "12");
  EXPECT_EQ(c[3].reply.kind, Reply::Kind::Either);
  EXPECT_EQ(c[4].reply.kind, Reply::Kind::File);
  EXPECT_EQ(c[4].reply.text, "/tmp/a.pkt");
  EXPECT_EQ(c[5].reply.text, "");
  EXPECT_EQ(c[6].reply.word, "Wiederholen");
}

TEST(MacroScript, EverySyntaxErrorIsReportedWithItsLine) {
  const Script s = ParseMacro("# Kopf\n"
                              "klicke Main.FnLButton(1)\n"       // 2: fine
                              "klick Main.FnLButton(1)\n"        // 3: unknown command
                              "setze Eingabe.PP1Nr\n"            // 4: too few words
                              "setze Eingabe.PP1Nr \"a\" b\n"    // 5: too many
                              "waehle Eingabe.Liste eins\n"      // 6: not a number
                              "pruefe Eingabe.PP1Nr Farbe \"x\"\n"  // 7: unknown property
                              "pruefe Eingabe.PP1Nr Enabled ja\n"   // 8: not a truth value
                              "antworte Vielleicht\n"            // 9
                              "antworte Ja \"x\"\n"              // 10
                              "tippe Eingabe.PP1Nr \"{ENTR}\"\n"  // 11
                              "klicke Eingabe\n"                 // 12: no control
                              "oeffne Eingabe.PP1Nr\n"           // 13: not a form
                              "setze Eingabe.PP1Nr \"offen\n"    // 14
                              "pruefe-punkt 1 2 3\n"             // 15
                              "pruefe Eingabe.Liste List \"x\"\n"  // 16: index missing
                              "menue Eingabe.PP1Nr\n"            // 17: not Main
                              "waehle Eingabe.Grid[1,1] 0\n",    // 18: no cell here
                              "fehler.makro");
  std::vector<int> lines;
  for (const SyntaxError& e : s.errors) lines.push_back(e.line);
  EXPECT_EQ(lines, (std::vector<int>{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18}));
  ASSERT_EQ(s.errors.size(), 16u);
  EXPECT_EQ(s.errors[0].message, "Unbekannter Befehl \"klick\"");
  EXPECT_EQ(s.errors[1].message, "setze: Zu wenige Angaben; so heißt es: setze FORMULAR.FELD \"TEXT\"");
  EXPECT_EQ(s.errors[3].message, "waehle: Der Listenindex muss eine ganze Zahl ab 0 sein, nicht \"eins\"");
  EXPECT_EQ(s.errors[5].message, "pruefe: Enabled ist Wahr oder Falsch, nicht \"ja\"");
  EXPECT_EQ(s.errors[10].message, "oeffne: Hier steht ein Formularname, keine Adresse eines Steuerelements: Eingabe.PP1Nr");
  ASSERT_EQ(s.commands.size(), 1u);
  EXPECT_EQ(s.commands[0].line, 2);
}

}  // namespace
}  // namespace kolm::forms::macro

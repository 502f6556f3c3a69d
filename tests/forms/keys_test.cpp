// Keys as the user types them: handlers first, then the field edits.
#include <gtest/gtest.h>

#include <algorithm>

#include "forms/keys.h"
#include "test_forms.h"

namespace kolm::forms::testing {
namespace {

void Type(Form& form, Control& c, const std::string& text) {
  for (char ch : text) form.sendKey(c, keys::KeyCodeOfChar(static_cast<unsigned char>(ch)), 0, static_cast<unsigned char>(ch));
}

TEST(Typing, CharactersPassKeyDownAndKeyPressAndLandInTheField) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& nr = e.control("PP1Nr");
  Type(e, nr, "12");
  EXPECT_EQ(nr.text(), "12");
  EXPECT_EQ(e.log, (std::vector<std::string>{"GotFocus PP1Nr", "KeyDown 49", "KeyPress 49",
                                             "KeyDown 50", "KeyPress 50"}));
}

TEST(Typing, AHandlerCanSwallowOrReplaceACharacter) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& nr = e.control("PP1Nr");
  Type(e, nr, "1x,5");
  EXPECT_EQ(nr.text(), "1.5");
}

TEST(Typing, UmlautsAreOneCharacter) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& p = e.control("Param", 0);
  e.sendKey(p, 0, 0, U'ä');
  e.sendKey(p, 0, 0, U'ß');
  e.sendKey(p, keys::Back, 0, 8);
  EXPECT_EQ(p.text(), "ä");
}

TEST(Typing, BackspaceDeleteAndCaretMovement) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& p = e.control("Param", 0);
  Type(e, p, "12345");
  e.sendKey(p, keys::Home, 0, 0);
  e.sendKey(p, keys::Delete, 0, 0);
  e.sendKey(p, keys::End, 0, 0);
  e.sendKey(p, keys::Left, 0, 0);
  e.sendKey(p, keys::Back, 0, 8);
  EXPECT_EQ(p.text(), "235");
  p.setSelection(0, 2);
  Type(e, p, "9");
  EXPECT_EQ(p.text(), "95") << "typing replaces the selection";
}

TEST(Typing, EnterPressesTheDefaultButtonWithoutReachingTheField) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  Control& nr = e.control("PP1Nr");
  e.sendKey(nr, keys::Return, 0, '\r');
  EXPECT_EQ(e.log, (std::vector<std::string>{"GotFocus PP1Nr", "Berechnen"}));
}

TEST(Typing, EscapePressesTheCancelButton) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.sendKey(e.control("Param", 0), keys::Escape, 0, 27);
  EXPECT_EQ(f.forms.FormGeladen("Eingabe"), -1) << "the cancel button closes the dialog";
}

TEST(Typing, F1OpensTheFormsHelpTopicFromAnyControlOrPassesOnWithoutOne) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.sendKey(e.control("PP1Nr"), keys::F1, 0, 0);
  EXPECT_TRUE(f.scripted.help.topics().empty()) << "no topic: nothing opens";
  EXPECT_EQ(e.log.back(), "KeyDown 112") << "the key reaches the field's handler";

  e.setHelpTopic("Vorwärtsschnitt");
  e.log.clear();
  e.sendKey(e.control("PP1Nr"), keys::F1, 0, 0);
  e.sendKey(e.control("Berechnen"), keys::F1, 0, 0);
  EXPECT_EQ(f.scripted.help.topics(), (std::vector<std::string>{"Vorwärtsschnitt", "Vorwärtsschnitt"}));
  EXPECT_EQ(std::count(e.log.begin(), e.log.end(), "KeyDown 112"), 0) << "the form took the key";
}

TEST(Typing, MovingTheDefaultButtonMovesWhatEnterPresses) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("Schließen").setDefault(true);
  EXPECT_FALSE(e.control("Berechnen").isDefault());
  EXPECT_EQ(e.defaultButton(), e.find("Schließen"));
}

TEST(Focus, TabWalksTheFieldsInDeclarationOrder) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("PP1Nr").setFocus();
  e.sendKey(e.control("PP1Nr"), keys::Tab, 0, '\t');
  EXPECT_EQ(e.activeControl(), e.find("Param", 0));
  EXPECT_EQ(e.log.back(), "LostFocus PP1Nr");
  e.sendKey(e.control("Param", 0), keys::Tab, keys::ShiftMask, '\t');
  EXPECT_EQ(e.activeControl(), e.find("PP1Nr"));
  EXPECT_EQ(e.control("PP1Nr").text(), "") << "Tab types nothing";
}

TEST(Focus, InvisibleAndDisabledControlsAreSkipped) {
  FormsFixture f;
  Eingabe& e = f.eingabe();
  e.control("Param", 0).setEnabled(false);
  e.control("Param", 1).setVisible(false);
  e.control("PP1Nr").setFocus();
  e.moveFocus(false);
  EXPECT_EQ(e.activeControl(), e.find("Param", 2));
}

TEST(Keys, CharactersMapToTheirKeyCodes) {
  EXPECT_EQ(keys::KeyCodeOfChar('a'), 'A');
  EXPECT_EQ(keys::KeyCodeOfChar('7'), '7');
  EXPECT_EQ(keys::KeyCodeOfChar(' '), keys::Space);
  EXPECT_EQ(keys::KeyCodeOfChar('\r'), keys::Return);
}

}  // namespace
}  // namespace kolm::forms::testing

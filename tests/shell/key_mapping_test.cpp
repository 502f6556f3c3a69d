#include "shell/key_mapping.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

#include "forms/keys.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

namespace keys = forms::keys;

KeyStroke Map(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
  test::App();  // key events belong to the application's keyboard
  const QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
  return MapKey(event);
}

TEST(KeyMapping, EditingKeysGiveTheirClassicCodesAndCharacters) {
  const KeyStroke enter = Map(Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(enter.keyCode, 13);
  EXPECT_EQ(enter.ch, U'\r');
  EXPECT_EQ(Map(Qt::Key_Enter, Qt::KeypadModifier, "\r").keyCode, 13);
  const KeyStroke esc = Map(Qt::Key_Escape, Qt::NoModifier, "\x1b");
  EXPECT_EQ(esc.keyCode, 27);
  EXPECT_EQ(esc.ch, 27u);
  const KeyStroke back = Map(Qt::Key_Backspace, Qt::NoModifier, "\b");
  EXPECT_EQ(back.keyCode, 8);
  EXPECT_EQ(back.ch, 8u);
  EXPECT_EQ(Map(Qt::Key_Tab, Qt::NoModifier, "\t").keyCode, 9);
  const KeyStroke backTab = Map(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(backTab.keyCode, 9);
  EXPECT_EQ(backTab.shift, keys::ShiftMask);
  // Delete types no character, even where the platform sends DEL as text.
  const KeyStroke del = Map(Qt::Key_Delete, Qt::NoModifier, QString(QChar(127)));
  EXPECT_EQ(del.keyCode, 46);
  EXPECT_EQ(del.ch, 0u);
}

TEST(KeyMapping, CursorAndFunctionKeys) {
  EXPECT_EQ(Map(Qt::Key_Left).keyCode, 37);
  EXPECT_EQ(Map(Qt::Key_Up).keyCode, 38);
  EXPECT_EQ(Map(Qt::Key_Right).keyCode, 39);
  EXPECT_EQ(Map(Qt::Key_Down).keyCode, 40);
  EXPECT_EQ(Map(Qt::Key_PageUp).keyCode, 33);
  EXPECT_EQ(Map(Qt::Key_PageDown).keyCode, 34);
  EXPECT_EQ(Map(Qt::Key_Home).keyCode, 36);
  EXPECT_EQ(Map(Qt::Key_End).keyCode, 35);
  EXPECT_EQ(Map(Qt::Key_F1).keyCode, 112);
  EXPECT_EQ(Map(Qt::Key_F12).keyCode, 123);
  EXPECT_EQ(Map(Qt::Key_Down).ch, 0u);
}

TEST(KeyMapping, NumpadPlusAndMinusDifferFromTheMainKeys) {
  const KeyStroke plus = Map(Qt::Key_Plus, Qt::KeypadModifier, "+");
  EXPECT_EQ(plus.keyCode, 107);
  EXPECT_EQ(plus.ch, U'+');
  EXPECT_EQ(Map(Qt::Key_Minus, Qt::KeypadModifier, "-").keyCode, 109);
  EXPECT_EQ(Map(Qt::Key_5, Qt::KeypadModifier, "5").keyCode, 101);
  EXPECT_EQ(Map(Qt::Key_Plus, Qt::NoModifier, "+").keyCode, 187);
  EXPECT_EQ(Map(Qt::Key_Minus, Qt::NoModifier, "-").keyCode, 189);
}

TEST(KeyMapping, LettersDigitsAndUmlauts) {
  const KeyStroke a = Map(Qt::Key_A, Qt::NoModifier, "a");
  EXPECT_EQ(a.keyCode, 'A');
  EXPECT_EQ(a.ch, U'a');
  EXPECT_EQ(a.shift, 0);
  const KeyStroke shiftA = Map(Qt::Key_A, Qt::ShiftModifier, "A");
  EXPECT_EQ(shiftA.keyCode, 'A');
  EXPECT_EQ(shiftA.ch, U'A');
  EXPECT_EQ(shiftA.shift, keys::ShiftMask);
  EXPECT_EQ(Map(Qt::Key_7, Qt::NoModifier, "7").keyCode, '7');
  const KeyStroke ae = Map(Qt::Key_Adiaeresis, Qt::NoModifier, QString::fromUtf8("ä"));
  EXPECT_EQ(ae.ch, U'ä');
  EXPECT_EQ(ae.keyCode, 222);
  EXPECT_EQ(Map(Qt::Key_Comma, Qt::NoModifier, ",").keyCode, 188);
}

TEST(KeyMapping, ModifierBits) {
  EXPECT_EQ(ShiftBits(Qt::ShiftModifier), keys::ShiftMask);
  EXPECT_EQ(ShiftBits(Qt::ControlModifier), keys::CtrlMask);
  EXPECT_EQ(ShiftBits(Qt::AltModifier), keys::AltMask);
  EXPECT_EQ(ShiftBits(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
  EXPECT_EQ(ShiftBits(Qt::KeypadModifier), 0);
  const KeyStroke ctrlC = Map(Qt::Key_C, Qt::ControlModifier, QString(QChar(3)));
  EXPECT_EQ(ctrlC.keyCode, 'C');
  EXPECT_EQ(ctrlC.shift, keys::CtrlMask);
}

}  // namespace
}  // namespace kolm::shell

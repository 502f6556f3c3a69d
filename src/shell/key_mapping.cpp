#include "shell/key_mapping.h"

#include <QKeyEvent>

#include "forms/keys.h"

namespace kolm::shell {

namespace keys = forms::keys;

int ShiftBits(Qt::KeyboardModifiers modifiers) {
  int bits = 0;
  if (modifiers & Qt::ShiftModifier) bits |= keys::ShiftMask;
  if (modifiers & Qt::ControlModifier) bits |= keys::CtrlMask;
  if (modifiers & Qt::AltModifier) bits |= keys::AltMask;
  return bits;
}

int KeyCodeOf(int qtKey, Qt::KeyboardModifiers modifiers, char32_t typed) {
  const bool keypad = modifiers & Qt::KeypadModifier;
  if (keypad) {
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return keys::Numpad0 + (qtKey - Qt::Key_0);
    switch (qtKey) {
      case Qt::Key_Plus: return keys::Add;
      case Qt::Key_Minus: return keys::Subtract;
      case Qt::Key_Asterisk: return keys::Multiply;
      case Qt::Key_Slash: return keys::Divide;
      case Qt::Key_Comma:
      case Qt::Key_Period: return keys::Decimal;
      default: break;
    }
  }
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 'A' + (qtKey - Qt::Key_A);
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return '0' + (qtKey - Qt::Key_0);
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return keys::F1 + (qtKey - Qt::Key_F1);
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return keys::Return;
    case Qt::Key_Escape: return keys::Escape;
    case Qt::Key_Backspace: return keys::Back;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return keys::Tab;
    case Qt::Key_Delete: return keys::Delete;
    case Qt::Key_Insert: return keys::Insert;
    case Qt::Key_Left: return keys::Left;
    case Qt::Key_Up: return keys::Up;
    case Qt::Key_Right: return keys::Right;
    case Qt::Key_Down: return keys::Down;
    case Qt::Key_PageUp: return keys::PageUp;
    case Qt::Key_PageDown: return keys::PageDown;
    case Qt::Key_Home: return keys::Home;
    case Qt::Key_End: return keys::End;
    case Qt::Key_Space: return keys::Space;
    case Qt::Key_Shift: return keys::Shift;
    case Qt::Key_Control: return keys::Control;
    case Qt::Key_Alt: return 18;
    // The German keys as a Windows keyboard reports them.
    case Qt::Key_Adiaeresis: return 222;
    case Qt::Key_Odiaeresis: return 192;
    case Qt::Key_Udiaeresis: return 186;
    case Qt::Key_ssharp: return 219;
    default: break;
  }
  if (typed) return keys::KeyCodeOfChar(typed);
  if (qtKey > 0 && qtKey < 0x80) return keys::KeyCodeOfChar(static_cast<char32_t>(qtKey));
  return 0;
}

KeyStroke MapKey(const QKeyEvent& event) {
  KeyStroke k;
  k.shift = ShiftBits(event.modifiers());
  const int key = event.key();
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter: k.ch = U'\r'; break;
    case Qt::Key_Escape: k.ch = 27; break;
    case Qt::Key_Backspace: k.ch = 8; break;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: k.ch = U'\t'; break;
    default: {
      const QList<uint> text = event.text().toUcs4();
      // Delete and the cursor keys type nothing, whatever text they carry.
      if (!text.isEmpty() && text.front() != 127 && key != Qt::Key_Delete) k.ch = text.front();
    }
  }
  k.keyCode = KeyCodeOf(key, event.modifiers(), k.ch >= 32 ? k.ch : 0);
  return k;
}

}  // namespace kolm::shell

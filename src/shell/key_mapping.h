#pragma once
#include <Qt>

class QKeyEvent;

namespace kolm::shell {

// One key as the classic key handlers see it.
struct KeyStroke {
  int keyCode = 0;   // virtual key code (forms/keys.h), 0 when there is none
  int shift = 0;     // ShiftMask, CtrlMask, AltMask bits
  char32_t ch = 0;   // character typed, 0 for keys that type none
};

int ShiftBits(Qt::KeyboardModifiers modifiers);
// Virtual key code of a Qt key; text is the key's typed text, used for the
// punctuation keys whose code depends on the character.
int KeyCodeOf(int qtKey, Qt::KeyboardModifiers modifiers, char32_t typed);
KeyStroke MapKey(const QKeyEvent& event);

}  // namespace kolm::shell

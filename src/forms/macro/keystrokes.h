#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace kolm::forms::macro {

// One key as Form::sendKey takes it.
struct KeyStroke {
  int keyCode = 0;
  int shift = 0;     // keys::ShiftMask, CtrlMask, AltMask
  char32_t ch = 0;   // the character it types, 0 for none
  bool operator==(const KeyStroke&) const = default;
};

// Reads the keys of a `tippe` text: characters as they stand, {ENTER},
// {TAB}, ... {F12} for named keys, ^ + % before a key for Ctrl, Shift, Alt,
// and {^} {+} {%} {{} {}} for those characters themselves. False with a
// German message when the text is malformed.
bool ParseKeys(std::string_view text, std::vector<KeyStroke>& keys, std::string& error);

// The key of an ordinary character typed without modifiers.
KeyStroke KeyOfChar(char32_t c);

}  // namespace kolm::forms::macro

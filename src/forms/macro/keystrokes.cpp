#include "forms/macro/keystrokes.h"

#include <cctype>

#include "forms/keys.h"
#include "forms/utf8.h"

namespace kolm::forms::macro {

namespace {

struct NamedKey {
  const char* name;
  int keyCode;
  char32_t ch;
};

// Enter, Esc and Backspace produce a KeyPress of their own, as on Windows;
// the numeric keypad's plus and minus type their character.
constexpr NamedKey kNamedKeys[] = {
    {"ENTER", keys::Return, U'\r'},   {"TAB", keys::Tab, U'\t'},
    {"ESC", keys::Escape, 27},        {"BACKSPACE", keys::Back, 8},
    {"DELETE", keys::Delete, 0},      {"LEFT", keys::Left, 0},
    {"RIGHT", keys::Right, 0},        {"UP", keys::Up, 0},
    {"DOWN", keys::Down, 0},          {"PGUP", keys::PageUp, 0},
    {"PGDN", keys::PageDown, 0},      {"HOME", keys::Home, 0},
    {"END", keys::End, 0},            {"ADD", keys::Add, U'+'},
    {"SUBTRACT", keys::Subtract, U'-'},
};

bool IsUpperLetter(char32_t c) {
  return (c >= U'A' && c <= U'Z') || c == U'Ä' || c == U'Ö' || c == U'Ü';
}

char32_t ToUpper(char32_t c) {
  if (c >= U'a' && c <= U'z') return c - U'a' + U'A';
  if (c == U'ä') return U'Ä';
  if (c == U'ö') return U'Ö';
  if (c == U'ü') return U'Ü';
  return c;
}

bool LookUpName(const std::string& name, KeyStroke& key) {
  std::string upper;
  for (char c : name) upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  for (const NamedKey& k : kNamedKeys)
    if (upper == k.name) {
      key = {k.keyCode, 0, k.ch};
      return true;
    }
  if (upper.size() >= 2 && upper.size() <= 3 && upper[0] == 'F') {
    int n = 0;
    for (size_t i = 1; i < upper.size(); ++i) {
      if (!std::isdigit(static_cast<unsigned char>(upper[i]))) return false;
      n = n * 10 + (upper[i] - '0');
    }
    if (n >= 1 && n <= 12 && upper[1] != '0') {
      key = {keys::F1 + n - 1, 0, 0};
      return true;
    }
  }
  return false;
}

}  // namespace

KeyStroke KeyOfChar(char32_t c) {
  if (c == U'\n' || c == U'\r') return {keys::Return, 0, U'\r'};
  if (c == U'\t') return {keys::Tab, 0, U'\t'};
  // A capital letter is typed with Shift held.
  return {keys::KeyCodeOfChar(c), IsUpperLetter(c) ? keys::ShiftMask : 0, c};
}

bool ParseKeys(std::string_view text, std::vector<KeyStroke>& out, std::string& error) {
  out.clear();
  int mods = 0;
  size_t i = 0;
  while (i < text.size()) {
    const size_t start = i;
    char32_t c = utf8::Next(text, i);
    if (c == U'^' || c == U'+' || c == U'%') {
      const int bit = c == U'^' ? keys::CtrlMask : c == U'+' ? keys::ShiftMask : keys::AltMask;
      if (mods & bit) {
        error = "Umschalttaste \"" + std::string(text.substr(start, 1)) + "\" doppelt vor einer Taste";
        return false;
      }
      mods |= bit;
      continue;
    }
    KeyStroke key;
    bool named = false;
    if (c == U'{') {
      // "{}}" is the closing brace itself.
      size_t close = text.find('}', i + (i < text.size() && text[i] == '}' ? 1 : 0));
      if (close == std::string_view::npos) {
        error = "Zu \"{\" fehlt \"}\" (eine geschweifte Klammer selbst schreibt man {{})";
        return false;
      }
      const std::string inner(text.substr(i, close - i));
      i = close + 1;
      size_t pos = 0;
      if (!inner.empty()) utf8::Next(inner, pos);
      if (!inner.empty() && pos == inner.size()) {
        c = utf8::Next(inner, pos = 0);  // one character in braces stands for itself
      } else if (LookUpName(inner, key)) {
        named = true;
      } else {
        error = "Unbekannte Taste {" + inner +
                "}; bekannt sind {ENTER} {TAB} {ESC} {BACKSPACE} {DELETE} {LEFT} {RIGHT} {UP} "
                "{DOWN} {PGUP} {PGDN} {HOME} {END} {ADD} {SUBTRACT} {F1} bis {F12}";
        return false;
      }
    }
    if (!named) key = KeyOfChar(c);
    if (mods & (keys::CtrlMask | keys::AltMask)) {
      // With Ctrl or Alt a key types nothing; a letter is its key only.
      key.shift = mods;
      key.ch = 0;
      if (key.keyCode == 0) key.keyCode = keys::KeyCodeOfChar(ToUpper(c));
    } else if (mods & keys::ShiftMask) {
      key.shift |= keys::ShiftMask;
      if (!named) key.ch = ToUpper(key.ch);
    }
    out.push_back(key);
    mods = 0;
  }
  if (mods != 0) {
    error = "Nach ^, + oder % fehlt die Taste (die Zeichen selbst schreibt man {^}, {+}, {%})";
    return false;
  }
  return true;
}

}  // namespace kolm::forms::macro

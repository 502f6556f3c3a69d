#pragma once
// Letter keys in number fields: a capital letter stores the field's value in
// that letter's variable, a small letter puts the variable's value into the
// field. Both swallow the key.
#include <string>

#include "core/state/zustand.h"

namespace kolm::points {

enum class VariablenWirkung {
  Keine,        // any other key: it passes unchanged
  Gespeichert,  // the field's value went into a variable (the key is swallowed)
  Eingesetzt,   // the field now holds a variable's value (the key is swallowed)
};

// keyAscii: the character of the key press, set to 0 when swallowed. text:
// the field's text, replaced on a small letter. The caller puts the text
// back into its field; on Gespeichert it refreshes the variable grid.
VariablenWirkung VariablenTaste(core::Zustand& z, int& keyAscii, std::string& text);

// The letter's index 0 .. 25 of a key, -1 for other keys.
int VariablenIndexVonTaste(int keyAscii);

}  // namespace kolm::points

#pragma once
// Typing a number into a grid cell, as the point grid and the variable grid
// do it: they have no editor of their own, the key handler builds the text.
#include <string>

namespace kolm::points {

// Applies one typed character (KeyPress) to the cell text: digits are
// appended, "," or "." only once, "-" toggles a leading minus, Backspace
// removes the last character; all other keys are ignored. True when the
// text changed. Enter and the arrow keys, which end a cell, are the
// caller's (KeyDown).
bool ZellenTaste(std::string& text, int keyAscii);

// The value as a cell shows it while it is edited: "#######" for a whole
// number (so 0 shows empty), "######0.######" otherwise.
std::string ZellenBearbeitungsText(double wert);

}  // namespace kolm::points

#pragma once

// Virtual key codes and shift bits as the classic key handlers know them.
namespace kolm::forms::keys {

constexpr int Back = 8, Tab = 9, Return = 13, Shift = 16, Control = 17, Escape = 27, Space = 32;
constexpr int PageUp = 33, PageDown = 34, End = 35, Home = 36;
constexpr int Left = 37, Up = 38, Right = 39, Down = 40;
constexpr int Insert = 45, Delete = 46;
constexpr int Add = 107, Subtract = 109, Multiply = 106, Divide = 111, Decimal = 110;
constexpr int F1 = 112;  // F1 .. F12 are 112 .. 123
constexpr int Numpad0 = 96;

constexpr int ShiftMask = 1, CtrlMask = 2, AltMask = 4;

// Key code of a character typed on a German keyboard; letters map to their
// upper case, digits to '0'..'9'.
int KeyCodeOfChar(char32_t c);

}  // namespace kolm::forms::keys

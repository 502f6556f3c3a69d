#pragma once
#include <functional>

namespace kolm::forms {

class Control;

enum class Event {
  Change,
  Click,
  DblClick,
  KeyPress,
  KeyDown,
  KeyUp,
  GotFocus,
  LostFocus,
  DragDrop,   // something was dropped on the control; args.source is where it came from
  DragStart,  // the user began to drag from the control
  Timer,
  SpinUp,
  SpinDown,
  Scroll,
  RowColChange,  // a grid's current cell moved
  SelChange,     // a grid's selection changed
  MouseDown,
  MouseUp,
  MouseMove,
};

// Arguments of an event. Key handlers may change keyCode or keyAscii; 0
// swallows the key, as the classic handlers do.
struct EventArgs {
  int index = -1;      // position in a control array, -1 for a single control
  int keyCode = 0;     // virtual key code (keys.h)
  int keyAscii = 0;    // character of a KeyPress, a Unicode code point
  int shift = 0;       // ShiftMask bits
  int button = 0;      // mouse button: 1 left, 2 right, 4 middle
  double x = 0, y = 0; // mouse position in the control's own scale
  int row = -1, col = -1;
  Control* source = nullptr;  // drag source of a DragDrop
  bool cancel = false;
};

using Handler = std::function<void(Control&, EventArgs&)>;

}  // namespace kolm::forms

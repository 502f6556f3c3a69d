#pragma once
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/control.h"
#include "forms/events.h"
#include "forms/services.h"

namespace kolm::forms {

class Forms;

// A view of a form (the Qt shell's window, a test's recorder). It mirrors
// what the model says changed.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void propertyChanged(Control& control, Property property, int row, int col) = 0;
  virtual void formCaptionChanged() {}
  // The form is being unloaded; an observer lets go of it here, as the form
  // object itself goes away soon after.
  virtual void formUnloaded() {}
};

// A dialog of the system as a model: its named controls, their handlers and
// its life from load to unload. A form class declares its controls in its
// constructor and wires its handlers there.
class Form {
 public:
  Form(Forms& forms, std::string name, std::string caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  // The help topic F1 opens while the form has the focus; none when empty.
  const std::string& helpTopic() const { return helpTopic_; }
  void setHelpTopic(std::string topic) { helpTopic_ = std::move(topic); }
  // What F1 does: the form's topic in the help window.
  void showHelp();
  Forms& forms() const { return forms_; }
  Services& services() const;

  // -- declaration
  Control& add(ControlKind kind, std::string name, int index = -1);
  // Handler of an event of a control or of every member of a control array.
  void on(std::string_view controlName, Event event, Handler handler);
  // Size the generic view gives the form when no position is stored.
  void setPreferredSize(int widthPx, int heightPx) { preferredWidth_ = widthPx; preferredHeight_ = heightPx; }
  int preferredWidth() const { return preferredWidth_; }
  int preferredHeight() const { return preferredHeight_; }
  // Fixed-size dialogs do not stretch their fields.
  void setResizable(bool on) { resizable_ = on; }
  bool resizable() const { return resizable_; }

  // -- lookup; names compare without regard to case and umlaut spelling
  Control* find(std::string_view name, int index = -1) const;
  Control& control(std::string_view name, int index = -1) const;  // must exist
  std::vector<Control*> array(std::string_view name) const;        // members by index
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

  // Triggers a hidden command (an invisible button) by name; false when the
  // form has no such command.
  bool trigger(std::string_view command);

  // -- focus and keys
  Control* activeControl() const { return active_; }
  void setActiveControl(Control* control);  // raises LostFocus, GotFocus
  Control* defaultButton() const;
  Control* cancelButton() const;
  // One key as the user types it: default and cancel buttons, KeyDown,
  // KeyPress, the control's own editing, KeyUp.
  void sendKey(Control& control, int keyCode, int shift, char32_t ch);

  // The steps of sendKey for a view that edits natively. handleKey runs the
  // default and cancel buttons and the KeyDown and KeyPress handlers; the
  // view then lets its widget edit (or calls defaultKeyAction) unless the key
  // was consumed, and finishes with keyUp.
  struct KeyResult {
    bool consumed = false;  // a button took the key, or a handler swallowed it
    int keyCode = 0;        // as the handlers left them
    char32_t ch = 0;
  };
  KeyResult handleKey(Control& control, int keyCode, int shift, char32_t ch);
  void defaultKeyAction(Control& control, int keyCode, int shift, char32_t ch);
  void keyUp(Control& control, int keyCode, int shift);
  // Focus to the next (or previous) control that can take it.
  void moveFocus(bool backwards);

  // -- life
  bool loaded() const { return loaded_; }
  bool shown() const { return shown_; }
  bool modal() const { return modal_; }
  WindowPlacement& placement() { return placement_; }
  // Forms that keep their position in the settings under their own name.
  virtual bool storesPlacement() const { return true; }

  void addObserver(FormObserver* observer);
  void removeObserver(FormObserver* observer);

  // Raised by controls.
  void notify(Control& control, Property property, int row, int col);
  void notifyUnloaded();
  bool dispatch(Control& control, Event event, EventArgs& args);

 protected:
  // The classic form events. QueryUnload returns false to keep the form.
  virtual void Load() {}
  virtual void Activate() {}
  virtual bool QueryUnload() { return true; }
  virtual void Unload() {}

 private:
  friend class Forms;
  void editText(Control& control, int keyCode, int shift, char32_t ch);
  void moveInGrid(Control& grid, int keyCode);
  void moveInList(Control& list, int keyCode);

  Forms& forms_;
  std::string name_, caption_, helpTopic_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::multimap<std::string, Control*> byName_;
  std::map<std::pair<std::string, Event>, Handler> handlers_;
  std::vector<FormObserver*> observers_;
  Control* active_ = nullptr;
  WindowPlacement placement_;
  int preferredWidth_ = 0, preferredHeight_ = 0;
  bool resizable_ = true;
  bool loaded_ = false, shown_ = false, modal_ = false;
};

}  // namespace kolm::forms

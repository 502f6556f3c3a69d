#include "forms/form.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "forms/forms.h"
#include "forms/keys.h"
#include "forms/names.h"
#include "forms/utf8.h"

namespace kolm::forms {

Form::Form(Forms& forms, std::string name, std::string caption)
    : forms_(forms), name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() = default;

Services& Form::services() const { return forms_.services(); }

void Form::showHelp() {
  if (!helpTopic_.empty() && services().help) services().help->showTopic(helpTopic_);
}

void Form::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  for (FormObserver* o : observers_) o->formCaptionChanged();
}

Control& Form::add(ControlKind kind, std::string name, int index) {
  controls_.push_back(std::make_unique<Control>(*this, kind, name, index));
  Control* c = controls_.back().get();
  byName_.emplace(NameKey(name), c);
  return *c;
}

void Form::on(std::string_view controlName, Event event, Handler handler) {
  handlers_[{NameKey(controlName), event}] = std::move(handler);
}

Control* Form::find(std::string_view name, int index) const {
  auto [first, last] = byName_.equal_range(NameKey(name));
  for (auto it = first; it != last; ++it)
    if (it->second->index() == index) return it->second;
  return nullptr;
}

Control& Form::control(std::string_view name, int index) const {
  if (Control* c = find(name, index)) return *c;
  throw std::out_of_range("Steuerelement " + std::string(name) + " fehlt in " + name_);
}

std::vector<Control*> Form::array(std::string_view name) const {
  std::vector<Control*> members;
  auto [first, last] = byName_.equal_range(NameKey(name));
  for (auto it = first; it != last; ++it) members.push_back(it->second);
  std::sort(members.begin(), members.end(),
            [](const Control* a, const Control* b) { return a->index() < b->index(); });
  return members;
}

bool Form::trigger(std::string_view command) {
  Control* c = find(command);
  if (!c) return false;
  c->raise(Event::Click);
  return true;
}

void Form::addObserver(FormObserver* observer) { observers_.push_back(observer); }

void Form::removeObserver(FormObserver* observer) {
  observers_.erase(std::remove(observers_.begin(), observers_.end(), observer), observers_.end());
}

void Form::notify(Control& control, Property property, int row, int col) {
  // A view may remove itself while being told; walk a copy.
  const std::vector<FormObserver*> observers = observers_;
  for (FormObserver* o : observers) o->propertyChanged(control, property, row, col);
}

void Form::notifyUnloaded() {
  const std::vector<FormObserver*> observers = observers_;
  for (FormObserver* o : observers) o->formUnloaded();
}

bool Form::dispatch(Control& control, Event event, EventArgs& args) {
  auto it = handlers_.find({NameKey(control.name()), event});
  if (it == handlers_.end()) return false;
  Handler handler = it->second;  // the handler may replace itself
  try {
    handler(control, args);
  } catch (const std::exception& e) {
    // Nothing escapes a handler: the user sees what failed and goes on.
    if (MessageService* m = services().messages)
      m->show({std::string("Interner Fehler: ") + e.what(), "Kolm", Buttons::OK, Icon::Critical});
  }
  return true;
}

// ---- focus -------------------------------------------------------------------------

void Form::setActiveControl(Control* control) {
  if (control == active_) return;
  Control* old = active_;
  active_ = control;
  if (old) old->raise(Event::LostFocus);
  if (control && active_ == control) {
    control->raise(Event::GotFocus);
    notify(*control, Property::Focus, -1, -1);
  }
}

Control* Form::defaultButton() const {
  for (const auto& c : controls_)
    if (c->kind() == ControlKind::CommandButton && c->isDefault() && c->visible() && c->enabled())
      return c.get();
  return nullptr;
}

Control* Form::cancelButton() const {
  for (const auto& c : controls_)
    if (c->kind() == ControlKind::CommandButton && c->isCancel() && c->visible() && c->enabled())
      return c.get();
  return nullptr;
}

namespace {
// Tab stops only at what the user can reach now.
bool TabStop(const Control& c) { return TakesFocus(c.kind()) && c.visible() && c.enabled(); }
}  // namespace

void Form::moveFocus(bool backwards) {
  std::vector<Control*> order;
  for (const auto& c : controls_)
    if (TabStop(*c)) order.push_back(c.get());
  if (order.empty()) return;
  auto it = std::find(order.begin(), order.end(), active_);
  size_t pos = it == order.end() ? (backwards ? 0 : order.size() - 1) : static_cast<size_t>(it - order.begin());
  pos = backwards ? (pos + order.size() - 1) % order.size() : (pos + 1) % order.size();
  setActiveControl(order[pos]);
}

// ---- keys ------------------------------------------------------------------------------

Form::KeyResult Form::handleKey(Control& control, int keyCode, int shift, char32_t ch) {
  if (active_ != &control) setActiveControl(&control);

  // F1 belongs to the form, whichever of its controls has the focus.
  if (keyCode == keys::F1 && !helpTopic_.empty()) {
    showHelp();
    return {true, 0, 0};
  }
  // Enter and Esc go to the form's default and cancel buttons first.
  if (keyCode == keys::Return && !(control.typesText() && control.isMultiLine()) &&
      control.kind() != ControlKind::CommandButton) {
    if (Control* b = defaultButton()) {
      b->click();
      return {true, 0, 0};
    }
  }
  if (keyCode == keys::Escape) {
    if (Control* b = cancelButton()) {
      b->click();
      return {true, 0, 0};
    }
  }

  EventArgs down;
  down.keyCode = keyCode;
  down.shift = shift;
  control.raise(Event::KeyDown, down);
  // A handler clears the key code to swallow the key; a character without a
  // key of its own (keyCode 0 from the start) still goes on to KeyPress.
  if (keyCode != 0 && down.keyCode == 0) return {true, 0, 0};
  keyCode = down.keyCode;
  if (ch != 0 && !(shift & keys::CtrlMask) && !(shift & keys::AltMask) && keyCode != keys::Tab) {
    EventArgs press;
    press.keyAscii = static_cast<int>(ch);
    press.shift = shift;
    control.raise(Event::KeyPress, press);
    if (press.keyAscii == 0) return {true, keyCode, 0};
    ch = static_cast<char32_t>(press.keyAscii);
  }
  return {false, keyCode, ch};
}

void Form::defaultKeyAction(Control& control, int keyCode, int shift, char32_t ch) {
  if (control.typesText()) {
    editText(control, keyCode, shift, ch);
  } else if (control.kind() == ControlKind::Grid) {
    moveInGrid(control, keyCode);
  } else if (control.kind() == ControlKind::ListBox || control.kind() == ControlKind::ComboBox) {
    moveInList(control, keyCode);
  } else if ((control.kind() == ControlKind::CommandButton ||
              control.kind() == ControlKind::CheckBox ||
              control.kind() == ControlKind::OptionButton) &&
             (ch == U' ' || (ch == U'\r' && control.kind() == ControlKind::CommandButton))) {
    control.click();
  }
  if (keyCode == keys::Tab && control.form().loaded()) moveFocus(shift & keys::ShiftMask);
}

void Form::keyUp(Control& control, int keyCode, int shift) {
  EventArgs up;
  up.keyCode = keyCode;
  up.shift = shift;
  control.raise(Event::KeyUp, up);
}

void Form::sendKey(Control& control, int keyCode, int shift, char32_t ch) {
  const KeyResult r = handleKey(control, keyCode, shift, ch);
  if (!r.consumed) defaultKeyAction(control, r.keyCode, shift, r.ch);
  if (r.keyCode != 0) keyUp(control, r.keyCode, shift);
}

void Form::editText(Control& c, int keyCode, int shift, char32_t ch) {
  const int len = utf8::Length(c.text());
  if (ch >= 32 && ch != 127) {
    c.replaceSelection(utf8::Encode(ch));
    return;
  }
  if (ch == U'\r' && c.isMultiLine()) {
    c.replaceSelection("\r\n");
    return;
  }
  if (ch == 8) {  // Backspace
    if (c.selLength() == 0 && c.selStart() > 0) c.setSelection(c.selStart() - 1, 1);
    if (c.selLength() > 0) c.replaceSelection("");
    return;
  }
  switch (keyCode) {
    case keys::Delete:
      if (c.selLength() == 0 && c.selStart() < len) c.setSelection(c.selStart(), 1);
      if (c.selLength() > 0) c.replaceSelection("");
      break;
    case keys::Left: c.setSelection(c.selStart() - 1, 0); break;
    case keys::Right: c.setSelection(c.selStart() + c.selLength() + 1, 0); break;
    case keys::Home: c.setSelection(0, (shift & keys::ShiftMask) ? c.selStart() : 0); break;
    case keys::End:
      if (shift & keys::ShiftMask) c.setSelection(c.selStart(), len - c.selStart());
      else c.setSelection(len, 0);
      break;
    default:
      if (c.kind() == ControlKind::ComboBox) moveInList(c, keyCode);
  }
}

void Form::moveInGrid(Control& grid, int keyCode) {
  const GridData& g = grid.gridData();
  int r = g.row, c = g.col;
  const int page = 20;
  switch (keyCode) {
    case keys::Up: --r; break;
    case keys::Down: ++r; break;
    case keys::Left: --c; break;
    case keys::Right: ++c; break;
    case keys::PageUp: r -= page; break;
    case keys::PageDown: r += page; break;
    case keys::Home: c = g.fixedCols; break;
    case keys::End: c = g.cols - 1; break;
    default: return;
  }
  r = std::max(r, g.fixedRows);
  c = std::max(c, g.fixedCols);
  grid.setCurrentCell(r, c);
}

void Form::moveInList(Control& list, int keyCode) {
  int i = list.listIndex();
  switch (keyCode) {
    case keys::Up: --i; break;
    case keys::Down: ++i; break;
    case keys::Home: i = 0; break;
    case keys::End: i = list.listCount() - 1; break;
    default: return;
  }
  if (list.listCount() == 0) return;
  list.setListIndex(std::clamp(i, 0, list.listCount() - 1));
}

}  // namespace kolm::forms

#include "forms/control.h"

#include <algorithm>

#include "forms/form.h"
#include "forms/utf8.h"

namespace kolm::forms {

bool TakesFocus(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox: case ControlKind::CheckBox: case ControlKind::OptionButton:
    case ControlKind::ComboBox: case ControlKind::ListBox: case ControlKind::CommandButton:
    case ControlKind::Grid: case ControlKind::SpinButton:
      return true;
    default:
      return false;
  }
}

const char* KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label: return "Label";
    case ControlKind::TextBox: return "TextBox";
    case ControlKind::CheckBox: return "CheckBox";
    case ControlKind::OptionButton: return "OptionButton";
    case ControlKind::ComboBox: return "ComboBox";
    case ControlKind::ListBox: return "ListBox";
    case ControlKind::CommandButton: return "CommandButton";
    case ControlKind::Frame: return "Frame";
    case ControlKind::Grid: return "Grid";
    case ControlKind::PictureBox: return "PictureBox";
    case ControlKind::TabControl: return "TabControl";
    case ControlKind::Timer: return "Timer";
    case ControlKind::SpinButton: return "SpinButton";
    case ControlKind::Menu: return "Menu";
    case ControlKind::RichText: return "RichText";
  }
  return "?";
}

const std::string& GridData::cell(int r, int c) const {
  static const std::string empty;
  if (r < 0 || c < 0 || r >= rows || c >= cols) return empty;
  return cells[static_cast<size_t>(r) * cols + c];
}

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  if (kind_ == ControlKind::Grid) grid_ = std::make_unique<GridData>();
  if (kind_ == ControlKind::PictureBox) picture_ = std::make_unique<DisplayList>();
  if (kind_ == ControlKind::TabControl) listIndex_ = 0;
}

std::string Control::address() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::changed(Property p, int row, int col) { form_.notify(*this, p, row, col); }

// ---- declaration -------------------------------------------------------------

Control& Control::caption(std::string text) { caption_ = std::move(text); return *this; }
Control& Control::at(int row, int col, int rowSpan, int colSpan) {
  placement_.row = row;
  placement_.col = col;
  placement_.rowSpan = rowSpan;
  placement_.colSpan = colSpan;
  return *this;
}
Control& Control::in(std::string container, int page) {
  placement_.container = std::move(container);
  placement_.page = page;
  return *this;
}
Control& Control::width(int chars) { placement_.widthChars = chars; return *this; }
Control& Control::tip(std::string text) { toolTip_ = std::move(text); return *this; }
Control& Control::shortcut(std::string keys) { shortcut_ = std::move(keys); return *this; }
Control& Control::icon(std::string name) { icon_ = std::move(name); return *this; }
Control& Control::items(std::vector<std::string> list) {
  list_ = std::move(list);
  selected_.assign(list_.size(), false);
  return *this;
}
Control& Control::multiSelect(bool on) { multiSelect_ = on; return *this; }
Control& Control::dropDownList(bool on) { dropDownList_ = on; return *this; }
Control& Control::multiLine(bool on) { multiLine_ = on; return *this; }
Control& Control::asDefault(bool on) { default_ = on; return *this; }
Control& Control::asCancel(bool on) { cancel_ = on; return *this; }
Control& Control::hidden() { visible_ = false; return *this; }
Control& Control::disabled() { enabled_ = false; return *this; }
Control& Control::interval(int ms) { interval_ = ms; return *this; }
Control& Control::grid(int rows, int cols, int fixedRows, int fixedCols) {
  GridData& g = gridData();
  g.rows = std::max(0, rows);
  g.cols = std::max(0, cols);
  g.fixedRows = fixedRows;
  g.fixedCols = fixedCols;
  g.cells.assign(static_cast<size_t>(g.rows) * g.cols, std::string());
  g.colWidthChars.assign(g.cols, 0);
  g.row = g.rowSel = std::min(fixedRows, std::max(0, g.rows - 1));
  g.col = g.colSel = std::min(fixedCols, std::max(0, g.cols - 1));
  return *this;
}
Control& Control::separatorBefore(bool on) { separatorBefore_ = on; return *this; }
Control& Control::draggable(bool on) { draggable_ = on; return *this; }
Control& Control::dropTarget(bool on) { dropTarget_ = on; return *this; }

// ---- properties ----------------------------------------------------------------

void Control::setCaption(std::string text) {
  if (caption_ == text) return;
  caption_ = std::move(text);
  changed(Property::Caption);
}

void Control::setText(std::string text) {
  if (kind_ == ControlKind::Label || kind_ == ControlKind::CommandButton ||
      kind_ == ControlKind::Frame || kind_ == ControlKind::Menu || kind_ == ControlKind::CheckBox ||
      kind_ == ControlKind::OptionButton || kind_ == ControlKind::RichText) {
    setCaption(std::move(text));
    return;
  }
  if (text_ == text) return;
  text_ = std::move(text);
  const int len = utf8::Length(text_);
  selStart_ = std::min(selStart_, len);
  selLength_ = 0;
  changed(Property::Text);
  raise(Event::Change);
}

const std::string& Control::shownText() const {
  switch (kind_) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
      return text_;
    case ControlKind::ListBox:
      return (listIndex_ >= 0 && listIndex_ < listCount()) ? list_[listIndex_] : text_;
    default:
      return caption_;
  }
}

void Control::setValue(int value) {
  if (value_ == value) return;
  value_ = value;
  if (kind_ == ControlKind::OptionButton && value != 0) {
    // Choosing an option clears the others of its container.
    for (const auto& other : form_.controls()) {
      if (other.get() != this && other->kind_ == ControlKind::OptionButton &&
          other->placement_.container == placement_.container &&
          other->placement_.page == placement_.page && other->value_ != 0) {
        other->value_ = 0;
        other->changed(Property::Value);
      }
    }
  }
  changed(Property::Value);
  if (kind_ == ControlKind::CheckBox || (kind_ == ControlKind::OptionButton && value != 0))
    raise(Event::Click);
}

void Control::setEnabled(bool on) {
  if (enabled_ == on) return;
  enabled_ = on;
  changed(Property::Enabled);
  if (kind_ == ControlKind::Timer) changed(Property::Interval);
}

void Control::setVisible(bool on) {
  if (visible_ == on) return;
  visible_ = on;
  changed(Property::Visible);
}

void Control::setChecked(bool on) {
  if (checked_ == on) return;
  checked_ = on;
  changed(Property::Checked);
}

void Control::setToolTip(std::string text) {
  if (toolTip_ == text) return;
  toolTip_ = std::move(text);
  changed(Property::ToolTip);
}

void Control::setTag(std::string tag) {
  if (tag_ == tag) return;
  tag_ = std::move(tag);
  changed(Property::Tag);
}

void Control::setDefault(bool on) {
  if (on) {
    for (const auto& other : form_.controls())
      if (other.get() != this && other->default_) {
        other->default_ = false;
        other->changed(Property::Default);
      }
  }
  if (default_ == on) return;
  default_ = on;
  changed(Property::Default);
}

// ---- lists -------------------------------------------------------------------------

void Control::addItem(std::string item) {
  list_.push_back(std::move(item));
  selected_.push_back(false);
  changed(Property::List);
}

void Control::removeItem(int i) {
  if (i < 0 || i >= listCount()) return;
  list_.erase(list_.begin() + i);
  selected_.erase(selected_.begin() + i);
  if (listIndex_ == i) listIndex_ = -1;
  else if (listIndex_ > i) --listIndex_;
  changed(Property::List);
}

void Control::clearList() {
  if (list_.empty() && listIndex_ == -1) return;
  list_.clear();
  selected_.clear();
  listIndex_ = kind_ == ControlKind::TabControl ? 0 : -1;
  changed(Property::List);
}

void Control::setList(std::vector<std::string> list) {
  list_ = std::move(list);
  selected_.assign(list_.size(), false);
  if (listIndex_ >= listCount()) listIndex_ = -1;
  changed(Property::List);
}

void Control::setListIndex(int i) {
  if (i < -1 || i >= listCount()) i = -1;
  if (listIndex_ == i) return;
  listIndex_ = i;
  if (!multiSelect_ && kind_ == ControlKind::ListBox) {
    std::fill(selected_.begin(), selected_.end(), false);
    if (i >= 0) selected_[i] = true;
  }
  if (kind_ == ControlKind::ComboBox && i >= 0 && text_ != list_[i]) {
    text_ = list_[i];
    changed(Property::Text);
  }
  changed(Property::ListIndex);
  raise(Event::Click);
}

bool Control::selected(int i) const {
  return i >= 0 && i < static_cast<int>(selected_.size()) && selected_[i];
}

void Control::setSelected(int i, bool on) {
  if (i < 0 || i >= static_cast<int>(selected_.size()) || selected_[i] == on) return;
  if (on && !multiSelect_) std::fill(selected_.begin(), selected_.end(), false);
  selected_[i] = on;
  changed(Property::Selected);
}

// ---- text selection -------------------------------------------------------------------

void Control::setSelection(int start, int length) {
  const int len = utf8::Length(text_);
  start = std::clamp(start, 0, len);
  length = std::clamp(length, 0, len - start);
  if (start == selStart_ && length == selLength_) return;
  selStart_ = start;
  selLength_ = length;
  changed(Property::TextSelection);
}

std::string Control::selectedText() const {
  const size_t from = utf8::ByteOffset(text_, selStart_);
  const size_t to = utf8::ByteOffset(text_, selStart_ + selLength_);
  return text_.substr(from, to - from);
}

void Control::replaceSelection(const std::string& text) {
  const size_t from = utf8::ByteOffset(text_, selStart_);
  const size_t to = utf8::ByteOffset(text_, selStart_ + selLength_);
  std::string next = text_.substr(0, from) + text + text_.substr(to);
  const int caret = selStart_ + utf8::Length(text);
  setText(std::move(next));
  setSelection(caret, 0);
}

// ---- grid ------------------------------------------------------------------------------

GridData& Control::gridData() {
  if (!grid_) grid_ = std::make_unique<GridData>();
  return *grid_;
}

const GridData& Control::gridData() const {
  static const GridData none;
  return grid_ ? *grid_ : none;
}

int Control::rows() const { return gridData().rows; }
int Control::cols() const { return gridData().cols; }

void Control::setRows(int rows) {
  GridData& g = gridData();
  rows = std::max(0, rows);
  if (rows == g.rows) return;
  g.cells.resize(static_cast<size_t>(rows) * g.cols);
  g.rows = rows;
  g.row = std::min(g.row, std::max(0, rows - 1));
  g.rowSel = std::min(g.rowSel, std::max(0, rows - 1));
  changed(Property::GridShape);
}

void Control::setCols(int cols) {
  GridData& g = gridData();
  cols = std::max(0, cols);
  if (cols == g.cols) return;
  std::vector<std::string> cells(static_cast<size_t>(g.rows) * cols);
  for (int r = 0; r < g.rows; ++r)
    for (int c = 0; c < std::min(cols, g.cols); ++c)
      cells[static_cast<size_t>(r) * cols + c] = std::move(g.cells[static_cast<size_t>(r) * g.cols + c]);
  g.cells = std::move(cells);
  g.cols = cols;
  g.colWidthChars.resize(cols, 0);
  g.col = std::min(g.col, std::max(0, cols - 1));
  g.colSel = std::min(g.colSel, std::max(0, cols - 1));
  changed(Property::GridShape);
}

const std::string& Control::cell(int r, int c) const { return gridData().cell(r, c); }

void Control::setCell(int r, int c, std::string text) {
  GridData& g = gridData();
  if (r < 0 || c < 0 || r >= g.rows || c >= g.cols) return;
  std::string& slot = g.cells[static_cast<size_t>(r) * g.cols + c];
  if (slot == text) return;
  slot = std::move(text);
  if (gridUpdates_ == 0) changed(Property::GridCell, r, c);
}

void Control::setCurrentCell(int r, int c) {
  GridData& g = gridData();
  if (g.rows == 0 || g.cols == 0) return;
  r = std::clamp(r, 0, g.rows - 1);
  c = std::clamp(c, 0, g.cols - 1);
  const bool moved = r != g.row || c != g.col;
  g.row = g.rowSel = r;
  g.col = g.colSel = c;
  changed(Property::GridCursor);
  if (moved) {
    EventArgs args;
    args.row = r;
    args.col = c;
    raise(Event::RowColChange, args);
  }
}

void Control::setGridSelection(int r1, int c1, int r2, int c2) {
  GridData& g = gridData();
  if (g.rows == 0 || g.cols == 0) return;
  g.row = std::clamp(r1, 0, g.rows - 1);
  g.col = std::clamp(c1, 0, g.cols - 1);
  g.rowSel = std::clamp(r2, 0, g.rows - 1);
  g.colSel = std::clamp(c2, 0, g.cols - 1);
  changed(Property::GridCursor);
  raise(Event::SelChange);
}

void Control::setColWidth(int c, int chars) {
  GridData& g = gridData();
  if (c < 0 || c >= g.cols) return;
  g.colWidthChars[c] = chars;
  changed(Property::GridWidths);
}

void Control::beginGridUpdate() { ++gridUpdates_; }

void Control::endGridUpdate() {
  if (gridUpdates_ > 0 && --gridUpdates_ == 0) changed(Property::GridCells);
}

// ---- picture and timer -----------------------------------------------------------------

DisplayList& Control::picture() {
  if (!picture_) picture_ = std::make_unique<DisplayList>();
  return *picture_;
}

void Control::setInterval(int ms) {
  if (interval_ == ms) return;
  interval_ = ms;
  changed(Property::Interval);
}

// ---- acting ------------------------------------------------------------------------------

void Control::click() {
  if (!enabled_) return;
  switch (kind_) {
    case ControlKind::CheckBox:
      setValue(value_ == 1 ? 0 : 1);  // raises Click
      return;
    case ControlKind::OptionButton:
      if (value_ == 0) setValue(1);  // raises Click
      else raise(Event::Click);
      return;
    default:
      raise(Event::Click);
  }
}

void Control::doubleClick() {
  if (!enabled_) return;
  raise(Event::DblClick);
}

bool Control::raise(Event event, EventArgs& args) {
  args.index = index_;
  return form_.dispatch(*this, event, args);
}

bool Control::raise(Event event) {
  EventArgs args;
  return raise(event, args);
}

void Control::setFocus() { form_.setActiveControl(this); }

}  // namespace kolm::forms

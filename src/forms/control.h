#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/drawing.h"
#include "forms/events.h"

namespace kolm::forms {

class Form;

enum class ControlKind {
  Label,
  TextBox,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  CommandButton,
  Frame,
  Grid,
  PictureBox,
  TabControl,
  Timer,
  SpinButton,
  Menu,      // a menu or menu entry; its container is the menu above it
  RichText,  // read-only formatted text (help pages)
};

const char* KindName(ControlKind kind);
// Kinds of control a user can put the focus on (by Tab or by clicking).
bool TakesFocus(ControlKind kind);

// What changed, so that a view mirrors only that.
enum class Property {
  Caption, Text, Value, Enabled, Visible, Checked, ToolTip, Tag,
  List, ListIndex, Selected, TextSelection,
  GridShape, GridCells, GridCell, GridCursor, GridWidths,
  Picture, Interval, Focus, Default,
};

// Where the generic view places a control: a cell of the grid layout of its
// container (the form, a frame, or one page of a tab control).
struct Placement {
  std::string container;  // name of the frame or tab control; empty: the form
  int page = 0;           // page of a tab control container
  int row = 0, col = 0;
  int rowSpan = 1, colSpan = 1;
  int widthChars = 0;     // preferred width of fields in characters, 0: natural
};

struct GridData {
  int rows = 0, cols = 0;
  int fixedRows = 1, fixedCols = 1;
  std::vector<std::string> cells;  // row-major, rows * cols
  std::vector<int> colWidthChars;  // 0: natural
  int row = 0, col = 0;            // current cell
  int rowSel = 0, colSel = 0;      // other corner of the selection
  int topRow = 0;

  const std::string& cell(int r, int c) const;
};

// One named control of a form, with the properties form logic reads and
// writes. Setters notify the form's views; setting Text, a check box's
// Value or a list's ListIndex raises Change or Click as the classic controls
// do when code sets them.
class Control {
 public:
  Control(Form& form, ControlKind kind, std::string name, int index);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }  // -1 unless part of a control array
  std::string address() const;          // "Name" or "Name(3)"

  // -- declaration (builder style, used once when the form is built)
  Control& caption(std::string text);
  Control& at(int row, int col, int rowSpan = 1, int colSpan = 1);
  Control& in(std::string container, int page = 0);
  Control& width(int chars);
  Control& tip(std::string text);
  Control& shortcut(std::string keys);  // menu entry: "Ctrl+B"
  Control& icon(std::string name);      // button bar or menu icon
  Control& items(std::vector<std::string> list);
  Control& multiSelect(bool on = true);
  Control& dropDownList(bool on = true);  // combo box that takes no typed text
  Control& multiLine(bool on = true);
  Control& asDefault(bool on = true);
  Control& asCancel(bool on = true);
  Control& hidden();
  Control& disabled();
  Control& interval(int ms);
  Control& grid(int rows, int cols, int fixedRows = 1, int fixedCols = 1);
  Control& separatorBefore(bool on = true);
  Control& draggable(bool on = true);
  Control& dropTarget(bool on = true);

  const Placement& placement() const { return placement_; }

  // -- properties
  const std::string& captionText() const { return caption_; }
  void setCaption(std::string text);
  const std::string& text() const { return text_; }
  void setText(std::string text);  // raises Change when it differs
  // Text as shown: a label's or button's caption, a field's text.
  const std::string& shownText() const;

  int value() const { return value_; }  // check box 0/1/2; option 0/1
  void setValue(int value);             // raises Click when it differs

  bool enabled() const { return enabled_; }
  void setEnabled(bool on);
  bool visible() const { return visible_; }
  void setVisible(bool on);
  bool checked() const { return checked_; }  // menu entry check mark
  void setChecked(bool on);
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string text);
  const std::string& tag() const { return tag_; }
  void setTag(std::string tag);
  const std::string& shortcutKeys() const { return shortcut_; }
  const std::string& iconName() const { return icon_; }
  bool isMultiSelect() const { return multiSelect_; }
  bool isDropDownList() const { return dropDownList_; }
  // The user types into it: a text box, or a combo box that is no fixed list.
  bool typesText() const { return kind_ == ControlKind::TextBox || (kind_ == ControlKind::ComboBox && !dropDownList_); }
  bool isMultiLine() const { return multiLine_; }
  bool isDefault() const { return default_; }
  void setDefault(bool on);  // the form keeps one default button
  bool isCancel() const { return cancel_; }
  bool hasSeparatorBefore() const { return separatorBefore_; }
  bool isDraggable() const { return draggable_; }
  bool isDropTarget() const { return dropTarget_; }

  // -- lists (list box, combo box, tab captions)
  const std::vector<std::string>& list() const { return list_; }
  int listCount() const { return static_cast<int>(list_.size()); }
  void addItem(std::string item);
  void removeItem(int i);
  void clearList();
  void setList(std::vector<std::string> list);
  int listIndex() const { return listIndex_; }
  void setListIndex(int i);  // raises Click when it differs; a combo's text follows
  bool selected(int i) const;
  void setSelected(int i, bool on);

  // -- text selection of a field
  int selStart() const { return selStart_; }
  int selLength() const { return selLength_; }
  void setSelection(int start, int length);  // in characters, clamped to the text
  std::string selectedText() const;
  void replaceSelection(const std::string& text);  // raises Change

  // -- grid
  GridData& gridData();
  const GridData& gridData() const;
  int rows() const;
  int cols() const;
  void setRows(int rows);
  void setCols(int cols);
  const std::string& cell(int r, int c) const;
  void setCell(int r, int c, std::string text);
  void setCurrentCell(int r, int c);  // raises RowColChange when it moves
  void setGridSelection(int r1, int c1, int r2, int c2);
  void setColWidth(int c, int chars);
  // Many cells at once: views redraw once at the end.
  void beginGridUpdate();
  void endGridUpdate();

  // -- picture box
  DisplayList& picture();

  // -- timer
  int intervalMs() const { return interval_; }
  void setInterval(int ms);

  // -- acting as a user would
  void click();           // button press, check toggle, option choice, menu command
  void doubleClick();
  bool raise(Event event, EventArgs& args);   // false when no handler is set
  bool raise(Event event);
  void setFocus();

 private:
  void changed(Property p, int row = -1, int col = -1);

  Form& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  Placement placement_;
  std::string caption_, text_, toolTip_, tag_, shortcut_, icon_;
  int value_ = 0;
  bool enabled_ = true, visible_ = true, checked_ = false;
  bool multiSelect_ = false, dropDownList_ = false, multiLine_ = false;
  bool default_ = false, cancel_ = false, separatorBefore_ = false;
  bool draggable_ = false, dropTarget_ = false;
  std::vector<std::string> list_;
  std::vector<bool> selected_;
  int listIndex_ = -1;
  int selStart_ = 0, selLength_ = 0;
  std::unique_ptr<GridData> grid_;
  int gridUpdates_ = 0;
  std::unique_ptr<DisplayList> picture_;
  int interval_ = 0;
};

}  // namespace kolm::forms

#include "shell/form_view.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QSpacerItem>
#include <QVBoxLayout>
#include <algorithm>
#include <climits>

#include "forms/keys.h"
#include "forms/names.h"
#include "forms/utf8.h"
#include "shell/grid_model.h"
#include "shell/key_mapping.h"
#include "shell/picture_widget.h"

namespace kolm::shell {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::Property;

// ---- helpers ------------------------------------------------------------------------

void ControlViews::add(const std::string& formName, const std::string& controlName,
                       ControlViewFactory factory) {
  factories_[{forms::NameKey(formName), forms::NameKey(controlName)}] = std::move(factory);
}

const ControlViewFactory* ControlViews::find(const Control& control) const {
  auto it = factories_.find({forms::NameKey(control.form().name()), forms::NameKey(control.name())});
  return it == factories_.end() ? nullptr : &it->second;
}

QString WithoutAccessKey(const QString& caption) {
  QString out;
  out.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&') {
      if (i + 1 < caption.size() && caption[i + 1] == u'&') {
        out += u'&';
        ++i;
      }
      continue;
    }
    out += caption[i];
  }
  return out;
}

namespace {

// Walks the model's text code point by code point with the widget's UTF-16
// position alongside.
template <typename Stop>
void WalkText(const std::string& text, bool multiLine, Stop stop) {
  size_t i = 0;
  int cp = 0, u16 = 0;
  while (i < text.size()) {
    if (stop(cp, u16)) return;
    const size_t at = i;
    const char32_t c = forms::utf8::Next(text, i);
    ++cp;
    if (multiLine && c == U'\r' && i < text.size() && text[i] == '\n' && at + 1 == i) continue;
    u16 += c > 0xFFFF ? 2 : 1;
  }
  stop(cp, u16);
}

QString ToWidgetText(const std::string& text, bool multiLine) {
  QString s = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  if (multiLine) s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return s;
}

std::string ToModelText(const QString& text, bool multiLine) {
  if (!multiLine) return text.toStdString();
  QString s = text;
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  s.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return s.toStdString();
}


constexpr const char* kDragFormat = "application/x-kolm-steuerelement";

// The control being dragged; a drag never leaves the program's thread.
struct DragSource {
  QPointer<QObject> view;
  Control* control = nullptr;
};
DragSource& CurrentDrag() {
  static DragSource drag;
  return drag;
}

// Two arrows that raise SpinUp and SpinDown.
class SpinWidget final : public QWidget {
 public:
  std::function<void(bool up)> spin;

  explicit SpinWidget(QWidget* parent = nullptr) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    up_ = new QToolButton(this);
    down_ = new QToolButton(this);
    up_->setArrowType(Qt::UpArrow);
    down_->setArrowType(Qt::DownArrow);
    for (QToolButton* b : {up_, down_}) {
      b->setAutoRepeat(true);
      b->setFocusPolicy(Qt::NoFocus);
      b->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
      b->setFixedWidth(18);
      layout->addWidget(b);
    }
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    connect(up_, &QToolButton::clicked, this, [this] { if (spin) spin(true); });
    connect(down_, &QToolButton::clicked, this, [this] { if (spin) spin(false); });
  }
  QToolButton* upButton() const { return up_; }
  QToolButton* downButton() const { return down_; }

 protected:
  void keyPressEvent(QKeyEvent* e) override {
    if ((e->key() == Qt::Key_Up || e->key() == Qt::Key_Down) && spin) {
      spin(e->key() == Qt::Key_Up);
      return;
    }
    QWidget::keyPressEvent(e);
  }

 private:
  QToolButton* up_;
  QToolButton* down_;
};

}  // namespace

int WidgetPosition(const std::string& modelText, int codePoints, bool multiLine) {
  int result = 0;
  WalkText(modelText, multiLine, [&](int cp, int u16) {
    result = u16;
    return cp >= codePoints;
  });
  return result;
}

int ModelPosition(const std::string& modelText, int utf16, bool multiLine) {
  int result = 0;
  WalkText(modelText, multiLine, [&](int cp, int u16) {
    result = cp;
    return u16 >= utf16;
  });
  return result;
}

// ---- items -------------------------------------------------------------------------

struct FormWidget::Item {
  Control* control = nullptr;
  QWidget* widget = nullptr;  // none for timers and menus
  QGridLayout* layout = nullptr;  // a frame's own layout
  std::vector<QGridLayout*> pages;  // a tab control's page layouts
  QTimer* timer = nullptr;
  GridModel* grid = nullptr;
  bool special = false;
  bool syncQueued = false;

  QLineEdit* lineEdit() const {
    if (auto* e = qobject_cast<QLineEdit*>(widget)) return e;
    if (auto* c = qobject_cast<QComboBox*>(widget)) return c->lineEdit();
    return nullptr;
  }
};

// Marks the widgets' signals as echoes of the model while it is mirrored.
class FormWidget::Updating {
 public:
  explicit Updating(FormWidget& w) : w_(w) { ++w_.updating_; }
  ~Updating() { --w_.updating_; }
  Updating(const Updating&) = delete;
  Updating& operator=(const Updating&) = delete;

 private:
  FormWidget& w_;
};

// ---- construction ------------------------------------------------------------------------

FormWidget::FormWidget(forms::Form& form, const ControlViews* views, QWidget* parent)
    : QWidget(parent), form_(&form) {
  setWindowTitle(QString::fromStdString(form.caption()));
  build(views);
  form.addObserver(this);
}

FormWidget::~FormWidget() { detach(); }

void FormWidget::detach() {
  if (!form_) return;
  form_->removeObserver(this);
  form_ = nullptr;
  for (auto& item : items_) {
    if (item->timer) item->timer->stop();
    if (item->grid) item->grid->detach();
    if (auto* p = qobject_cast<PictureWidget*>(item->widget)) p->detach();
  }
  if (CurrentDrag().view == this) CurrentDrag() = {};
}

void FormWidget::build(const ControlViews* views) {
  root_ = new QGridLayout(this);
  for (const auto& c : form_->controls()) {
    auto item = std::make_unique<Item>();
    item->control = c.get();
    byControl_[c.get()] = item.get();
    items_.push_back(std::move(item));
  }
  for (auto& item : items_) create(*item, views);
  for (auto& item : items_) place(*item);

  const bool resizable = form_->resizable();
  setStretches(root_, resizable);
  for (auto& item : items_) {
    if (item->layout) setStretches(item->layout, resizable);
    for (QGridLayout* page : item->pages) setStretches(page, resizable);
  }
  if (!resizable) {
    if (form_->preferredWidth() > 0 && form_->preferredHeight() > 0) {
      setFixedSize(form_->preferredWidth(), form_->preferredHeight());
    } else {
      widenToTitle();
      root_->setSizeConstraint(QLayout::SetFixedSize);
    }
  }

  // Tab order and access keys follow the order the form declares its controls in.
  QWidget* previous = nullptr;
  for (size_t i = 0; i < items_.size(); ++i) {
    Item& item = *items_[i];
    if (!item.widget) continue;
    if (forms::TakesFocus(item.control->kind()) || item.special) {
      if (previous) QWidget::setTabOrder(previous, item.widget);
      previous = item.widget;
    }
    if (auto* label = qobject_cast<QLabel*>(item.widget)) {
      for (size_t j = i + 1; j < items_.size(); ++j)
        if (items_[j]->widget && forms::TakesFocus(items_[j]->control->kind())) {
          label->setBuddy(items_[j]->widget);
          break;
        }
    }
  }
  for (auto& item : items_) {
    connectSignals(*item);
    mirrorAll(*item);
  }
}

void FormWidget::create(Item& item, const ControlViews* views) {
  Control& c = *item.control;
  if (c.kind() == ControlKind::Menu) return;  // the main window shows menus
  if (c.kind() == ControlKind::Timer) {
    item.timer = new QTimer(this);
    return;
  }
  if (views) {
    if (const ControlViewFactory* factory = views->find(c)) {
      item.widget = (*factory)(c, this);
      if (item.widget) {
        item.special = true;
        watch(item, item.widget);
        if (auto* view = qobject_cast<QAbstractScrollArea*>(item.widget)) watch(item, view->viewport());
        return;
      }
    }
  }
  switch (c.kind()) {
    case ControlKind::Label: {
      auto* label = new QLabel(this);
      label->setTextFormat(Qt::PlainText);
      // A long note breaks at blanks within the width the dialog has.
      label->setWordWrap(c.isMultiLine());
      item.widget = label;
      break;
    }
    case ControlKind::TextBox:
      if (c.isMultiLine()) {
        auto* edit = new QPlainTextEdit(this);
        edit->setTabChangesFocus(true);
        edit->setMinimumHeight(edit->fontMetrics().lineSpacing() * 3 + 10);
        item.widget = edit;
        watch(item, edit->viewport());
      } else {
        item.widget = new QLineEdit(this);
      }
      break;
    case ControlKind::CheckBox:
      item.widget = new QCheckBox(this);
      break;
    case ControlKind::OptionButton: {
      auto* option = new QRadioButton(this);
      // The model keeps options exclusive within their container and page.
      option->setAutoExclusive(false);
      item.widget = option;
      break;
    }
    case ControlKind::ComboBox: {
      auto* combo = new QComboBox(this);
      combo->setEditable(!c.isDropDownList());
      if (combo->isEditable()) {
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setCompleter(nullptr);
        watch(item, combo->lineEdit());
      }
      combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
      combo->setMinimumContentsLength(6);
      item.widget = combo;
      break;
    }
    case ControlKind::ListBox: {
      auto* list = new QListWidget(this);
      list->setSelectionMode(c.isMultiSelect() ? QAbstractItemView::ExtendedSelection
                                               : QAbstractItemView::SingleSelection);
      list->setUniformItemSizes(true);
      item.widget = list;
      watch(item, list->viewport());
      break;
    }
    case ControlKind::CommandButton: {
      auto* button = new QPushButton(this);
      button->setAutoDefault(false);
      item.widget = button;
      break;
    }
    case ControlKind::Frame: {
      auto* box = new QGroupBox(this);
      item.layout = new QGridLayout(box);
      item.widget = box;
      break;
    }
    case ControlKind::Grid: {
      auto* view = new GridView(this);
      item.grid = new GridModel(c, view);
      view->setModel(item.grid);
      item.widget = view;
      watch(item, view->viewport());
      // The fixed column is the row header: points are dragged by their number.
      watch(item, view->verticalHeader()->viewport());
      if (c.isDropTarget()) view->verticalHeader()->viewport()->setAcceptDrops(true);
      break;
    }
    case ControlKind::PictureBox:
      item.widget = new PictureWidget(c, this);
      break;
    case ControlKind::TabControl: {
      auto* tabs = new QTabWidget(this);
      int pages = std::max(1, c.listCount());
      for (const auto& other : form_->controls())
        if (!other->placement().container.empty() &&
            forms::NameKey(other->placement().container) == forms::NameKey(c.address()))
          pages = std::max(pages, other->placement().page + 1);
      for (int i = 0; i < pages; ++i) {
        auto* page = new QWidget(tabs);
        item.pages.push_back(new QGridLayout(page));
        tabs->addTab(page, QString());
      }
      item.widget = tabs;
      break;
    }
    case ControlKind::SpinButton:
      item.widget = new SpinWidget(this);
      break;
    case ControlKind::RichText: {
      auto* browser = new QTextBrowser(this);
      browser->setOpenLinks(false);
      browser->setOpenExternalLinks(false);
      item.widget = browser;
      break;
    }
    case ControlKind::Menu:
    case ControlKind::Timer:
      break;
  }
  if (!item.widget) return;
  item.widget->setObjectName(QString::fromStdString(c.address()));
  watch(item, item.widget);
  if (auto* spin = dynamic_cast<SpinWidget*>(item.widget)) {
    watch(item, spin->upButton());
    watch(item, spin->downButton());
  }
  applyWidth(item);
  if (c.isDropTarget()) {
    item.widget->setAcceptDrops(true);
    if (auto* view = qobject_cast<QAbstractScrollArea*>(item.widget)) view->viewport()->setAcceptDrops(true);
  }
}

void FormWidget::watch(Item& item, QObject* object) {
  if (!object || byObject_.contains(object)) return;
  byObject_.insert(object, &item);
  object->installEventFilter(this);
}

void FormWidget::applyWidth(Item& item) {
  const int chars = item.control->placement().widthChars;
  if (chars <= 0 || !item.widget) return;
  const int px = item.widget->fontMetrics().averageCharWidth() * chars + 12;
  if (form_->resizable()) item.widget->setMinimumWidth(px);
  else item.widget->setFixedWidth(px);
}

QGridLayout* FormWidget::containerLayout(const Control& control) {
  const std::string& name = control.placement().container;
  if (name.empty()) return root_;
  const std::string key = forms::NameKey(name);
  for (auto& item : items_) {
    if (item->control == &control) continue;
    if (forms::NameKey(item->control->address()) != key && forms::NameKey(item->control->name()) != key)
      continue;
    if (item->layout) return item->layout;
    if (!item->pages.empty()) {
      const int page = std::clamp(control.placement().page, 0, static_cast<int>(item->pages.size()) - 1);
      return item->pages[page];
    }
  }
  return root_;
}

void FormWidget::place(Item& item) {
  if (!item.widget) return;
  const forms::Placement& p = item.control->placement();
  QGridLayout* layout = containerLayout(*item.control);
  // A frame that would hold itself goes to the form.
  if (layout == item.layout) layout = root_;
  layout->addWidget(item.widget, std::max(0, p.row), std::max(0, p.col), std::max(1, p.rowSpan),
                    std::max(1, p.colSpan));
}

void FormWidget::widenToTitle() {
  // A fixed dialog narrower than its caption spreads its columns over the
  // width of the title instead of leaving an empty strip at the right.
  const int title = TitleWidth(font(), QString::fromStdString(form_->caption()));
  if (root_->sizeHint().width() >= title) return;
  int used = 0;
  for (int i = 0; i < root_->count(); ++i) {
    int r, c, rs, cs;
    root_->getItemPosition(i, &r, &c, &rs, &cs);
    used = std::max(used, c + cs);
  }
  for (int k = 0; k < root_->columnCount(); ++k) root_->setColumnStretch(k, k < used ? 1 : 0);
  const QMargins m = root_->contentsMargins();
  root_->addItem(new QSpacerItem(title - m.left() - m.right(), 0, QSizePolicy::Fixed, QSizePolicy::Minimum),
                 root_->rowCount(), 0, 1, used);
}

int TitleWidth(const QFont& font, const QString& caption) {
  const int besideTitle = 120;
  return QFontMetrics(font).horizontalAdvance(caption) + besideTitle;
}

void FormWidget::setStretches(QGridLayout* layout, bool resizable) {
  // Extra room goes to the rows and columns of fields that can use it, else
  // to an empty last row and column, so fields stay together.
  std::vector<bool> growRow(layout->rowCount(), false), growCol(layout->columnCount(), false);
  bool anyRow = false, anyCol = false;
  if (resizable) {
    for (int i = 0; i < layout->count(); ++i) {
      int r, c, rs, cs;
      layout->getItemPosition(i, &r, &c, &rs, &cs);
      const Qt::Orientations grows = layout->itemAt(i)->expandingDirections();
      if (grows & Qt::Vertical)
        for (int k = r; k < r + rs; ++k) growRow[k] = anyRow = true;
      if (grows & Qt::Horizontal)
        for (int k = c; k < c + cs; ++k) growCol[k] = anyCol = true;
    }
  }
  for (size_t k = 0; k < growRow.size(); ++k) layout->setRowStretch(static_cast<int>(k), growRow[k] ? 1 : 0);
  for (size_t k = 0; k < growCol.size(); ++k) layout->setColumnStretch(static_cast<int>(k), growCol[k] ? 1 : 0);
  if (!anyRow) layout->setRowStretch(static_cast<int>(growRow.size()), 1);
  if (!anyCol) layout->setColumnStretch(static_cast<int>(growCol.size()), 1);
}

QSize FormWidget::sizeHint() const {
  if (form_ && form_->preferredWidth() > 0 && form_->preferredHeight() > 0)
    return {form_->preferredWidth(), form_->preferredHeight()};
  return QWidget::sizeHint();
}

// ---- lookups -----------------------------------------------------------------------------

FormWidget::Item* FormWidget::itemOf(const Control& control) const {
  auto it = byControl_.find(&control);
  return it == byControl_.end() ? nullptr : it->second;
}

QWidget* FormWidget::widgetOf(const Control& control) const {
  Item* item = itemOf(control);
  return item ? item->widget : nullptr;
}

Control* FormWidget::controlOf(const QObject* object) const {
  Item* item = byObject_.value(object, nullptr);
  return item ? item->control : nullptr;
}

GridModel* FormWidget::gridModelOf(const Control& control) const {
  Item* item = itemOf(control);
  return item ? item->grid : nullptr;
}

QTimer* FormWidget::timerOf(const Control& control) const {
  Item* item = itemOf(control);
  return item ? item->timer : nullptr;
}

QString FormWidget::widgetText(const Item& item) const {
  if (auto* edit = qobject_cast<QPlainTextEdit*>(item.widget)) return edit->toPlainText();
  if (QLineEdit* edit = item.lineEdit()) return edit->text();
  return {};
}

// ---- timers --------------------------------------------------------------------------------

void FormWidget::setTimersEnabled(bool on) {
  timersEnabled_ = on;
  for (auto& item : items_)
    if (item->timer) updateTimer(*item);
}

void FormWidget::updateTimer(Item& item) {
  const Control& c = *item.control;
  const bool run = form_ && timersEnabled_ && c.enabled() && c.intervalMs() > 0;
  if (!run) {
    item.timer->stop();
    return;
  }
  if (item.timer->interval() != c.intervalMs() || !item.timer->isActive()) item.timer->start(c.intervalMs());
}

// ---- model to widgets ----------------------------------------------------------------------

void FormWidget::propertyChanged(Control& control, Property property, int row, int col) {
  if (Item* item = itemOf(control)) mirror(*item, property, row, col);
}

void FormWidget::formCaptionChanged() {
  if (!form_) return;
  const QString caption = QString::fromStdString(form_->caption());
  setWindowTitle(caption);
  emit captionChanged(caption);
}

void FormWidget::mirrorAll(Item& item) {
  if (item.timer) {
    updateTimer(item);
    return;
  }
  if (!item.widget) return;
  for (Property p : {Property::Caption, Property::List, Property::ListIndex, Property::Text,
                     Property::Value, Property::Selected, Property::TextSelection, Property::Enabled,
                     Property::Visible, Property::ToolTip, Property::GridShape, Property::Default})
    mirror(item, p);
}

void FormWidget::mirror(Item& item, Property property, int row, int col) {
  if (!form_) return;
  Updating guard(*this);
  Control& c = *item.control;
  if (item.timer) {
    if (property == Property::Enabled || property == Property::Interval) updateTimer(item);
    return;
  }
  QWidget* w = item.widget;
  if (!w) return;
  switch (property) {
    case Property::Enabled: w->setEnabled(c.enabled()); return;
    case Property::Visible: w->setVisible(c.visible()); return;
    case Property::ToolTip: w->setToolTip(QString::fromStdString(c.toolTip())); return;
    case Property::Focus:
      if (!w->hasFocus()) w->setFocus(Qt::OtherFocusReason);
      return;
    default: break;
  }
  if (item.special) return;
  switch (property) {
    case Property::Caption:
      mirrorCaption(item);
      // Progress texts change while long work holds the event loop: paint now.
      if (QApplication::overrideCursor() && w->isVisible()) w->repaint();
      break;
    case Property::Text: mirrorText(item); break;
    case Property::TextSelection: mirrorSelection(item); break;
    case Property::Value:
      if (auto* box = qobject_cast<QCheckBox*>(w)) {
        box->setTristate(c.value() == 2);
        box->setCheckState(c.value() == 1 ? Qt::Checked : c.value() == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
      } else if (auto* option = qobject_cast<QRadioButton*>(w)) {
        option->setChecked(c.value() != 0);
      }
      break;
    case Property::List: mirrorList(item); break;
    case Property::ListIndex: mirrorListIndex(item); break;
    case Property::Selected: mirrorSelected(item); break;
    case Property::GridShape:
    case Property::GridCells: mirrorGridShape(item); break;
    case Property::GridCell:
      if (item.grid) {
        item.grid->cellChanged(row, col);
        if (row < item.grid->fixedRows() && col < item.grid->fixedCols())
          static_cast<GridView*>(w)->setCornerText(item.grid->cornerText());
      }
      break;
    case Property::GridCursor: mirrorGridCursor(item); break;
    case Property::GridWidths: mirrorGridWidths(item); break;
    case Property::Picture:
      if (auto* picture = qobject_cast<PictureWidget*>(w)) {
        if (QApplication::overrideCursor() && picture->isVisible()) picture->repaint();
        else picture->update();
      }
      break;
    case Property::Default:
      if (auto* button = qobject_cast<QPushButton*>(w)) button->setDefault(c.isDefault());
      break;
    default: break;
  }
}

void FormWidget::mirrorCaption(Item& item) {
  const Control& c = *item.control;
  const QString caption = QString::fromStdString(c.captionText());
  if (auto* label = qobject_cast<QLabel*>(item.widget)) {
    // With a buddy the label shows its access key; without one it must not show the "&".
    label->setText(label->buddy() ? caption : WithoutAccessKey(caption));
  } else if (auto* button = qobject_cast<QAbstractButton*>(item.widget)) {
    button->setText(caption);
  } else if (auto* box = qobject_cast<QGroupBox*>(item.widget)) {
    box->setTitle(caption);
  } else if (auto* browser = qobject_cast<QTextBrowser*>(item.widget)) {
    browser->setHtml(caption);
  }
}

void FormWidget::mirrorText(Item& item) {
  const Control& c = *item.control;
  const bool multi = c.isMultiLine();
  const QString text = ToWidgetText(c.text(), multi);
  // The echo of the user's own edit leaves the caret where the widget has it.
  if (widgetText(item) == text) return;
  if (auto* edit = qobject_cast<QPlainTextEdit*>(item.widget)) {
    edit->setPlainText(text);
  } else if (auto* combo = qobject_cast<QComboBox*>(item.widget)) {
    if (combo->isEditable()) combo->setEditText(text);
  } else if (auto* edit = qobject_cast<QLineEdit*>(item.widget)) {
    edit->setText(text);
  } else {
    return;
  }
  mirrorSelection(item);
}

void FormWidget::mirrorSelection(Item& item) {
  const Control& c = *item.control;
  const bool multi = c.isMultiLine();
  const int start = WidgetPosition(c.text(), c.selStart(), multi);
  const int end = WidgetPosition(c.text(), c.selStart() + c.selLength(), multi);
  if (auto* edit = qobject_cast<QPlainTextEdit*>(item.widget)) {
    QTextCursor cursor = edit->textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    return;
  }
  QLineEdit* edit = item.lineEdit();
  if (!edit) return;
  const int shownStart = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
  const int shownLength = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
  if (shownStart == start && shownLength == end - start) return;
  if (end > start) edit->setSelection(start, end - start);
  else edit->setCursorPosition(start);
}

void FormWidget::mirrorList(Item& item) {
  const Control& c = *item.control;
  QStringList entries;
  for (const std::string& s : c.list()) entries << QString::fromStdString(s);
  if (auto* combo = qobject_cast<QComboBox*>(item.widget)) {
    combo->clear();
    combo->addItems(entries);
    combo->setCurrentIndex(c.listIndex());
    mirrorText(item);
  } else if (auto* list = qobject_cast<QListWidget*>(item.widget)) {
    list->clear();
    list->addItems(entries);
    mirrorListIndex(item);
    mirrorSelected(item);
  } else if (auto* tabs = qobject_cast<QTabWidget*>(item.widget)) {
    while (tabs->count() < entries.size()) {
      auto* page = new QWidget(tabs);
      item.pages.push_back(new QGridLayout(page));
      tabs->addTab(page, QString());
    }
    for (int i = 0; i < tabs->count(); ++i) tabs->setTabText(i, i < entries.size() ? entries[i] : QString());
    mirrorListIndex(item);
  }
}

void FormWidget::mirrorListIndex(Item& item) {
  const Control& c = *item.control;
  const int index = c.listIndex();
  if (auto* combo = qobject_cast<QComboBox*>(item.widget)) {
    if (combo->currentIndex() != index) combo->setCurrentIndex(index);
    if (combo->isEditable()) mirrorText(item);
  } else if (auto* list = qobject_cast<QListWidget*>(item.widget)) {
    if (c.isMultiSelect()) {
      if (list->currentRow() != index) list->setCurrentRow(index, QItemSelectionModel::NoUpdate);
    } else if (index < 0) {
      list->clearSelection();
      list->setCurrentRow(-1, QItemSelectionModel::Clear);
    } else if (list->currentRow() != index || !list->item(index)->isSelected()) {
      list->setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
    }
    if (index >= 0 && list->item(index)) list->scrollToItem(list->item(index));
  } else if (auto* tabs = qobject_cast<QTabWidget*>(item.widget)) {
    if (index >= 0 && index < tabs->count() && tabs->currentIndex() != index) tabs->setCurrentIndex(index);
  }
}

void FormWidget::mirrorSelected(Item& item) {
  const Control& c = *item.control;
  auto* list = qobject_cast<QListWidget*>(item.widget);
  if (!list || !c.isMultiSelect()) return;
  for (int i = 0; i < list->count(); ++i)
    if (list->item(i)->isSelected() != c.selected(i)) list->item(i)->setSelected(c.selected(i));
}

void FormWidget::mirrorGridShape(Item& item) {
  if (!item.grid) return;
  auto* view = static_cast<GridView*>(item.widget);
  item.grid->reset();
  view->horizontalHeader()->setVisible(item.grid->fixedRows() > 0);
  view->verticalHeader()->setVisible(item.grid->fixedCols() > 0);
  view->setCornerText(item.grid->cornerText());
  mirrorGridWidths(item);
  mirrorGridCursor(item);
}

void FormWidget::mirrorGridWidths(Item& item) {
  if (!item.grid) return;
  auto* view = static_cast<GridView*>(item.widget);
  const forms::GridData& g = item.control->gridData();
  // Grids hold numbers: a digit is wider than the average letter.
  const int charWidth = std::max(view->fontMetrics().averageCharWidth(),
                                 view->fontMetrics().horizontalAdvance(QLatin1Char('0')));
  const int fixedCols = item.grid->fixedCols();
  int headerWidth = 0;
  for (int c = 0; c < g.cols && c < static_cast<int>(g.colWidthChars.size()); ++c) {
    const int chars = g.colWidthChars[c];
    if (chars <= 0) continue;
    const int px = chars * charWidth + 10;
    if (c < fixedCols) headerWidth += px;
    else view->setColumnWidth(c - fixedCols, px);
  }
  if (headerWidth > 0) view->verticalHeader()->setMinimumWidth(headerWidth);
}

void FormWidget::mirrorGridCursor(Item& item) {
  if (!item.grid) return;
  auto* view = static_cast<GridView*>(item.widget);
  QItemSelectionModel* selection = view->selectionModel();
  const forms::GridData& g = item.control->gridData();
  GridModel& model = *item.grid;
  if (model.rowCount() == 0 || model.columnCount() == 0) {
    selection->clear();
    return;
  }
  const auto clampRow = [&](int r) { return std::clamp(r, model.fixedRows(), g.rows - 1); };
  const auto clampCol = [&](int c) { return std::clamp(c, model.fixedCols(), g.cols - 1); };
  // The model's Row and Col are where a selection started; Qt's current
  // index is the corner that moves, RowSel and ColSel.
  const QModelIndex moving = model.indexOfCell(clampRow(g.rowSel), clampCol(g.colSel));
  const QModelIndex anchor = model.indexOfCell(clampRow(g.row), clampCol(g.col));
  const QModelIndex topLeft = model.index(std::min(moving.row(), anchor.row()), std::min(moving.column(), anchor.column()));
  const QModelIndex bottomRight = model.index(std::max(moving.row(), anchor.row()), std::max(moving.column(), anchor.column()));
  const QItemSelection wanted(topLeft, bottomRight);
  if (selection->currentIndex() != moving) selection->setCurrentIndex(moving, QItemSelectionModel::NoUpdate);
  if (selection->selection() != wanted) selection->select(wanted, QItemSelectionModel::ClearAndSelect);
  view->scrollTo(moving);
}

// ---- widgets to model ---------------------------------------------------------------------

void FormWidget::connectSignals(Item& item) {
  Item* it = &item;
  QWidget* w = item.widget;
  if (item.timer) {
    connect(item.timer, &QTimer::timeout, this, [this, it] {
      if (form_ && it->control->enabled()) it->control->raise(Event::Timer);
    });
    return;
  }
  if (!w || item.special) return;
  const auto user = [this] { return form_ && updating_ == 0; };

  if (auto* plain = qobject_cast<QPlainTextEdit*>(w)) {
    connect(plain, &QPlainTextEdit::textChanged, this, [this, it, user] { if (user()) textEdited(*it); });
    connect(plain, &QPlainTextEdit::cursorPositionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
    connect(plain, &QPlainTextEdit::selectionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
  } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
    connect(combo, &QComboBox::activated, this, [this, it, user](int index) {
      if (!user()) return;
      Control& c = *it->control;
      c.setListIndex(index);
      // Choosing the entry that is already chosen still brings back its text.
      if (form_ && c.listIndex() == index && index >= 0 && c.typesText() && c.text() != c.list()[index])
        c.setText(c.list()[index]);
      if (form_) {
        Updating guard(*this);
        mirrorListIndex(*it);
      }
    });
    if (QLineEdit* edit = combo->lineEdit()) {
      connect(edit, &QLineEdit::textEdited, this, [this, it, user] { if (user()) textEdited(*it); });
      connect(edit, &QLineEdit::cursorPositionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
      connect(edit, &QLineEdit::selectionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
    }
  } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    connect(edit, &QLineEdit::textEdited, this, [this, it, user] { if (user()) textEdited(*it); });
    connect(edit, &QLineEdit::cursorPositionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
    connect(edit, &QLineEdit::selectionChanged, this, [this, it, user] { if (user()) selectionMoved(*it); });
  } else if (auto* list = qobject_cast<QListWidget*>(w)) {
    connect(list, &QListWidget::currentRowChanged, this, [this, it, user](int row) {
      if (!user()) return;
      if (!it->control->isMultiSelect()) {
        it->control->setListIndex(row);
        return;
      }
      // The selection follows the current row within the same action; take
      // both together once the action is done.
      if (!it->syncQueued) {
        it->syncQueued = true;
        QMetaObject::invokeMethod(this, [this, it] {
          it->syncQueued = false;
          if (form_) syncList(*it);
        }, Qt::QueuedConnection);
      }
    });
    connect(list, &QListWidget::itemSelectionChanged, this, [this, it, user] {
      if (user() && it->control->isMultiSelect()) syncList(*it);
    });
  } else if (auto* view = qobject_cast<GridView*>(w)) {
    connect(view, &GridView::userActed, this, [this, it, user] { if (user()) syncGrid(*it); });
    const auto later = [this, it, user, view] {
      if (!user() || view->inUserAction() || it->syncQueued) return;
      it->syncQueued = true;
      QMetaObject::invokeMethod(this, [this, it] {
        it->syncQueued = false;
        if (form_) syncGrid(*it);
      }, Qt::QueuedConnection);
    };
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, later);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, later);
    connect(view, &QAbstractItemView::clicked, this, [this, it, user] { if (user()) it->control->click(); });
    connect(view->horizontalHeader(), &QHeaderView::sectionClicked, this, [this, it, user] {
      if (user()) it->control->click();
    });
    connect(view->verticalHeader(), &QHeaderView::sectionClicked, this, [this, it, user] {
      if (user()) it->control->click();
    });
  } else if (auto* tabs = qobject_cast<QTabWidget*>(w)) {
    connect(tabs, &QTabWidget::currentChanged, this, [this, it, user](int index) {
      if (user()) it->control->setListIndex(index);
    });
  } else if (auto* spin = dynamic_cast<SpinWidget*>(w)) {
    spin->spin = [this, it](bool up) {
      if (form_ && it->control->enabled()) it->control->raise(up ? Event::SpinUp : Event::SpinDown);
    };
  } else if (auto* browser = qobject_cast<QTextBrowser*>(w)) {
    connect(browser, &QTextBrowser::anchorClicked, this, [this, it](const QUrl& url) {
      if (!form_) return;
      const QString scheme = url.scheme().toLower();
      if (scheme == u"http" || scheme == u"https" || scheme == u"mailto") {
        QDesktopServices::openUrl(url);
        return;
      }
      // A link to another topic: the form reads the target from Tag.
      it->control->setTag(url.toString().toStdString());
      it->control->click();
    });
  } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
    connect(button, &QAbstractButton::clicked, this, [this, it, user] { if (user()) clicked(*it); });
  }
}

void FormWidget::clicked(Item& item) {
  item.control->click();
  if (!form_) return;
  // The widget toggled itself; show what the model made of it.
  Updating guard(*this);
  if (item.control->kind() == ControlKind::CheckBox || item.control->kind() == ControlKind::OptionButton)
    mirror(item, Property::Value);
}

void FormWidget::textEdited(Item& item) {
  Control& c = *item.control;
  c.setText(ToModelText(widgetText(item), c.isMultiLine()));
  if (form_) selectionMoved(item);
}

void FormWidget::selectionMoved(Item& item) {
  Control& c = *item.control;
  const bool multi = c.isMultiLine();
  // The model's text may lag behind while the widget is in the middle of an edit.
  if (ToWidgetText(c.text(), multi) != widgetText(item)) return;
  int start = 0, end = 0;
  if (auto* edit = qobject_cast<QPlainTextEdit*>(item.widget)) {
    const QTextCursor cursor = edit->textCursor();
    start = cursor.selectionStart();
    end = cursor.selectionEnd();
  } else if (QLineEdit* edit = item.lineEdit()) {
    start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    end = start + (edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0);
  } else {
    return;
  }
  const int from = ModelPosition(c.text(), start, multi);
  c.setSelection(from, ModelPosition(c.text(), end, multi) - from);
}

void FormWidget::syncList(Item& item) {
  auto* list = qobject_cast<QListWidget*>(item.widget);
  if (!list) return;
  Control& c = *item.control;
  for (int i = 0; i < list->count() && form_; ++i)
    if (list->item(i)->isSelected() != c.selected(i)) c.setSelected(i, list->item(i)->isSelected());
  if (form_ && list->currentRow() != c.listIndex()) c.setListIndex(list->currentRow());
}

void FormWidget::syncGrid(Item& item) {
  auto* view = static_cast<GridView*>(item.widget);
  GridModel& model = *item.grid;
  const QModelIndex current = view->currentIndex();
  if (!current.isValid()) return;
  const auto [cr, cc] = model.cellOf(current);
  int top = cr, left = cc, bottom = cr, right = cc;
  const QItemSelection selection = view->selectionModel()->selection();
  if (!selection.isEmpty()) {
    top = left = INT_MAX;
    bottom = right = INT_MIN;
    for (const QItemSelectionRange& range : selection) {
      top = std::min(top, range.top());
      left = std::min(left, range.left());
      bottom = std::max(bottom, range.bottom());
      right = std::max(right, range.right());
    }
    top += model.fixedRows();
    bottom += model.fixedRows();
    left += model.fixedCols();
    right += model.fixedCols();
    if (cr < top || cr > bottom || cc < left || cc > right) top = bottom = cr, left = right = cc;
  }
  Control& c = *item.control;
  const forms::GridData& g = c.gridData();
  if (top == bottom && left == right) {
    if (g.row != cr || g.col != cc || g.rowSel != cr || g.colSel != cc) c.setCurrentCell(cr, cc);
    return;
  }
  const int anchorRow = cr == top ? bottom : top;
  const int anchorCol = cc == left ? right : left;
  if (g.row != anchorRow || g.col != anchorCol || g.rowSel != cr || g.colSel != cc)
    c.setGridSelection(anchorRow, anchorCol, cr, cc);
}

// ---- events --------------------------------------------------------------------------------

bool FormWidget::eventFilter(QObject* watched, QEvent* event) {
  Item* item = byObject_.value(watched, nullptr);
  if (!item || !form_) return QWidget::eventFilter(watched, event);
  Control& c = *item->control;
  switch (event->type()) {
    case QEvent::KeyPress:
      return keyPress(*item, watched, static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
      if (updating_ == 0 && form_->activeControl() != &c) form_->setActiveControl(&c);
      break;
    case QEvent::MouseButtonDblClick:
      if (c.kind() != ControlKind::CommandButton && c.kind() != ControlKind::PictureBox &&
          c.kind() != ControlKind::SpinButton && c.kind() != ControlKind::RichText)
        c.doubleClick();
      break;
    case QEvent::MouseButtonRelease:
      if (c.kind() == ControlKind::Label && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
          item->widget->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()))
        c.click();
      break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return handleDrop(*item, watched, event);
    default:
      break;
  }
  if (c.isDraggable()) return handleDrag(*item, watched, event);
  return false;
}

bool FormWidget::keyPress(Item& item, QObject* watched, QKeyEvent* event) {
  if (nativeKey_ > 0) return false;
  Control& c = *item.control;
  const KeyStroke key = MapKey(*event);
  if (key.keyCode == 0 && key.ch == 0) return false;
  forms::Form& form = *form_;
  const forms::Form::KeyResult r = form.handleKey(c, key.keyCode, key.shift, key.ch);
  event->accept();
  const auto finish = [&] {
    // The handlers may have unloaded the form; its model lives until collected.
    if (form_ && r.keyCode != 0) form.keyUp(c, r.keyCode, key.shift);
    return true;
  };
  if (!form_ || r.consumed) return finish();
  if (r.ch != key.ch && c.typesText()) {
    // A KeyPress handler typed another character: the model types it.
    selectionMoved(item);
    if (r.ch >= 32 && r.ch != 127) c.replaceSelection(forms::utf8::Encode(r.ch));
    else form.defaultKeyAction(c, r.keyCode, key.shift, r.ch);
    return finish();
  }
  // The widget edits on its own; its signals bring the edit to the model.
  ++nativeKey_;
  QPointer<QObject> target(watched);
  QCoreApplication::sendEvent(watched, event);
  --nativeKey_;
  if (target) event->accept();
  return finish();
}

bool FormWidget::handleDrag(Item& item, QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      auto* e = static_cast<QMouseEvent*>(event);
      // A sweep over a grid's cells selects; only its row header drags.
      const bool gridCells = item.grid && !IsRowHeader(item, watched);
      if (e->button() == Qt::LeftButton && !gridCells) {
        dragItem_ = &item;
        dragFrom_ = e->position().toPoint();
        dragWatched_ = watched;
      }
      return false;
    }
    case QEvent::MouseButtonRelease:
      dragItem_ = nullptr;
      return false;
    case QEvent::MouseMove: {
      auto* e = static_cast<QMouseEvent*>(event);
      if (dragItem_ != &item || !(e->buttons() & Qt::LeftButton)) return false;
      if ((e->position().toPoint() - dragFrom_).manhattanLength() < QApplication::startDragDistance())
        return false;
      dragItem_ = nullptr;
      forms::EventArgs args;
      args.button = 1;
      args.x = dragFrom_.x();
      args.y = dragFrom_.y();
      GridCellAt(item, dragWatched_, dragFrom_, args.row, args.col);
      item.control->raise(Event::DragStart, args);
      if (!form_ || args.cancel) return true;
      auto* drag = new QDrag(watched);
      auto* mime = new QMimeData;
      mime->setData(QString::fromLatin1(kDragFormat), QByteArray::fromStdString(item.control->address()));
      drag->setMimeData(mime);
      CurrentDrag() = {this, item.control};
      drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
      CurrentDrag() = {};
      return true;
    }
    default:
      return false;
  }
}

bool FormWidget::IsRowHeader(const Item& item, const QObject* watched) {
  auto* view = item.grid ? qobject_cast<QTableView*>(item.widget) : nullptr;
  return view && watched == view->verticalHeader()->viewport();
}

// The grid's own row and column (fixed ones counted) at a point of its cell
// area or its row header; -1, -1 elsewhere.
void FormWidget::GridCellAt(const Item& item, const QObject* watched, QPoint pos, int& row, int& col) {
  row = col = -1;
  auto* view = item.grid ? qobject_cast<QTableView*>(item.widget) : nullptr;
  if (!view) return;
  const int fixedRows = item.grid->fixedRows(), fixedCols = item.grid->fixedCols();
  if (watched == view->viewport()) {
    const QModelIndex index = view->indexAt(pos);
    if (!index.isValid()) return;
    row = index.row() + fixedRows;
    col = index.column() + fixedCols;
  } else if (IsRowHeader(item, watched)) {
    const int r = view->verticalHeader()->logicalIndexAt(pos.y());
    if (r < 0) return;
    row = r + fixedRows;
    col = fixedCols > 0 ? fixedCols - 1 : 0;
  }
}

bool FormWidget::handleDrop(Item& item, QObject* watched, QEvent* event) {
  auto* e = static_cast<QDropEvent*>(event);
  const DragSource& source = CurrentDrag();
  const bool ours = e->mimeData() && e->mimeData()->hasFormat(QString::fromLatin1(kDragFormat)) &&
                    source.view && source.control;
  if (!item.control->isDropTarget() || !ours) return false;
  if (event->type() != QEvent::Drop) {
    e->acceptProposedAction();
    return true;
  }
  e->acceptProposedAction();
  forms::EventArgs args;
  args.source = source.control;
  args.x = e->position().x();
  args.y = e->position().y();
  GridCellAt(item, watched, e->position().toPoint(), args.row, args.col);
  item.control->raise(Event::DragDrop, args);
  return true;
}

}  // namespace kolm::shell

#include "shell/main_window.h"

#include <QApplication>

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHideEvent>
#include <QComboBox>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QToolBar>
#include <functional>

#include "shell/icons.h"

namespace kolm::shell {

using core::MainForm;
using forms::Control;
using forms::ControlKind;

namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// A label shows "&&" as "&" and no access key.
QString LabelText(const std::string& caption) {
  QString out;
  const QString in = Q(caption);
  for (int i = 0; i < in.size(); ++i) {
    if (in[i] == u'&') {
      if (i + 1 < in.size() && in[i + 1] == u'&') {
        out += u'&';
        ++i;
      }
      continue;
    }
    out += in[i];
  }
  return out;
}

// A label that acts when clicked, as the table labels and the BlueBox do.
class ClickLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> clicked, doubleClicked;

 protected:
  void mouseReleaseEvent(QMouseEvent* e) override {
    if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()) && clicked) clicked();
    QLabel::mouseReleaseEvent(e);
  }
  void mouseDoubleClickEvent(QMouseEvent* e) override {
    if (e->button() == Qt::LeftButton && doubleClicked) doubleClicked();
    QLabel::mouseDoubleClickEvent(e);
  }
};

}  // namespace

// ---- window -------------------------------------------------------------------------

MainWindow::MainWindow(MainForm& main, QWidget* parent)
    : QMainWindow(parent), main_(main), mdi_(new QMdiArea(this)) {
  setObjectName("Main");
  mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(mdi_);
  status_ = new QLabel(this);
  status_->setObjectName("LabelInfo");
  statusBar()->addWidget(status_, 1);

  buildMenus();
  buildBars();
  buildStrip();
  buildBlueBox();
  if (main_.preferredWidth() > 0) resize(main_.preferredWidth(), main_.preferredHeight());

  syncAll();
  formCaptionChanged();
  main_.addObserver(this);
}

MainWindow::~MainWindow() {
  if (attached_) main_.removeObserver(this);
}

void MainWindow::detach() {
  if (!attached_) return;
  attached_ = false;
  main_.removeObserver(this);
  setEnabled(false);
}

void MainWindow::buildMenus() {
  for (Control* c : main_.menuControls()) {
    Control* parent = c->placement().container.empty() ? nullptr : main_.find(c->placement().container);
    QMenu* parentMenu = parent && menus_.count(parent) ? menus_[parent] : nullptr;
    if (parentMenu && c->hasSeparatorBefore()) parentMenu->addSeparator();

    if (main_.opensSubmenu(*c)) {
      QMenu* m = parentMenu ? parentMenu->addMenu(Q(c->captionText())) : menuBar()->addMenu(Q(c->captionText()));
      m->setObjectName(Q(c->name()));
      menus_[c] = m;
      actions_[c] = m->menuAction();
      // Opening a menu is its Click: its handler may enable its entries then.
      connect(m, &QMenu::aboutToShow, this, [c] { c->click(); });
      continue;
    }
    QAction* a = parentMenu ? parentMenu->addAction(Q(c->captionText())) : menuBar()->addAction(Q(c->captionText()));
    a->setObjectName(Q(c->name()));
    if (!c->shortcutKeys().empty())
      a->setShortcut(QKeySequence(Q(c->shortcutKeys()), QKeySequence::PortableText));
    actions_[c] = a;
    connect(a, &QAction::triggered, this, [this, c] {
      c->click();
      sync(*c);  // the action toggled itself; the model decides
    });
  }
}

void MainWindow::buildBars() {
  struct Leiste {
    MainForm::Bar bar;
    const char* buttons;
    Qt::ToolBarArea area;
  };
  const Leiste leisten[] = {
      {MainForm::Bar::Funktionen, "FnLButton", Qt::TopToolBarArea},
      {MainForm::Bar::Geradenschnitte, "GerButton", Qt::LeftToolBarArea},
      {MainForm::Bar::Kreisberechnungen, "KreisButton", Qt::RightToolBarArea},
  };
  for (const Leiste& s : leisten) {
    Control& frame = main_.barFrame(s.bar);
    auto* tb = new QToolBar(Q(frame.captionText()), this);
    tb->setObjectName(Q(frame.name()));
    tb->setFloatable(false);
    tb->setIconSize(QSize(24, 24));
    addToolBar(s.area, tb);
    bars_[&frame] = tb;
    for (Control* b : main_.array(s.buttons)) {
      QAction* a = tb->addAction(BarIcon(b->iconName()), LabelText(b->toolTip()));
      a->setObjectName(Q(b->address()));
      actions_[b] = a;
      connect(a, &QAction::triggered, this, [b] { b->click(); });
      // The user sees a gap between the groups of the general bar.
      if (std::string(s.buttons) == "FnLButton" && (b->index() == 3 || b->index() == 7 || b->index() == 10 ||
                                                    b->index() == 14 || b->index() == 17))
        tb->addSeparator();
    }
  }
}

void MainWindow::buildStrip() {
  Control& frame = main_.barFrame(MainForm::Bar::Informationen);
  addToolBarBreak(Qt::TopToolBarArea);
  auto* tb = new QToolBar(Q(frame.captionText()), this);
  tb->setObjectName(Q(frame.name()));
  tb->setFloatable(false);
  addToolBar(Qt::TopToolBarArea, tb);
  bars_[&frame] = tb;

  auto place = [this, tb](Control& c, QWidget* w) {
    w->setObjectName(Q(c.name()));
    actions_[&c] = tb->addWidget(w);
    widgets_[&c] = w;
  };
  for (const char* name : {"Check3D", "CheckPolar"}) {
    Control& c = main_.control(name);
    auto* box = new QCheckBox(tb);
    connect(box, &QCheckBox::clicked, this, [this, &c](bool on) {
      c.setValue(on ? 1 : 0);
      sync(c);
    });
    place(c, box);
  }
  for (const char* name : {"KoordinatenSystem", "ComboWinkelEinheit"}) {
    Control& c = main_.control(name);
    auto* combo = new QComboBox(tb);
    if (c.placement().widthChars > 0)
      combo->setMinimumContentsLength(c.placement().widthChars);
    connect(combo, &QComboBox::activated, this, [this, &c](int i) {
      c.setListIndex(i);
      sync(c);
    });
    place(c, combo);
  }
  tb->addSeparator();
  for (const char* name : {"LabelAktTab", "LabelPktTab"}) {
    Control& c = main_.control(name);
    auto* label = new ClickLabel(tb);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    label->setMargin(2);
    label->setCursor(Qt::PointingHandCursor);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * std::max(8, c.placement().widthChars));
    label->clicked = [&c] { c.click(); };
    place(c, label);
  }
}

void MainWindow::buildBlueBox() {
  auto* dock = new QDockWidget(this);
  dock->setObjectName("BlueBox");
  dock->setTitleBarWidget(new QWidget(dock));
  dock->setFeatures(QDockWidget::DockWidgetMovable);
  auto* panel = new QWidget(dock);
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(4, 2, 4, 2);

  Control& box = main_.control("DragContainer");
  auto* label = new ClickLabel(panel);
  label->setObjectName("DragContainer");
  label->setStyleSheet(
      "QLabel { background: #1c58b0; color: white; border: 1px solid #123c7a;"
      " border-radius: 3px; padding: 4px 10px; font-weight: bold; }");
  label->setAlignment(Qt::AlignCenter);
  label->setMinimumWidth(200);
  label->setAcceptDrops(box.isDropTarget());
  label->clicked = [&box] { box.click(); };
  label->doubleClicked = [&box] { box.doubleClick(); };
  widgets_[&box] = label;
  row->addWidget(label);

  Control& list = main_.control("cmbBlueBox");
  auto* combo = new QComboBox(panel);
  combo->setObjectName("cmbBlueBox");
  if (list.placement().widthChars > 0) combo->setMinimumContentsLength(list.placement().widthChars);
  connect(combo, &QComboBox::activated, this, [this, &list](int i) {
    list.setListIndex(i);
    sync(list);
  });
  widgets_[&list] = combo;
  row->addWidget(combo, 1);

  dock->setWidget(panel);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
}

QAction* MainWindow::action(const std::string& name, int index) const {
  const Control* c = main_.find(name, index);
  auto it = c ? actions_.find(c) : actions_.end();
  return it == actions_.end() ? nullptr : it->second;
}

QMenu* MainWindow::menu(const std::string& name) const {
  const Control* c = main_.find(name);
  auto it = c ? menus_.find(c) : menus_.end();
  return it == menus_.end() ? nullptr : it->second;
}

QToolBar* MainWindow::bar(MainForm::Bar which) const {
  auto it = bars_.find(&main_.barFrame(which));
  return it == bars_.end() ? nullptr : it->second;
}

QWidget* MainWindow::widget(const std::string& name) const {
  const Control* c = main_.find(name);
  if (c && c->name() == "LabelInfo") return status_;
  auto it = c ? widgets_.find(c) : widgets_.end();
  return it == widgets_.end() ? nullptr : it->second;
}

void MainWindow::propertyChanged(Control& control, forms::Property, int, int) { sync(control); }

void MainWindow::formCaptionChanged() { setWindowTitle(Q(main_.caption())); }

void MainWindow::syncAll() {
  for (const auto& c : main_.controls()) sync(*c);
}

void MainWindow::sync(Control& c) {
  if (auto m = menus_.find(&c); m != menus_.end()) {
    m->second->setTitle(Q(c.captionText()));
    m->second->menuAction()->setEnabled(c.enabled());
    m->second->menuAction()->setVisible(c.visible());
    return;
  }
  if (auto b = bars_.find(&c); b != bars_.end()) {
    b->second->setWindowTitle(Q(c.captionText()));
    b->second->setVisible(c.visible());
    return;
  }
  if (c.name() == "LabelInfo") {
    status_->setText(LabelText(c.captionText()));
    // Status texts of long work (loading, saving) show while it runs.
    if (QApplication::overrideCursor() && status_->isVisible()) status_->repaint();
    return;
  }
  if (auto a = actions_.find(&c); a != actions_.end()) {
    QAction* action = a->second;
    if (c.kind() == ControlKind::Menu) {
      action->setText(Q(c.captionText()));
      action->setCheckable(main_.checkable(c));
      action->setChecked(c.checked());
    } else if (c.kind() == ControlKind::CommandButton) {
      action->setToolTip(LabelText(c.toolTip()));
      action->setText(LabelText(c.toolTip()));
    }
    action->setEnabled(c.enabled());
    action->setVisible(c.visible());
  }
  auto w = widgets_.find(&c);
  if (w == widgets_.end()) return;
  QWidget* widget = w->second;
  widget->setEnabled(c.enabled());
  widget->setToolTip(LabelText(c.toolTip()));
  if (!actions_.count(&c)) widget->setVisible(c.visible());
  if (auto* box = qobject_cast<QCheckBox*>(widget)) {
    box->setText(Q(c.captionText()));
    box->setTristate(c.value() == 2);
    box->setCheckState(c.value() == 1 ? Qt::Checked : c.value() == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
  } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
    const QSignalBlocker quiet(combo);
    QStringList items;
    for (const std::string& item : c.list()) items << Q(item);
    QStringList shown;
    for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
    if (shown != items) {
      combo->clear();
      combo->addItems(items);
    }
    combo->setCurrentIndex(c.listIndex());
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    label->setText(LabelText(c.captionText()));
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // The model decides; agreeing, it ends the program.
  if (!attached_ || main_.forms().unload(main_)) {
    detach();
    event->accept();
  } else {
    event->ignore();
  }
}

void MainWindow::hideEvent(QHideEvent* event) {
  // The host hides the frame when Main was unloaded by its own Beenden.
  if (attached_ && !main_.loaded()) detach();
  QMainWindow::hideEvent(event);
}

}  // namespace kolm::shell

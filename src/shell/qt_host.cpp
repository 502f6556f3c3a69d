#include "shell/qt_host.h"

#include <algorithm>

#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPixmap>
#include <QSaveFile>
#include <QScreen>
#include <QVBoxLayout>
#include <QWidget>

#include "forms/names.h"

namespace kolm::shell {

namespace {

// The window of a modal form. Enter and Esc belong to the form's default
// and cancel buttons, so the dialog leaves them alone; closing asks the model.
class FormDialog final : public QDialog {
 public:
  explicit FormDialog(QWidget* parent) : QDialog(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
  }
  void reject() override { close(); }

 protected:
  void keyPressEvent(QKeyEvent* e) override {
    switch (e->key()) {
      case Qt::Key_Escape:
      case Qt::Key_Return:
      case Qt::Key_Enter:
        e->ignore();
        return;
      default:
        QDialog::keyPressEvent(e);
    }
  }
  void closeEvent(QCloseEvent* e) override { e->accept(); }
};

// Tells its owner when the form's caption changes.
class CaptionWatch final : public forms::FormObserver {
 public:
  std::function<void()> changed;
  void propertyChanged(forms::Control&, forms::Property, int, int) override {}
  void formCaptionChanged() override {
    if (changed) changed();
  }
};

// Collects unloaded forms when it is deleted. Deferred deletion waits until
// control is back in the event loop that scheduled it, so no handler of the
// unloaded form is still running, even when it opened a message box.
class Collector final : public QObject {
 public:
  Collector(forms::Forms& forms, QObject* parent) : QObject(parent), forms_(forms) {}
  ~Collector() override { forms_.collect(); }

 private:
  forms::Forms& forms_;
};

}  // namespace

struct QtHost::Entry {
  forms::Form* form = nullptr;
  QPointer<QWidget> content;  // the generic view or the special window
  FormWidget* view = nullptr;
  QPointer<QWidget> window;   // the frame around content, or content itself
  bool framed = true;         // content goes into a subwindow or dialog
  bool modal = false;
  bool placed = false;
  int applying = 0;
  CaptionWatch caption;
};

QtHost::QtHost(QMdiArea* area, QWidget* frame, QObject* parent)
    : QObject(parent), area_(area), frame_(frame) {
  // The menus of the frame act on the child window the user works in.
  if (area_)
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* sub) {
      if (!sub) return;
      for (auto& [form, entry] : entries_)
        if (entry->window == sub && form->loaded()) form->forms().setActive(form);
    });
}

QtHost::~QtHost() {
  for (auto& [form, entry] : entries_) {
    form->removeObserver(&entry->caption);
    if (entry->view) entry->view->detach();
    if (entry->window && entry->framed) delete entry->window.data();
    else if (entry->content && entry->framed) delete entry->content.data();
  }
  entries_.clear();
  for (auto& [form, loop] : modalLoops_) loop->quit();
  // The collector, a child, collects as it goes.
}

void QtHost::registerWindow(const std::string& formName, WindowFactory factory) {
  factories_[forms::NameKey(formName)] = std::move(factory);
}

void QtHost::setTimersEnabled(bool on) {
  timersEnabled_ = on;
  for (auto& [form, entry] : entries_)
    if (entry->view) entry->view->setTimersEnabled(on);
}

QWidget* QtHost::windowOf(forms::Form& form) const {
  auto it = entries_.find(&form);
  if (it == entries_.end()) return nullptr;
  return it->second->window ? it->second->window.data() : nullptr;
}

FormWidget* QtHost::viewOf(forms::Form& form) const {
  auto it = entries_.find(&form);
  return it == entries_.end() ? nullptr : it->second->view;
}

bool QtHost::grab(forms::Form& form, const QString& pngPath) {
  auto it = entries_.find(&form);
  if (it == entries_.end()) return false;
  QWidget* w = it->second->window ? it->second->window.data() : it->second->content.data();
  if (!w) return false;
  const QPixmap picture = w->grab();
  if (picture.isNull()) return false;
  QSaveFile file(pngPath);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (!picture.save(&file, "PNG")) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

QtHost::Entry* QtHost::entryOfWindow(const QObject* window) const {
  for (const auto& [form, entry] : entries_)
    if (entry->window == window) return entry.get();
  return nullptr;
}

QtHost::Entry& QtHost::ensure(forms::Form& form) {
  auto it = entries_.find(&form);
  if (it != entries_.end()) return *it->second;
  auto entry = std::make_unique<Entry>();
  Entry& e = *entry;
  e.form = &form;
  if (auto f = factories_.find(forms::NameKey(form.name())); f != factories_.end() && f->second) {
    e.content = f->second(form);
    if (e.content) {
      e.framed = e.content != frame_ && !e.content->parentWidget();
      if (!e.framed) e.window = e.content;
    }
  }
  if (!e.content) {
    e.view = new FormWidget(form, &views_);
    e.view->setTimersEnabled(timersEnabled_);
    e.view->hide();
    e.content = e.view;
    e.framed = true;
  }
  e.caption.changed = [this, &e] {
    if (e.window && e.framed) e.window->setWindowTitle(QString::fromStdString(e.form->caption()));
  };
  form.addObserver(&e.caption);
  entries_[&form] = std::move(entry);
  return e;
}

void QtHost::frame(Entry& e, bool modal) {
  if (QWidget* old = e.window) {
    old->removeEventFilter(this);
    e.content->setParent(nullptr);
    old->hide();
    old->deleteLater();
    e.window = nullptr;
  }
  if (!modal && area_) {
    auto* sub = new QMdiSubWindow;
    sub->setAttribute(Qt::WA_DeleteOnClose, false);
    sub->setWidget(e.content);
    area_->addSubWindow(sub);
    e.window = sub;
  } else {
    auto* dialog = new FormDialog(frame_);
    dialog->setModal(modal);
    dialog->layout()->addWidget(e.content);
    e.window = dialog;
  }
  e.content->show();
  e.modal = modal;
  e.placed = false;
  e.window->setWindowTitle(QString::fromStdString(e.form->caption()));
  e.window->installEventFilter(this);
}

void QtHost::applyPlacement(Entry& e) {
  QWidget* w = e.window;
  const forms::WindowPlacement p = e.form->placement();
  ++e.applying;
  // A fixed-size dialog keeps the size its controls need now (a 3D table
  // shows one field more than the 2D one it was last closed in); no window
  // is made smaller than its controls need.
  QSize size = w->sizeHint().expandedTo(w->minimumSizeHint());
  // A surveyor tells dialogs apart by their captions: no window cuts its own.
  size.setWidth(std::max(size.width(), TitleWidth(w->font(), w->windowTitle())));
  if (p.width > 0 && p.height > 0 && e.form->resizable())
    size = QSize(p.width, p.height).expandedTo(w->minimumSizeHint());
  // A child window stays within the frame's client area.
  if (!w->isWindow() && area_) size = size.boundedTo(area_->viewport()->size());
  w->resize(size);
  if (p.left != -1 && p.top != -1) {
    w->move(p.left, p.top);
  } else if (w->isWindow() && frame_) {
    // A dialog without a stored place stands in the middle of the frame.
    const QRect f = frame_->frameGeometry();
    w->move(f.center() - QPoint(w->width() / 2, w->height() / 2));
  }
  if (p.maximized) w->showMaximized();
  else w->show();
  --e.applying;
  e.placed = true;
  storePlacement(e);
}

void QtHost::storePlacement(Entry& e) {
  if (e.applying > 0 || !e.placed || !e.window || !e.form->loaded()) return;
  QWidget* w = e.window;
  forms::WindowPlacement& p = e.form->placement();
  if (w->isMinimized() || !w->isVisible()) return;
  if (w->isMaximized()) {
    p.maximized = true;
    return;
  }
  p.maximized = false;
  p.left = w->pos().x();
  p.top = w->pos().y();
  p.width = w->width();
  p.height = w->height();
}

// ---- the host's part in the life of a form ---------------------------------------------------

void QtHost::formLoaded(forms::Form& form) { ensure(form); }

void QtHost::formShown(forms::Form& form) {
  Entry& e = ensure(form);
  if (!e.content) return;
  if (!e.framed) {
    e.content->show();
    e.content->raise();
    e.content->activateWindow();
    return;
  }
  const bool modal = form.modal();
  if (!e.window || (e.modal != modal)) frame(e, modal);
  if (!e.placed) applyPlacement(e);
  else if (!e.window->isVisible()) e.window->show();
  if (auto* sub = qobject_cast<QMdiSubWindow*>(e.window.data())) {
    if (sub->isMinimized()) sub->showNormal();
    area_->setActiveSubWindow(sub);
    sub->raise();
  } else {
    e.window->raise();
    e.window->activateWindow();
  }
  if (e.view && form.activeControl())
    if (QWidget* w = e.view->widgetOf(*form.activeControl())) w->setFocus(Qt::OtherFocusReason);
}

void QtHost::formHidden(forms::Form& form) {
  auto it = entries_.find(&form);
  if (it != entries_.end()) {
    Entry& e = *it->second;
    if (e.window) e.window->hide();
  }
  quitModal(form);
}

void QtHost::formUnloaded(forms::Form& form) {
  quitModal(form);
  auto it = entries_.find(&form);
  if (it != entries_.end()) {
    Entry& e = *it->second;
    form.removeObserver(&e.caption);
    if (e.view) e.view->detach();
    if (e.framed) {
      QWidget* w = e.window ? e.window.data() : e.content.data();
      if (w) {
        w->removeEventFilter(this);
        w->hide();
        w->deleteLater();
      }
    } else if (e.content) {
      e.content->hide();
    }
    entries_.erase(it);
  }
  scheduleCollect(form.forms());
}

void QtHost::runModal(forms::Form& form) {
  if (!form.loaded() || !form.shown()) return;
  QEventLoop loop;
  QEventLoop* outer = nullptr;
  if (auto it = modalLoops_.find(&form); it != modalLoops_.end()) outer = it->second;
  modalLoops_[&form] = &loop;
  if (modalRunner_) modalRunner_(form);
  else loop.exec(QEventLoop::DialogExec);
  if (outer) modalLoops_[&form] = outer;
  else modalLoops_.erase(&form);
  // The code that showed the modal form may still read it.
  if (modalLoops_.empty() && pendingCollect_) {
    forms::Forms* forms = pendingCollect_;
    pendingCollect_ = nullptr;
    scheduleCollect(*forms);
  }
}

void QtHost::quitModal(forms::Form& form) {
  auto it = modalLoops_.find(&form);
  if (it != modalLoops_.end()) it->second->quit();
}

void QtHost::scheduleCollect(forms::Forms& forms) {
  // A modal form's caller holds it until its loop has returned.
  if (!modalLoops_.empty()) {
    pendingCollect_ = &forms;
    return;
  }
  if (collector_) return;
  collector_ = new Collector(forms, this);
  collector_->deleteLater();
}

bool QtHost::eventFilter(QObject* watched, QEvent* event) {
  Entry* e = entryOfWindow(watched);
  if (!e) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Close: {
      // The close button asks the model; a form that refuses keeps its window.
      event->ignore();
      forms::Form& form = *e->form;
      form.forms().unload(form);
      return true;
    }
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
      storePlacement(*e);
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace kolm::shell

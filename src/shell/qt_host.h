#pragma once
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "forms/forms.h"
#include "shell/form_view.h"

class QEventLoop;
class QMdiArea;
class QWidget;

namespace kolm::shell {

// Shows the forms of the model as windows: modeless forms as children of the
// frame's MDI area, modal forms as dialogs above the frame. Destroy the host
// before the Forms it serves (or unload them first): it tells them to
// collect their unloaded forms.
class QtHost final : public QObject, public forms::FormHost {
  Q_OBJECT
 public:
  // A form with a window of its own (the main window for "Main"). A widget
  // that already has a parent, or is the frame, is only shown and hidden; a
  // parentless one is framed like a generic view and deleted on unload.
  using WindowFactory = std::function<QWidget*(forms::Form& form)>;

  QtHost(QMdiArea* area, QWidget* frame, QObject* parent = nullptr);
  ~QtHost() override;

  void registerWindow(const std::string& formName, WindowFactory factory);
  // Drives modal forms instead of waiting for the user (a macro run goes on
  // with its next lines while the form is up). runModal returns when the
  // runner does.
  using ModalRunner = std::function<void(forms::Form& form)>;
  void setModalRunner(ModalRunner runner) { modalRunner_ = std::move(runner); }
  // Widgets of their own for single controls of the generic views.
  ControlViews& controlViews() { return views_; }

  // Macro runs switch timers off; they fire only through the macro then.
  void setTimersEnabled(bool on);
  bool timersEnabled() const { return timersEnabled_; }

  // The window a form is shown in (nullptr when it has none yet).
  QWidget* windowOf(forms::Form& form) const;
  // The generic view of a form; nullptr for forms with a window of their own.
  FormWidget* viewOf(forms::Form& form) const;
  // Writes a picture of the form's window as it is shown now.
  bool grab(forms::Form& form, const QString& pngPath);

  void formLoaded(forms::Form& form) override;
  void formShown(forms::Form& form) override;
  void formHidden(forms::Form& form) override;
  void formUnloaded(forms::Form& form) override;
  void runModal(forms::Form& form) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Entry;

  Entry& ensure(forms::Form& form);
  Entry* entryOfWindow(const QObject* window) const;
  void frame(Entry& entry, bool modal);
  void applyPlacement(Entry& entry);
  void storePlacement(Entry& entry);
  void quitModal(forms::Form& form);
  void scheduleCollect(forms::Forms& forms);

  QPointer<QMdiArea> area_;
  QPointer<QWidget> frame_;
  ControlViews views_;
  std::map<std::string, WindowFactory> factories_;
  std::map<forms::Form*, std::unique_ptr<Entry>> entries_;
  std::map<forms::Form*, QEventLoop*> modalLoops_;
  ModalRunner modalRunner_;
  QPointer<QObject> collector_;
  forms::Forms* pendingCollect_ = nullptr;
  bool timersEnabled_ = true;
};

}  // namespace kolm::shell

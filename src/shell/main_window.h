#pragma once
#include <QMainWindow>
#include <map>
#include <string>

#include "core/main/main_form.h"
#include "forms/form.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace kolm::shell {

// The main window: renders the Main model (menu bar, button bars, settings
// strip, BlueBox, status line) around the area of the child windows. What the
// user does goes to the model; what the model changes comes back here.
// Once Main is unloaded (close box, Beenden) the window lets go of it and
// takes no more input, so the form may be collected before the window goes.
class MainWindow final : public QMainWindow, public forms::FormObserver {
  Q_OBJECT
 public:
  explicit MainWindow(core::MainForm& main, QWidget* parent = nullptr);
  ~MainWindow() override;

  core::MainForm& model() const { return main_; }
  QMdiArea* mdiArea() const { return mdi_; }

  // The widgets that show a control, for the shell and its tests.
  QAction* action(const std::string& name, int index = -1) const;  // menu entry or bar button
  QMenu* menu(const std::string& name) const;                       // menu with entries
  QToolBar* bar(core::MainForm::Bar bar) const;
  QWidget* widget(const std::string& name) const;                   // strip and BlueBox
  QLabel* statusLabel() const { return status_; }

  void propertyChanged(forms::Control& control, forms::Property property, int row, int col) override;
  void formCaptionChanged() override;
  void formUnloaded() override { detach(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  // No bar can be hidden behind the model's back.
  QMenu* createPopupMenu() override { return nullptr; }

 private:
  void buildMenus();
  void buildBars();
  void buildStrip();
  void buildBlueBox();
  void sync(forms::Control& control);
  void syncAll();
  void detach();

  core::MainForm& main_;
  QMdiArea* mdi_;
  QLabel* status_ = nullptr;
  bool attached_ = true;
  std::map<const forms::Control*, QAction*> actions_;
  std::map<const forms::Control*, QMenu*> menus_;
  std::map<const forms::Control*, QToolBar*> bars_;
  std::map<const forms::Control*, QWidget*> widgets_;
};

}  // namespace kolm::shell

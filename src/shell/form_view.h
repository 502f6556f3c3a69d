#pragma once
#include <QHash>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/form.h"

class QGridLayout;
class QKeyEvent;
class QTimer;

namespace kolm::shell {

class GridModel;

// Widgets of their own for single controls (the point grid, the graphic):
// the factory makes the widget, the generic view places it and mirrors
// Enabled, Visible, ToolTip and focus; anything else the widget observes
// itself.
using ControlViewFactory = std::function<QWidget*(forms::Control& control, QWidget* parent)>;

class ControlViews {
 public:
  void add(const std::string& formName, const std::string& controlName, ControlViewFactory factory);
  const ControlViewFactory* find(const forms::Control& control) const;

 private:
  std::map<std::pair<std::string, std::string>, ControlViewFactory> factories_;
};

// A caption as shown where no access key can act: "&&" gives "&", a single
// "&" is dropped.
QString WithoutAccessKey(const QString& caption);

// Code point positions of the model's text and UTF-16 positions of the
// widget's; a multi-line field shows the model's CR LF as one line break.
int WidgetPosition(const std::string& modelText, int codePoints, bool multiLine);
int ModelPosition(const std::string& modelText, int utf16, bool multiLine);

// Pixels a window needs so that its caption stands whole in the title bar
// beside the icon and the window buttons.
int TitleWidth(const QFont& font, const QString& caption);

// The generic view of a form: built from the form's declaration, mirroring
// every change of the model and forwarding what the user does to it.
class FormWidget final : public QWidget, public forms::FormObserver {
  Q_OBJECT
 public:
  explicit FormWidget(forms::Form& form, const ControlViews* views = nullptr, QWidget* parent = nullptr);
  ~FormWidget() override;

  // The form, or nullptr once it has unloaded.
  forms::Form* form() const { return form_; }
  // The form unloads: stop listening and firing timers before the model goes.
  void detach();

  QWidget* widgetOf(const forms::Control& control) const;
  forms::Control* controlOf(const QObject* object) const;
  GridModel* gridModelOf(const forms::Control& control) const;
  QTimer* timerOf(const forms::Control& control) const;

  // Timers fire only while enabled here (macro runs switch them off).
  void setTimersEnabled(bool on);
  bool timersEnabled() const { return timersEnabled_; }

  QSize sizeHint() const override;

  void propertyChanged(forms::Control& control, forms::Property property, int row, int col) override;
  void formCaptionChanged() override;

 signals:
  void captionChanged(const QString& caption);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Item;
  class Updating;

  void build(const ControlViews* views);
  void create(Item& item, const ControlViews* views);
  void connectSignals(Item& item);
  void watch(Item& item, QObject* object);
  QGridLayout* containerLayout(const forms::Control& control);
  void place(Item& item);
  void setStretches(QGridLayout* layout, bool resizable);
  void widenToTitle();
  void applyWidth(Item& item);
  void mirrorAll(Item& item);
  void mirror(Item& item, forms::Property property, int row = -1, int col = -1);
  void mirrorCaption(Item& item);
  void mirrorText(Item& item);
  void mirrorSelection(Item& item);
  void mirrorList(Item& item);
  void mirrorListIndex(Item& item);
  void mirrorSelected(Item& item);
  void mirrorGridShape(Item& item);
  void mirrorGridCursor(Item& item);
  void mirrorGridWidths(Item& item);
  void updateTimer(Item& item);

  // From the widgets to the model.
  void textEdited(Item& item);
  void selectionMoved(Item& item);
  void syncList(Item& item);
  void syncGrid(Item& item);
  void clicked(Item& item);
  bool keyPress(Item& item, QObject* watched, QKeyEvent* event);
  bool handleDrag(Item& item, QObject* watched, QEvent* event);
  bool handleDrop(Item& item, QObject* watched, QEvent* event);
  static bool IsRowHeader(const Item& item, const QObject* watched);
  static void GridCellAt(const Item& item, const QObject* watched, QPoint pos, int& row, int& col);

  Item* itemOf(const forms::Control& control) const;
  QString widgetText(const Item& item) const;

  forms::Form* form_;
  std::vector<std::unique_ptr<Item>> items_;
  std::unordered_map<const forms::Control*, Item*> byControl_;
  QHash<const QObject*, Item*> byObject_;
  QGridLayout* root_ = nullptr;
  int updating_ = 0;     // mirroring the model: the widgets' signals are not user actions
  int nativeKey_ = 0;    // a key handed back to its widget for native editing
  bool timersEnabled_ = true;
  QPoint dragFrom_;
  Item* dragItem_ = nullptr;
  QObject* dragWatched_ = nullptr;
};

}  // namespace kolm::shell

#pragma once
#include <QAbstractTableModel>
#include <QTableView>
#include <utility>

namespace kolm::forms {
class Control;
}

namespace kolm::shell {

// The cells of a grid control for a QTableView. The fixed rows and columns
// are the view's headers; every other cell is one item, read from the
// control when it is drawn, so large grids cost nothing until shown.
class GridModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit GridModel(forms::Control& grid, QObject* parent = nullptr);

  forms::Control* control() const { return grid_; }
  // The grid goes away: the model shows nothing from now on.
  void detach();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  int fixedRows() const { return fixedRows_; }
  int fixedCols() const { return fixedCols_; }
  // Index of a cell in the grid's own numbers; invalid for fixed cells.
  QModelIndex indexOfCell(int row, int col) const;
  // Grid numbers of an item.
  std::pair<int, int> cellOf(const QModelIndex& index) const;
  // Text of the corner where the fixed rows and columns meet.
  QString cornerText() const;

  // Told by the view when the control says so.
  void cellChanged(int row, int col);
  void reset();  // shape or many cells changed

 signals:
  void cornerChanged();

 private:
  QString text(int row, int col) const;
  void readShape();

  forms::Control* grid_;
  int rows_ = 0, cols_ = 0, fixedRows_ = 0, fixedCols_ = 0;
};

// The table of a grid control. A mouse or key action can move the current
// cell and the selection in several steps; the view reports once when the
// action is done, so the model hears of the whole change at once.
class GridView final : public QTableView {
  Q_OBJECT
 public:
  explicit GridView(QWidget* parent = nullptr);
  bool inUserAction() const { return userAction_ > 0; }
  void setCornerText(const QString& text);
  QString cornerText() const { return corner_; }

 signals:
  void userActed();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // Typed characters belong to the form's key handlers, not to a search.
  void keyboardSearch(const QString&) override {}
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  template <typename F>
  void act(F&& f);

  int userAction_ = 0;
  QString corner_;
  QWidget* cornerButton_ = nullptr;
};

}  // namespace kolm::shell

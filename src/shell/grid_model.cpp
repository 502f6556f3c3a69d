#include "shell/grid_model.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>
#include <QStyleOptionHeader>
#include <algorithm>

#include "forms/control.h"

namespace kolm::shell {

GridModel::GridModel(forms::Control& grid, QObject* parent) : QAbstractTableModel(parent), grid_(&grid) {
  readShape();
}

void GridModel::readShape() {
  if (!grid_) {
    rows_ = cols_ = fixedRows_ = fixedCols_ = 0;
    return;
  }
  const forms::GridData& g = grid_->gridData();
  rows_ = g.rows;
  cols_ = g.cols;
  fixedRows_ = std::clamp(g.fixedRows, 0, rows_);
  fixedCols_ = std::clamp(g.fixedCols, 0, cols_);
}

void GridModel::detach() {
  beginResetModel();
  grid_ = nullptr;
  readShape();
  endResetModel();
}

void GridModel::reset() {
  beginResetModel();
  readShape();
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_ - fixedRows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : cols_ - fixedCols_;
}

QString GridModel::text(int row, int col) const {
  if (!grid_) return {};
  return QString::fromStdString(grid_->cell(row, col));
}

namespace {
// Numbers stand to the right, texts to the left, as the classic grid shows them.
bool LooksNumeric(const QString& s) {
  const QString t = s.trimmed();
  if (t.isEmpty()) return false;
  bool digit = false;
  for (const QChar ch : t) {
    if (ch.isDigit()) digit = true;
    else if (ch != u'.' && ch != u',' && ch != u'-' && ch != u'+' && ch != u'e' && ch != u'E')
      return false;
  }
  return digit;
}
}  // namespace

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !grid_) return {};
  const auto [r, c] = cellOf(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
      const QString s = text(r, c);
      if (role == Qt::ToolTipRole && s.isEmpty()) return {};
      return s;
    }
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Qt::Alignment(Qt::AlignVCenter) |
                                 (LooksNumeric(text(r, c)) ? Qt::AlignRight : Qt::AlignLeft));
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (!grid_ || role != Qt::DisplayRole) return QAbstractTableModel::headerData(section, orientation, role);
  QStringList parts;
  if (orientation == Qt::Horizontal) {
    const int c = section + fixedCols_;
    for (int r = 0; r < fixedRows_; ++r) parts << text(r, c);
    return parts.join(QLatin1Char('\n'));
  }
  const int r = section + fixedRows_;
  for (int c = 0; c < fixedCols_; ++c) parts << text(r, c);
  return parts.join(QLatin1Char(' '));
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QModelIndex GridModel::indexOfCell(int row, int col) const {
  if (row < fixedRows_ || col < fixedCols_ || row >= rows_ || col >= cols_) return {};
  return index(row - fixedRows_, col - fixedCols_);
}

std::pair<int, int> GridModel::cellOf(const QModelIndex& index) const {
  return {index.row() + fixedRows_, index.column() + fixedCols_};
}

QString GridModel::cornerText() const {
  QStringList parts;
  for (int r = 0; r < fixedRows_; ++r)
    for (int c = 0; c < fixedCols_; ++c) parts << text(r, c);
  return parts.join(QLatin1Char(' ')).trimmed();
}

void GridModel::cellChanged(int row, int col) {
  if (!grid_ || row < 0 || col < 0 || row >= rows_ || col >= cols_) return;
  if (row >= fixedRows_ && col >= fixedCols_) {
    const QModelIndex i = indexOfCell(row, col);
    emit dataChanged(i, i, {Qt::DisplayRole, Qt::ToolTipRole, Qt::TextAlignmentRole});
  } else if (row < fixedRows_ && col >= fixedCols_) {
    emit headerDataChanged(Qt::Horizontal, col - fixedCols_, col - fixedCols_);
  } else if (col < fixedCols_ && row >= fixedRows_) {
    emit headerDataChanged(Qt::Vertical, row - fixedRows_, row - fixedRows_);
  } else {
    emit cornerChanged();
  }
}

// ---- view ---------------------------------------------------------------------

GridView::GridView(QWidget* parent) : QTableView(parent) {
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setSelectionBehavior(QAbstractItemView::SelectItems);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAlternatingRowColors(false);
  setCornerButtonEnabled(false);
  // Uniform rows: the view never asks every row for its height.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  horizontalHeader()->setHighlightSections(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  cornerButton_ = findChild<QAbstractButton*>();
  if (cornerButton_) cornerButton_->installEventFilter(this);
}

void GridView::setCornerText(const QString& text) {
  if (corner_ == text) return;
  corner_ = text;
  if (cornerButton_) cornerButton_->update();
}

template <typename F>
void GridView::act(F&& f) {
  ++userAction_;
  f();
  --userAction_;
  if (userAction_ == 0) emit userActed();
}

void GridView::mousePressEvent(QMouseEvent* e) { act([&] { QTableView::mousePressEvent(e); }); }
void GridView::mouseMoveEvent(QMouseEvent* e) {
  // Only a drag selects; hovering must not move the model's cell.
  if (e->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(e);
  else act([&] { QTableView::mouseMoveEvent(e); });
}
void GridView::mouseReleaseEvent(QMouseEvent* e) { act([&] { QTableView::mouseReleaseEvent(e); }); }
void GridView::keyPressEvent(QKeyEvent* e) { act([&] { QTableView::keyPressEvent(e); }); }

bool GridView::eventFilter(QObject* watched, QEvent* event) {
  // The corner where fixed rows and columns meet shows its text as a header does.
  if (watched == cornerButton_ && event->type() == QEvent::Paint) {
    auto* button = static_cast<QWidget*>(watched);
    QPainter painter(button);
    QStyleOptionHeader option;
    option.initFrom(button);
    option.rect = button->rect();
    option.text = corner_;
    option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.position = QStyleOptionHeader::OnlyOneSection;
    option.orientation = Qt::Horizontal;
    option.state |= QStyle::State_Raised;
    button->style()->drawControl(QStyle::CE_Header, &option, &painter, button);
    return true;
  }
  return QTableView::eventFilter(watched, event);
}

}  // namespace kolm::shell

#include "shell/grid_model.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <algorithm>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/scripted.h"
#include "shell/form_view.h"
#include "shell_test_app.h"

namespace kolm::shell {
namespace {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

class Tabelle final : public forms::Form {
 public:
  std::vector<std::string> log;

  Tabelle(forms::Forms& forms, int rows, int cols) : Form(forms, "Tabelle", "Tabelle") {
    Control& grid = add(ControlKind::Grid, "Grid").grid(rows, cols, 1, 1).at(0, 0);
    grid.beginGridUpdate();
    grid.setCell(0, 0, "Nr");
    for (int c = 1; c < cols; ++c) grid.setCell(0, c, "Spalte " + std::to_string(c));
    for (int r = 1; r < rows; ++r) grid.setCell(r, 0, std::to_string(r));
    grid.endGridUpdate();
    on("Grid", Event::RowColChange, [this](Control&, EventArgs& a) {
      log.push_back("RowColChange " + std::to_string(a.row) + "," + std::to_string(a.col));
    });
    on("Grid", Event::SelChange, [this](Control&, EventArgs&) { log.push_back("SelChange"); });
    on("Grid", Event::Click, [this](Control&, EventArgs&) { log.push_back("Click"); });
  }
  Control& grid() { return control("Grid"); }
};

struct GridFixture : ::testing::Test {
  forms::ScriptedServices scripted;
  forms::Forms forms{scripted.services};
  std::unique_ptr<Tabelle> form;
  std::unique_ptr<FormWidget> view;
  GridView* table = nullptr;
  GridModel* model = nullptr;

  void make(int rows, int cols) {
    test::App();
    form = std::make_unique<Tabelle>(forms, rows, cols);
    view = std::make_unique<FormWidget>(*form);
    view->resize(600, 400);
    view->show();
    table = qobject_cast<GridView*>(view->widgetOf(form->grid()));
    model = view->gridModelOf(form->grid());
    ASSERT_NE(table, nullptr);
    ASSERT_NE(model, nullptr);
    ASSERT_EQ(table->model(), model);
  }
  void SetUp() override { make(6, 4); }
  void TearDown() override {
    view.reset();
    form.reset();
  }
  QPoint centreOf(int row, int col) { return table->visualRect(model->indexOfCell(row, col)).center(); }
};

TEST_F(GridFixture, ShapeAndCellsWithFixedRowsAsHeaders) {
  EXPECT_EQ(model->rowCount(), 5);
  EXPECT_EQ(model->columnCount(), 3);
  form->grid().setCell(2, 3, "12.50");
  const QModelIndex i = model->indexOfCell(2, 3);
  EXPECT_EQ(i.row(), 1);
  EXPECT_EQ(i.column(), 2);
  EXPECT_EQ(model->data(i, Qt::DisplayRole).toString(), "12.50");
  EXPECT_EQ(model->cellOf(i), std::make_pair(2, 3));
  EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Spalte 1");
  EXPECT_EQ(model->headerData(2, Qt::Vertical, Qt::DisplayRole).toString(), "3");
  EXPECT_EQ(model->cornerText(), "Nr");
  EXPECT_EQ(table->cornerText(), "Nr");
  EXPECT_FALSE(model->indexOfCell(0, 2).isValid());
  EXPECT_TRUE(table->horizontalHeader()->isVisible());
  // Numbers stand right, texts left.
  const auto align = [&](const QModelIndex& index) {
    return Qt::Alignment(model->data(index, Qt::TextAlignmentRole).value<Qt::Alignment>()) & Qt::AlignHorizontal_Mask;
  };
  EXPECT_EQ(align(i), Qt::AlignRight);
  form->grid().setCell(1, 1, "Mauer");
  EXPECT_EQ(align(model->indexOfCell(1, 1)), Qt::AlignLeft);
}

TEST_F(GridFixture, CellChangeRedrawsExactlyThatCell) {
  QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
  QSignalSpy headers(model, &QAbstractItemModel::headerDataChanged);
  QSignalSpy resets(model, &QAbstractItemModel::modelReset);
  form->grid().setCell(3, 2, "x");
  ASSERT_EQ(changed.count(), 1);
  const QModelIndex expected = model->indexOfCell(3, 2);
  EXPECT_EQ(changed[0][0].value<QModelIndex>(), expected);
  EXPECT_EQ(changed[0][1].value<QModelIndex>(), expected);
  form->grid().setCell(3, 2, "x");  // unchanged: nothing to redraw
  EXPECT_EQ(changed.count(), 1);
  form->grid().setCell(0, 2, "Höhe");
  ASSERT_EQ(headers.count(), 1);
  EXPECT_EQ(headers[0][0].value<Qt::Orientation>(), Qt::Horizontal);
  EXPECT_EQ(headers[0][1].toInt(), 1);
  EXPECT_EQ(headers[0][2].toInt(), 1);
  EXPECT_EQ(resets.count(), 0);
}

TEST_F(GridFixture, ManyCellsAndNewShapeResetTheModel) {
  QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
  QSignalSpy resets(model, &QAbstractItemModel::modelReset);
  Control& g = form->grid();
  g.beginGridUpdate();
  for (int r = 1; r < 6; ++r) g.setCell(r, 1, "v" + std::to_string(r));
  g.endGridUpdate();
  EXPECT_EQ(changed.count(), 0);
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(model->data(model->indexOfCell(5, 1), Qt::DisplayRole).toString(), "v5");
  g.setRows(10);
  EXPECT_EQ(resets.count(), 2);
  EXPECT_EQ(model->rowCount(), 9);
  g.setCols(6);
  EXPECT_EQ(model->columnCount(), 5);
}

TEST_F(GridFixture, CurrentCellAndSelectionFromTheModel) {
  Control& g = form->grid();
  g.setCurrentCell(3, 2);
  EXPECT_EQ(table->currentIndex(), model->indexOfCell(3, 2));
  EXPECT_EQ(table->selectionModel()->selectedIndexes().size(), 1);
  g.setGridSelection(1, 1, 3, 2);
  const QModelIndexList selected = table->selectionModel()->selectedIndexes();
  EXPECT_EQ(selected.size(), 6);
  EXPECT_TRUE(selected.contains(model->indexOfCell(1, 1)));
  EXPECT_TRUE(selected.contains(model->indexOfCell(3, 2)));
  EXPECT_FALSE(selected.contains(model->indexOfCell(4, 2)));
  EXPECT_EQ(table->currentIndex(), model->indexOfCell(3, 2));
}

TEST_F(GridFixture, ClicksAndKeysMoveTheModelsCell) {
  Control& g = form->grid();
  form->log.clear();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, centreOf(4, 2));
  EXPECT_EQ(g.gridData().row, 4);
  EXPECT_EQ(g.gridData().col, 2);
  EXPECT_EQ(form->log, (std::vector<std::string>{"RowColChange 4,2", "Click"}));

  // Shift extends: Row and Col stay where the selection began.
  QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ShiftModifier, centreOf(2, 3));
  EXPECT_EQ(g.gridData().row, 4);
  EXPECT_EQ(g.gridData().col, 2);
  EXPECT_EQ(g.gridData().rowSel, 2);
  EXPECT_EQ(g.gridData().colSel, 3);

  QTest::keyClick(table, Qt::Key_Down);
  EXPECT_EQ(g.gridData().row, 3);
  EXPECT_EQ(g.gridData().rowSel, 3);
  EXPECT_EQ(g.gridData().col, 3);
}

TEST_F(GridFixture, DraggingSelectsAndHoveringDoesNothing) {
  Control& g = form->grid();
  form->log.clear();
  QTest::mousePress(table->viewport(), Qt::LeftButton, {}, centreOf(1, 1));
  QTest::mouseMove(table->viewport(), centreOf(3, 2));
  QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, centreOf(3, 2));
  EXPECT_EQ(g.gridData().row, 1);
  EXPECT_EQ(g.gridData().col, 1);
  EXPECT_EQ(g.gridData().rowSel, 3);
  EXPECT_EQ(g.gridData().colSel, 2);
  EXPECT_EQ(std::count(form->log.begin(), form->log.end(), "SelChange"), 1);

  // Form logic may point at a fixed cell; moving the mouse over the grid leaves it there.
  g.setCurrentCell(0, 2);
  form->log.clear();
  QTest::mouseMove(table->viewport(), centreOf(4, 3));
  QTest::mouseMove(table->viewport(), centreOf(2, 1));
  EXPECT_EQ(g.gridData().row, 0);
  EXPECT_TRUE(form->log.empty());
}

TEST_F(GridFixture, TypedCharactersGoToTheFormNotToASearch) {
  Control& g = form->grid();
  std::string typed;
  form->on("Grid", Event::KeyPress, [&](Control& c, EventArgs& a) {
    typed += static_cast<char>(a.keyAscii);
    c.setCell(c.gridData().row, c.gridData().col, typed);
  });
  g.setCurrentCell(2, 1);
  QTest::keyClicks(table, "5x");
  EXPECT_EQ(g.gridData().row, 2);
  EXPECT_EQ(g.cell(2, 1), "5x");
  EXPECT_EQ(model->data(model->indexOfCell(2, 1), Qt::DisplayRole).toString(), "5x");
}

TEST(GridLarge, TenThousandRowsBuildAndScroll) {
  test::App();
  forms::ScriptedServices scripted;
  forms::Forms forms(scripted.services);
  Tabelle form(forms, 10001, 8);
  form.grid().setCell(10000, 7, "Ende");
  FormWidget view(form);
  view.resize(600, 400);
  view.show();
  auto* table = qobject_cast<GridView*>(view.widgetOf(form.grid()));
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->model()->rowCount(), 10000);
  EXPECT_EQ(table->model()->columnCount(), 7);
  QCoreApplication::processEvents();
  table->scrollToBottom();
  QCoreApplication::processEvents();
  EXPECT_EQ(table->verticalScrollBar()->value(), table->verticalScrollBar()->maximum());
  // The last row is on screen now.
  const QModelIndex last = table->model()->index(9999, 6);
  table->scrollTo(last);
  QCoreApplication::processEvents();
  EXPECT_TRUE(table->viewport()->rect().intersects(table->visualRect(last)))
      << table->viewport()->rect().height() << " " << table->visualRect(last).y() << " "
      << table->verticalScrollBar()->maximum();
  EXPECT_EQ(table->model()->data(last, Qt::DisplayRole).toString(), "Ende");
  form.grid().setCurrentCell(5000, 3);
  EXPECT_TRUE(table->viewport()->rect().intersects(table->visualRect(table->currentIndex())));
}

}  // namespace
}  // namespace kolm::shell

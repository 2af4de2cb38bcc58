#include "grid/ui/grid_view.h"

#include "grid/ui/theme.h"
#include "tests/support/song_parts.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// The note grid of a song on the screen: 20 lines of three tracks in view.
struct GridViewTest : testing::Test {
  static constexpr int kRowHeight = 18;
  static constexpr int kTrackWidth = 300;
  static constexpr int kColumnsInView = 27;

  GridViewTest() {
    view.set_heights({kRowHeight, 18, 14, 11});
    view.set_widths(60, kTrackWidth);
    view.resize(60 + 3 * kTrackWidth, 18 + 20 * kRowHeight);
    view.show();
    (void)QTest::qWaitForWindowExposed(&view);
    view.setFocus();
    settle();
  }

  /// Lets all that is to be painted be painted.
  static void settle() { QCoreApplication::processEvents(); }

  /// Cells painted by what a change leaves to paint.
  template <class Change>
  long cells_painted_by(Change change) {
    settle();
    const long before = view.painted_cells();
    change();
    settle();
    return view.painted_cells() - before;
  }

  QPoint centre_of(int row, int column) const { return view.cell_rect({row, column}).center(); }

  test::SongParts fixture{3};
  CellGrid& grid = fixture.song.tracks;
  GridView view{grid, HeaderRow::kHeader, kColumnsPerTrack};
};

TEST_F(GridViewTest, ShowsTheGridsTextsByRowAndColumn) {
  grid.set_text(3, 2, "C#4");
  const QAbstractItemModel& model = *view.model();
  EXPECT_EQ(model.data(model.index(2, 1)).toString().toStdString(), "C#4");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString().toStdString(), "# 2");
  EXPECT_EQ(model.headerData(17, Qt::Vertical).toString().toStdString(), "11");
  EXPECT_EQ(model.rowCount(), 64);
  EXPECT_EQ(model.columnCount(), 27);
}

TEST_F(GridViewTest, AScreenReaderHearsTheCellItsTrackItsLineAndItsColumn) {
  grid.set_text(17, 10, "stop");
  const QModelIndex index = view.model()->index(16, 9);
  EXPECT_EQ(index.data(Qt::AccessibleTextRole).toString().toStdString(), "stop");
  EXPECT_EQ(index.data(Qt::AccessibleDescriptionRole).toString().toStdString(), "track 2, 10, # 1");
  grid.set_cursor(17, 10);
  EXPECT_EQ(view.currentIndex(), index);
}

TEST_F(GridViewTest, AWrittenCellIsAllThatIsPainted) {
  EXPECT_EQ(cells_painted_by([&] { grid.set_text(5, 4, "C  4"); }), 1);
  EXPECT_EQ(cells_painted_by([&] { grid.set_text(50, 4, "C  4"); }), 0) << "not in view";
}

TEST_F(GridViewTest, LineNumbersAreBlackAndBeatsRed) {
  grid.set_row(2);
  settle();
  const QImage numbers = view.verticalHeader()->grab().toImage();
  const auto ground_of_line = [&](int line) {
    return numbers.pixelColor(30, line * kRowHeight + 4).name().toStdString();
  };
  EXPECT_EQ(ground_of_line(0), "#f00000");
  EXPECT_EQ(ground_of_line(2), "#000000");
  EXPECT_EQ(ground_of_line(3), "#000000");
  EXPECT_EQ(ground_of_line(4), "#f00000");
  EXPECT_EQ(ground_of_line(8), "#f00000");
}

TEST_F(GridViewTest, TheGroundsUnderNotesStayDarkWhereTheyAreMarked) {
  grid.set_cursor(3, 2);
  grid.set_selection_end(4, 4);
  settle();
  const QImage cells = view.viewport()->grab().toImage();
  const auto brightest_of = [&](int row, int column) {
    return cells.pixelColor(view.cell_rect({row, column}).topLeft() + QPoint(3, 3)).value();
  };
  EXPECT_EQ(brightest_of(3, 2), theme::kGrid.value()) << "the cursor's cell";
  EXPECT_NEAR(brightest_of(4, 3), 58, 2) << "a block";
  EXPECT_NEAR(brightest_of(3, 10), 36, 2) << "the cursor's line";
  EXPECT_EQ(brightest_of(6, 10), theme::kGrid.value());
}

TEST_F(GridViewTest, EachTracksColumnsHaveTheirHeadings) {
  EXPECT_TRUE(view.horizontalHeader()->isVisible());
  const auto heading = [this](int section) {
    return view.model()->headerData(section, Qt::Horizontal).toString().toStdString();
  };
  EXPECT_EQ(heading(0), "# 1");
  EXPECT_EQ(heading(7), "# 8");
  EXPECT_EQ(heading(8), "Effect");
  EXPECT_EQ(heading(9), "# 1");
  EXPECT_EQ(heading(26), "Effect");
}

TEST_F(GridViewTest, AStepOfTheCursorPaintsTwoLines) {
  const long painted = cells_painted_by([&] { grid.set_row(2); });
  EXPECT_LE(painted, 2 * kColumnsInView);
  EXPECT_GE(painted, 2);
}

TEST_F(GridViewTest, ALineStepThatScrollsMovesThePixelsAndPaintsOnlyTheNewLine) {
  grid.set_row(10);
  grid.set_top_row(10);
  const long painted = cells_painted_by([&] {
    grid.set_row(11);
    grid.set_top_row(11);
  });
  EXPECT_LE(painted, 4 * kColumnsInView) << "of 540 cells in view";
}

TEST_F(GridViewTest, ChangesWhileRedrawingIsOffArePaintedOnceItIsOn) {
  grid.set_redraw(false);
  EXPECT_EQ(cells_painted_by([&] { grid.set_text(5, 4, "C  4"); }), 0);
  EXPECT_EQ(cells_painted_by([&] { grid.set_redraw(true); }), 1);
}

TEST_F(GridViewTest, ArrowKeysMoveTheCursorInsideTheGrid) {
  QTest::keyClick(&view, Qt::Key_Up);
  QTest::keyClick(&view, Qt::Key_Left);
  EXPECT_EQ(grid.cursor(), (CellPosition{1, 1}));
  QTest::keyClick(&view, Qt::Key_Down);
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_EQ(grid.cursor(), (CellPosition{2, 2}));
  QTest::keyClick(&view, Qt::Key_PageDown);
  EXPECT_EQ(grid.row(), 22);
  QTest::keyClick(&view, Qt::Key_End);
  EXPECT_EQ(grid.row(), 64);
  QTest::keyClick(&view, Qt::Key_Home);
  EXPECT_EQ(grid.row(), 1);
}

TEST_F(GridViewTest, ShiftAndArrowKeysExtendTheSelection) {
  grid.set_cursor(4, 3);
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(grid.cursor(), (CellPosition{4, 3}));
  EXPECT_EQ(grid.selection_end(), (CellPosition{5, 4}));
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(grid.selection_end(), grid.cursor());
}

TEST_F(GridViewTest, TheMouseSetsTheCursorAndDragsASelection) {
  QTest::mousePress(view.viewport(), Qt::LeftButton, {}, centre_of(3, 2));
  EXPECT_EQ(grid.cursor(), (CellPosition{3, 2}));
  QMouseEvent move(QEvent::MouseMove, centre_of(6, 5),
                   view.viewport()->mapToGlobal(centre_of(6, 5)), Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(view.viewport(), &move);
  QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, centre_of(6, 5));
  EXPECT_EQ(grid.cursor(), (CellPosition{3, 2}));
  EXPECT_EQ(grid.selection_end(), (CellPosition{6, 5}));
}

TEST_F(GridViewTest, ACursorThatLeavesTheViewIsFollowed) {
  grid.set_row(40);
  EXPECT_EQ(grid.top_row(), 21);
  EXPECT_EQ(view.verticalScrollBar()->value(), 20);
  grid.set_row(5);
  EXPECT_EQ(grid.top_row(), 5);
}

TEST_F(GridViewTest, ScrollingByTheUserMovesTheGridsFirstVisibleRow) {
  view.verticalScrollBar()->setValue(12);
  EXPECT_EQ(grid.top_row(), 13);
}

TEST_F(GridViewTest, AWholeTrackScrollsIntoPlace) {
  view.resize(60 + 2 * kTrackWidth + 50, 400);
  settle();
  grid.set_left_column(first_column_of(2));
  EXPECT_EQ(view.columnViewportPosition(9), 0);
  grid.set_left_column(first_column_of(3));
  EXPECT_EQ(view.columnViewportPosition(18), 0);
}

TEST_F(GridViewTest, ALongerOrShorterSongChangesTheRowsOnTheScreen) {
  fixture.length.length_validate("3000");
  EXPECT_EQ(view.model()->rowCount(), 3000);
  EXPECT_EQ(view.model()->headerData(2999, Qt::Vertical).toString().toStdString(), "BB7");
  fixture.length.length_validate("2");
  settle();
  EXPECT_EQ(view.model()->rowCount(), 2);
}

TEST_F(GridViewTest, ATracksColumnsShareItsWidthAsTheGridSays) {
  int width = 0;
  for (int c = 0; c < 9; ++c) width += view.columnWidth(c);
  EXPECT_EQ(width, kTrackWidth);
  EXPECT_NEAR(view.columnWidth(8), 1.5 * view.columnWidth(0), 1.5);
}

}  // namespace
}  // namespace lunavox

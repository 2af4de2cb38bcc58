#include "grid/cell_grid.h"

#include "tests/support/error_of.h"
#include "tests/support/recording_grid_observer.h"

#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {

// Readable failures.
void PrintTo(const CellPosition& position, std::ostream* out) {
  *out << "row " << position.row << ", column " << position.column;
}
void PrintTo(const CellRegion& region, std::ostream* out) {
  *out << "rows " << region.first_row << ".." << region.last_row << ", columns "
       << region.first_column << ".." << region.last_column;
}

namespace {

using test::RecordingGridObserver;
using testing::ElementsAre;
using testing::IsEmpty;

template <class Call>
void expect_subscript_error(Call call) {
  EXPECT_EQ(test::error_of(call), RuntimeError::kSubscriptOutOfRange);
}

TEST(CellRegion, ADefaultRegionIsEmpty) {
  EXPECT_TRUE(CellRegion{}.empty());
  EXPECT_FALSE((CellRegion{2, 3, 2, 3}.empty()));
  EXPECT_TRUE((CellRegion{2, 3, 1, 3}.empty()));
  EXPECT_TRUE((CellRegion{2, 3, 2, 2}.empty()));
}

TEST(CellRegion, UnitingCoversBothRegions) {
  CellRegion region{2, 5, 3, 6};
  region.unite({7, 1, 8, 2});
  EXPECT_EQ(region, (CellRegion{2, 1, 8, 6}));
}

TEST(CellRegion, UnitingWithAnEmptyRegionChangesNothing) {
  CellRegion region{2, 5, 3, 6};
  region.unite({});
  EXPECT_EQ(region, (CellRegion{2, 5, 3, 6}));
  CellRegion empty;
  empty.unite({2, 5, 3, 6});
  EXPECT_EQ(empty, (CellRegion{2, 5, 3, 6}));
}

TEST(CellGrid, NewCellsAreEmptyWhiteOnBlackAndLeftAligned) {
  const CellGrid grid(3, 4);
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.columns(), 4);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 4; ++column) {
      EXPECT_EQ(grid.cell(row, column), (Cell{"", {255, 255, 255}, {0, 0, 0}, Alignment::kLeft}));
    }
  }
  EXPECT_EQ(grid.column_width(3), 960);
}

TEST(CellGrid, KeepsWhatIsWrittenIntoACell) {
  CellGrid grid(3, 4);
  grid.set_text(1, 2, "C  4");
  grid.set_text_colour(1, 2, {1, 2, 3});
  grid.set_background(1, 2, {4, 5, 6});
  grid.set_alignment(1, 2, Alignment::kCentre);
  EXPECT_EQ(grid.cell(1, 2), (Cell{"C  4", {1, 2, 3}, {4, 5, 6}, Alignment::kCentre}));
  EXPECT_EQ(grid.text(1, 2), "C  4");
  EXPECT_EQ(grid.cell(2, 1), Cell{});
  grid.set_cell(2, 1, {"x", {7, 8, 9}, {10, 11, 12}, Alignment::kRight});
  EXPECT_EQ(grid.cell(2, 1), (Cell{"x", {7, 8, 9}, {10, 11, 12}, Alignment::kRight}));
}

TEST(CellGrid, APlaceOutsideTheGridIsASubscriptOutOfRange) {
  CellGrid grid(3, 4);
  for (const auto& [row, column] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 4}}) {
    SCOPED_TRACE(testing::Message() << row << ", " << column);
    expect_subscript_error([&, r = row, c = column] { grid.cell(r, c); });
    expect_subscript_error([&, r = row, c = column] { grid.text(r, c); });
    expect_subscript_error([&, r = row, c = column] { grid.set_text(r, c, "x"); });
    expect_subscript_error([&, r = row, c = column] { grid.set_text_colour(r, c, kBlack); });
    expect_subscript_error([&, r = row, c = column] { grid.set_background(r, c, kWhite); });
    expect_subscript_error(
        [&, r = row, c = column] { grid.set_alignment(r, c, Alignment::kRight); });
    expect_subscript_error([&, r = row, c = column] { grid.set_cell(r, c, {}); });
    expect_subscript_error([&, r = row, c = column] { grid.set_cursor(r, c); });
    expect_subscript_error([&, r = row, c = column] { grid.set_selection_end(r, c); });
    expect_subscript_error([&, r = row, c = column] { grid.select({r, c}, {0, 0}); });
    expect_subscript_error([&, r = row, c = column] { grid.select({0, 0}, {r, c}); });
  }
  EXPECT_EQ(grid, CellGrid(3, 4));
}

TEST(CellGrid, AColumnWidthOrScrollPositionOutsideTheGridIsASubscriptOutOfRange) {
  CellGrid grid(3, 4);
  for (const int column : {-1, 4}) {
    expect_subscript_error([&] { grid.column_width(column); });
    expect_subscript_error([&] { grid.set_column_width(column, 400); });
    expect_subscript_error([&] { grid.set_left_column(column); });
  }
  for (const int row : {-1, 3}) expect_subscript_error([&] { grid.set_top_row(row); });
}

TEST(CellGrid, AGridKeepsAtLeastItsFixedRowAndColumn) {
  CellGrid grid(3, 4);
  expect_subscript_error([&] { grid.set_rows(0); });
  expect_subscript_error([&] { grid.set_columns(0); });
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.columns(), 4);
}

TEST(CellGrid, ResizingKeepsTheCellsThatRemainAndEmptiesNewOnes) {
  CellGrid grid(3, 3);
  grid.set_text(1, 1, "stays");
  grid.set_text(2, 2, "goes");
  grid.set_column_width(1, 400);
  grid.set_column_width(2, 600);
  grid.set_rows(2);
  grid.set_columns(2);
  grid.set_rows(4);
  grid.set_columns(5);
  EXPECT_EQ(grid.rows(), 4);
  EXPECT_EQ(grid.columns(), 5);
  EXPECT_EQ(grid.text(1, 1), "stays");
  EXPECT_EQ(grid.cell(2, 2), Cell{});
  EXPECT_EQ(grid.cell(3, 4), Cell{});
  EXPECT_EQ(grid.column_width(1), 400);
  EXPECT_EQ(grid.column_width(2), 960);
}

TEST(CellGrid, ShrinkingDrawsTheCursorSelectionAndScrollPositionIn) {
  CellGrid grid(10, 10);
  grid.select({8, 7}, {9, 9});
  grid.set_top_row(6);
  grid.set_left_column(5);
  RecordingGridObserver seen(grid);
  grid.set_rows(4);
  EXPECT_EQ(grid.cursor(), (CellPosition{3, 7}));
  EXPECT_EQ(grid.selection_end(), (CellPosition{3, 9}));
  EXPECT_EQ(grid.top_row(), 3);
  EXPECT_THAT(seen.calls, ElementsAre("moved", "shape", "selection", "scrolled"));
  EXPECT_THAT(seen.moved_from, ElementsAre(CellPosition{8, 7}));
  grid.set_columns(1);
  EXPECT_EQ(grid.cursor(), (CellPosition{3, 0}));
  EXPECT_EQ(grid.selection_end(), (CellPosition{3, 0}));
  EXPECT_EQ(grid.left_column(), 0);
}

TEST(CellGrid, GrowingBackFromTheFixedColumnScrollsPastItAgain) {
  CellGrid grid(3, 10);
  grid.set_columns(1);
  EXPECT_EQ(grid.left_column(), 0);
  grid.set_columns(10);
  EXPECT_EQ(grid.left_column(), 1);
}

TEST(CellGrid, MovingTheCursorReportsTheLeavingFromTheOldCell) {
  CellGrid grid(5, 5);
  grid.set_cursor(1, 1);
  RecordingGridObserver seen(grid);
  grid.set_cursor(2, 3);
  EXPECT_EQ(grid.row(), 2);
  EXPECT_EQ(grid.column(), 3);
  EXPECT_THAT(seen.calls, ElementsAre("leaving", "moved", "selection"));
  EXPECT_THAT(seen.left, ElementsAre(CellPosition{1, 1}));
  EXPECT_THAT(seen.moved_from, ElementsAre(CellPosition{1, 1}));
}

TEST(CellGrid, SettingTheCursorWhereItStandsReportsNothing) {
  CellGrid grid(5, 5);
  grid.set_cursor(2, 3);
  RecordingGridObserver seen(grid);
  grid.set_cursor(2, 3);
  grid.set_row(2);
  grid.set_column(3);
  EXPECT_THAT(seen.calls, IsEmpty());
}

TEST(CellGrid, SettingTheRowKeepsTheColumnAndTheOtherWayRound) {
  CellGrid grid(5, 5);
  grid.set_cursor(1, 2);
  grid.set_row(4);
  EXPECT_EQ(grid.cursor(), (CellPosition{4, 2}));
  grid.set_column(3);
  EXPECT_EQ(grid.cursor(), (CellPosition{4, 3}));
}

TEST(CellGrid, TheSelectionShrinksToAMovedCursor) {
  CellGrid grid(5, 5);
  grid.set_cursor(1, 1);
  grid.set_selection_end(3, 4);
  EXPECT_EQ(grid.selection(), (CellRegion{1, 1, 3, 4}));
  grid.set_cursor(2, 2);
  EXPECT_EQ(grid.selection_end(), (CellPosition{2, 2}));
  EXPECT_EQ(grid.selection(), (CellRegion{2, 2, 2, 2}));
}

TEST(CellGrid, SettingTheCursorWhereItStandsStillShrinksTheSelection) {
  CellGrid grid(5, 5);
  grid.set_cursor(1, 1);
  grid.set_selection_end(3, 4);
  RecordingGridObserver seen(grid);
  grid.set_cursor(1, 1);
  EXPECT_EQ(grid.selection(), (CellRegion{1, 1, 1, 1}));
  EXPECT_THAT(seen.calls, ElementsAre("selection"));
}

TEST(CellGrid, ASelectionMadeUpwardsHasItsCornersInOrder) {
  CellGrid grid(5, 5);
  grid.select({4, 3}, {1, 2});
  EXPECT_EQ(grid.cursor(), (CellPosition{4, 3}));
  EXPECT_EQ(grid.selection_end(), (CellPosition{1, 2}));
  EXPECT_EQ(grid.selection(), (CellRegion{1, 2, 4, 3}));
}

TEST(CellGrid, ExtendingTheSelectionDoesNotMoveTheCursor) {
  CellGrid grid(5, 5);
  grid.set_cursor(1, 1);
  RecordingGridObserver seen(grid);
  grid.set_selection_end(3, 4);
  grid.set_selection_end(3, 4);
  EXPECT_EQ(grid.cursor(), (CellPosition{1, 1}));
  EXPECT_THAT(seen.calls, ElementsAre("selection"));
}

TEST(CellGrid, TheCursorEndsWhereTheUserWentAlthoughAnObserverMovedItWhileLeaving) {
  CellGrid grid(9, 9);
  grid.set_cursor(2, 2);
  RecordingGridObserver seen(grid);
  seen.on_leaving = [&] {
    seen.on_leaving = nullptr;
    grid.set_cursor(8, 2);
  };
  grid.set_cursor(5, 5);
  EXPECT_EQ(grid.cursor(), (CellPosition{5, 5}));
  EXPECT_EQ(grid.selection(), (CellRegion{5, 5, 5, 5}));
  EXPECT_THAT(seen.moved_from, ElementsAre(CellPosition{2, 2}, CellPosition{8, 2}));
}

TEST(CellGrid, AWrittenCellIsReportedAtOnce) {
  CellGrid grid(5, 5);
  RecordingGridObserver seen(grid);
  grid.set_text(2, 3, "x");
  grid.set_background(4, 1, kBeat);
  EXPECT_THAT(seen.regions, ElementsAre(CellRegion{2, 3, 2, 3}, CellRegion{4, 1, 4, 1}));
}

TEST(CellGrid, WritingWhatACellHoldsReportsNothing) {
  CellGrid grid(5, 5);
  grid.set_cell(1, 1, {"x", kBlack, kWhite, Alignment::kRight});
  grid.set_column_width(1, 400);
  RecordingGridObserver seen(grid);
  grid.set_text(1, 1, "x");
  grid.set_text_colour(1, 1, kBlack);
  grid.set_background(1, 1, kWhite);
  grid.set_alignment(1, 1, Alignment::kRight);
  grid.set_cell(1, 1, {"x", kBlack, kWhite, Alignment::kRight});
  grid.set_column_width(1, 400);
  grid.set_rows(5);
  grid.set_columns(5);
  grid.set_top_row(1);
  grid.set_left_column(1);
  EXPECT_THAT(seen.calls, IsEmpty());
}

TEST(CellGrid, RowsColumnsAndWidthsAreReportedAsShape) {
  CellGrid grid(5, 5);
  RecordingGridObserver seen(grid);
  grid.set_rows(6);
  grid.set_columns(7);
  grid.set_column_width(6, 400);
  EXPECT_THAT(seen.calls, ElementsAre("shape", "shape", "shape"));
}

TEST(CellGrid, ScrollingIsReported) {
  CellGrid grid(5, 5);
  RecordingGridObserver seen(grid);
  grid.set_top_row(3);
  grid.set_left_column(2);
  EXPECT_EQ(grid.top_row(), 3);
  EXPECT_EQ(grid.left_column(), 2);
  EXPECT_THAT(seen.calls, ElementsAre("scrolled", "scrolled"));
}

TEST(CellGrid, WithRedrawingOffChangesGatherAndAreReportedOnce) {
  CellGrid grid(9, 9);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  EXPECT_FALSE(grid.redraw());
  grid.set_text(2, 3, "x");
  grid.set_text(7, 1, "y");
  grid.set_column_width(1, 400);
  grid.set_rows(10);
  grid.set_top_row(4);
  grid.set_left_column(2);
  EXPECT_THAT(seen.calls, IsEmpty());
  grid.set_redraw(true);
  EXPECT_TRUE(grid.redraw());
  EXPECT_THAT(seen.calls, ElementsAre("shape", "cells", "scrolled"));
  EXPECT_THAT(seen.regions, ElementsAre(CellRegion{2, 1, 7, 3}));
}

TEST(CellGrid, WhatWasGatheredIsNotReportedAgain) {
  CellGrid grid(9, 9);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  grid.set_text(2, 3, "x");
  grid.set_redraw(true);
  seen.calls.clear();
  grid.set_redraw(true);
  grid.set_redraw(false);
  grid.set_redraw(true);
  EXPECT_THAT(seen.calls, IsEmpty());
}

TEST(CellGrid, TheCursorIsReportedAtOnceWithRedrawingOff) {
  CellGrid grid(9, 9);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  grid.set_cursor(1, 1);
  grid.set_cursor(2, 2);
  EXPECT_THAT(seen.calls, ElementsAre("leaving", "moved", "leaving", "moved"));
  grid.set_redraw(true);
  EXPECT_THAT(seen.calls, ElementsAre("leaving", "moved", "leaving", "moved", "selection"));
}

TEST(CellGrid, GatheredCellsThatWereCutOffAreNotReported) {
  CellGrid grid(9, 9);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  grid.set_text(2, 2, "x");
  grid.set_text(8, 8, "y");
  grid.set_rows(5);
  grid.set_columns(4);
  grid.set_redraw(true);
  EXPECT_THAT(seen.regions, ElementsAre(CellRegion{2, 2, 4, 3}));

  grid.set_redraw(false);
  grid.set_text(4, 3, "z");
  grid.set_rows(2);
  grid.set_redraw(true);
  EXPECT_EQ(seen.regions.size(), 1U);
}

TEST(CellGrid, ARemovedObserverHearsNothingMore) {
  CellGrid grid(5, 5);
  RecordingGridObserver stays(grid);
  { const RecordingGridObserver goes(grid); }
  grid.set_text(1, 1, "x");
  EXPECT_THAT(stays.calls, ElementsAre("cells"));
}

TEST(CellGrid, ACopyHasTheContentsButNotTheObservers) {
  CellGrid grid(5, 5);
  grid.set_cell(1, 2, {"x", kBlack, kWhite, Alignment::kRight});
  grid.set_column_width(2, 400);
  grid.select({3, 4}, {1, 2});
  grid.set_top_row(2);
  grid.set_left_column(3);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  CellGrid copy = grid;
  EXPECT_EQ(copy, grid);
  EXPECT_EQ(copy.cell(1, 2), (Cell{"x", kBlack, kWhite, Alignment::kRight}));
  EXPECT_EQ(copy.column_width(2), 400);
  EXPECT_EQ(copy.cursor(), (CellPosition{3, 4}));
  EXPECT_EQ(copy.selection_end(), (CellPosition{1, 2}));
  EXPECT_EQ(copy.top_row(), 2);
  EXPECT_EQ(copy.left_column(), 3);
  EXPECT_TRUE(copy.redraw());
  copy.set_text(1, 1, "y");
  EXPECT_EQ(grid.text(1, 1), "");
  EXPECT_THAT(seen.calls, IsEmpty());
}

TEST(CellGrid, AssigningTellsTheObserversOfTheAssignedGridEverything) {
  CellGrid source(3, 3);
  source.set_text(1, 1, "x");
  source.set_cursor(2, 2);
  CellGrid grid(5, 5);
  grid.set_cursor(4, 4);
  RecordingGridObserver seen(grid);
  grid = source;
  EXPECT_EQ(grid, source);
  EXPECT_THAT(seen.calls,
              ElementsAre("leaving", "shape", "cells", "selection", "scrolled", "moved"));
  EXPECT_THAT(seen.regions, ElementsAre(CellRegion{0, 0, 2, 2}));
  EXPECT_THAT(seen.left, ElementsAre(CellPosition{4, 4}));
  EXPECT_THAT(seen.moved_from, ElementsAre(CellPosition{4, 4}));
}

TEST(CellGrid, AssigningWithRedrawingOffGathers) {
  const CellGrid source(3, 3);
  CellGrid grid(5, 5);
  RecordingGridObserver seen(grid);
  grid.set_redraw(false);
  grid = source;
  EXPECT_FALSE(grid.redraw());
  EXPECT_THAT(seen.calls, IsEmpty());
  grid.set_redraw(true);
  EXPECT_THAT(seen.calls, ElementsAre("shape", "cells", "selection", "scrolled"));
}

TEST(CellGrid, AssigningAGridToItselfReportsNothing) {
  CellGrid grid(5, 5);
  RecordingGridObserver seen(grid);
  const CellGrid& same = grid;
  grid = same;
  EXPECT_THAT(seen.calls, IsEmpty());
}

TEST(CellGrid, GridsDifferInAnythingThatACopyCarries) {
  const CellGrid grid(5, 5);
  const auto changed = [&](auto change) {
    CellGrid other = grid;
    change(other);
    return other;
  };
  EXPECT_NE(changed([](CellGrid& g) { g.set_text(1, 1, "x"); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_column_width(1, 1); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_rows(6); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_columns(6); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_cursor(1, 1); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_selection_end(1, 1); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_top_row(2); }), grid);
  EXPECT_NE(changed([](CellGrid& g) { g.set_left_column(2); }), grid);
}

}  // namespace
}  // namespace lunavox

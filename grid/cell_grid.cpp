#include "grid/cell_grid.h"

#include "grid/runtime_error.h"

#include <algorithm>

namespace lunavox {

void CellRegion::unite(const CellRegion& other) {
  if (other.empty()) return;
  if (empty()) {
    *this = other;
    return;
  }
  first_row = std::min(first_row, other.first_row);
  first_column = std::min(first_column, other.first_column);
  last_row = std::max(last_row, other.last_row);
  last_column = std::max(last_column, other.last_column);
}

CellGrid::CellGrid(int rows, int columns) : rows_(rows) {
  columns_.resize(static_cast<std::size_t>(columns));
  for (Column& column : columns_) column.cells.resize(static_cast<std::size_t>(rows));
}

CellGrid::CellGrid(const CellGrid& other)
    : rows_(other.rows_),
      columns_(other.columns_),
      cursor_(other.cursor_),
      selection_end_(other.selection_end_),
      top_row_(other.top_row_),
      left_column_(other.left_column_) {}

CellGrid& CellGrid::operator=(const CellGrid& other) {
  if (this == &other) return *this;
  const CellPosition from = cursor_;
  if (from != other.cursor_) tell([](CellGridObserver& o) { o.leaving_cell(); });
  rows_ = other.rows_;
  columns_ = other.columns_;
  cursor_ = other.cursor_;
  selection_end_ = other.selection_end_;
  top_row_ = other.top_row_;
  left_column_ = other.left_column_;
  shape_gathered_ = selection_gathered_ = scroll_gathered_ = true;
  gathered_ = {0, 0, rows_ - 1, columns() - 1};
  if (redraw_) report_gathered();
  if (from != cursor_) tell([&](CellGridObserver& o) { o.cursor_moved(from); });
  return *this;
}

bool CellGrid::operator==(const CellGrid& other) const {
  return rows_ == other.rows_ && columns_ == other.columns_ && cursor_ == other.cursor_ &&
         selection_end_ == other.selection_end_ && top_row_ == other.top_row_ &&
         left_column_ == other.left_column_;
}

void CellGrid::set_rows(int rows) {
  if (rows < 1) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  if (rows == rows_) return;
  rows_ = rows;
  for (Column& column : columns_) column.cells.resize(static_cast<std::size_t>(rows));
  shape_gathered_ = true;
  clamp_positions();
  if (redraw_) report_gathered();
}

void CellGrid::set_columns(int columns) {
  if (columns < 1) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  const int old = this->columns();
  if (columns == old) return;
  columns_.resize(static_cast<std::size_t>(columns));
  for (int c = old; c < columns; ++c) {
    columns_[static_cast<std::size_t>(c)].cells.resize(static_cast<std::size_t>(rows_));
  }
  shape_gathered_ = true;
  clamp_positions();
  if (redraw_) report_gathered();
}

const Cell& CellGrid::cell(int row, int column) const {
  check(row, column);
  return columns_[static_cast<std::size_t>(column)].cells[static_cast<std::size_t>(row)];
}

void CellGrid::set_text(int row, int column, std::string_view text) {
  Cell& cell = writable(row, column);
  if (cell.text == text) return;
  cell.text = text;
  changed(row, column);
}

void CellGrid::set_text(int row, int column, std::string_view text, Colour colour) {
  Cell& cell = writable(row, column);
  if (cell.text == text && cell.text_colour == colour) return;
  cell.text = text;
  cell.text_colour = colour;
  changed(row, column);
}

template <class Value>
void CellGrid::write(int row, int column, Value Cell::*member, const Value& value) {
  Cell& cell = writable(row, column);
  if (cell.*member == value) return;
  cell.*member = value;
  changed(row, column);
}

void CellGrid::set_text_colour(int row, int column, Colour colour) {
  write(row, column, &Cell::text_colour, colour);
}

void CellGrid::set_background(int row, int column, Colour colour) {
  write(row, column, &Cell::background, colour);
}

void CellGrid::set_alignment(int row, int column, Alignment alignment) {
  write(row, column, &Cell::alignment, alignment);
}

void CellGrid::set_cell(int row, int column, const Cell& cell) {
  Cell& target = writable(row, column);
  if (target == cell) return;
  target = cell;
  changed(row, column);
}

int CellGrid::column_width(int column) const {
  check(0, column);
  return columns_[static_cast<std::size_t>(column)].width;
}

void CellGrid::set_column_width(int column, int twips) {
  check(0, column);
  int& width = columns_[static_cast<std::size_t>(column)].width;
  if (width == twips) return;
  width = twips;
  shape_gathered_ = true;
  if (redraw_) report_gathered();
}

void CellGrid::set_cursor(int row, int column) {
  select({row, column}, {row, column});
}

void CellGrid::select(CellPosition cursor, CellPosition end) {
  check(cursor.row, cursor.column);
  check(end.row, end.column);
  const bool moved = cursor != cursor_;
  if (moved) {
    // An observer may move the cursor itself while it leaves (a commit redraws a curve); where the
    // user was going is where the cursor ends up all the same.
    tell([](CellGridObserver& o) { o.leaving_cell(); });
    const CellPosition from = cursor_;
    cursor_ = cursor;
    tell([&](CellGridObserver& o) { o.cursor_moved(from); });
  }
  if (!moved && selection_end_ == end) return;
  selection_end_ = end;
  selection_gathered_ = true;
  if (redraw_) report_gathered();
}

void CellGrid::set_selection_end(int row, int column) {
  select(cursor_, {row, column});
}

CellRegion CellGrid::selection() const {
  return {
      std::min(cursor_.row, selection_end_.row), std::min(cursor_.column, selection_end_.column),
      std::max(cursor_.row, selection_end_.row), std::max(cursor_.column, selection_end_.column)};
}

void CellGrid::set_top_row(int row) {
  check(row, 0);
  if (row == top_row_) return;
  top_row_ = row;
  scroll_gathered_ = true;
  if (redraw_) report_gathered();
}

void CellGrid::set_left_column(int column) {
  check(0, column);
  if (column == left_column_) return;
  left_column_ = column;
  scroll_gathered_ = true;
  if (redraw_) report_gathered();
}

void CellGrid::set_redraw(bool on) {
  redraw_ = on;
  if (on) report_gathered();
}

void CellGrid::add_observer(CellGridObserver* observer) {
  observers_.push_back(observer);
}

void CellGrid::remove_observer(CellGridObserver* observer) {
  std::erase(observers_, observer);
}

Cell& CellGrid::writable(int row, int column) {
  return const_cast<Cell&>(cell(row, column));
}

void CellGrid::check(int row, int column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
}

void CellGrid::clamp_positions() {
  const auto inside = [&](CellPosition p) {
    return CellPosition{std::min(p.row, rows_ - 1), std::min(p.column, columns() - 1)};
  };
  const CellPosition from = cursor_;
  const CellPosition end = inside(selection_end_);
  cursor_ = inside(cursor_);
  if (end != selection_end_) selection_gathered_ = true;
  selection_end_ = end;
  const int top = std::clamp(top_row_, std::min(1, rows_ - 1), rows_ - 1);
  const int left = std::clamp(left_column_, std::min(1, columns() - 1), columns() - 1);
  if (top != top_row_ || left != left_column_) scroll_gathered_ = true;
  top_row_ = top;
  left_column_ = left;
  // No leaving_cell here: the cell that the cursor stood on is gone.
  if (from != cursor_) tell([&](CellGridObserver& o) { o.cursor_moved(from); });
}

void CellGrid::changed(const CellRegion& region) {
  if (redraw_) {
    tell([&](CellGridObserver& o) { o.cells_changed(region); });
  } else {
    gathered_.unite(region);
  }
}

void CellGrid::report_gathered() {
  if (shape_gathered_) {
    shape_gathered_ = false;
    tell([](CellGridObserver& o) { o.shape_changed(); });
  }
  if (!gathered_.empty()) {
    CellRegion region = gathered_;
    gathered_ = {};
    region.last_row = std::min(region.last_row, rows_ - 1);
    region.last_column = std::min(region.last_column, columns() - 1);
    if (!region.empty()) tell([&](CellGridObserver& o) { o.cells_changed(region); });
  }
  if (selection_gathered_) {
    selection_gathered_ = false;
    tell([](CellGridObserver& o) { o.selection_changed(); });
  }
  if (scroll_gathered_) {
    scroll_gathered_ = false;
    tell([](CellGridObserver& o) { o.scrolled(); });
  }
}

template <class Call>
void CellGrid::tell(Call call) const {
  // By index: an observer may add another while it is told.
  for (std::size_t i = 0; i < observers_.size(); ++i) call(*observers_[i]);
}

}  // namespace lunavox

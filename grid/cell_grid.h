#pragma once

#include "grid/colour.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lunavox {

enum class Alignment : std::uint8_t { kLeft, kCentre, kRight };

/// What one cell shows.
struct Cell {
  std::string text;
  Colour text_colour = kWhite;
  Colour background = kBlack;
  Alignment alignment = Alignment::kLeft;

  bool operator==(const Cell&) const = default;
};

/// A place in a grid. Row 0 is the header row, column 0 the fixed column.
struct CellPosition {
  int row = 0;
  int column = 0;

  bool operator==(const CellPosition&) const = default;
};

/// A rectangle of cells, both corners included; empty when a last is below its first.
struct CellRegion {
  int first_row = 0;
  int first_column = 0;
  int last_row = -1;
  int last_column = -1;

  bool empty() const { return last_row < first_row || last_column < first_column; }
  /// Grows to cover another region as well.
  void unite(const CellRegion& other);
  bool operator==(const CellRegion&) const = default;
};

/// Told of what happens to a grid. All calls come on the thread that changed the grid.
class CellGridObserver {
 public:
  virtual ~CellGridObserver() = default;
  /// The cells of a region have new contents. Gathered while redrawing is off.
  virtual void cells_changed(const CellRegion& /*region*/) {}
  /// Rows, columns or column widths have changed. Gathered while redrawing is off.
  virtual void shape_changed() {}
  /// The cursor is about to leave its cell; the grid still has it there. Comes at once, always.
  virtual void leaving_cell() {}
  /// The cursor has come to another cell. Comes at once, always.
  virtual void cursor_moved(CellPosition /*from*/) {}
  /// The selection end has moved, or the cursor has taken it along. Gathered while redrawing is
  /// off.
  virtual void selection_changed() {}
  /// The first visible row or column has changed. Gathered while redrawing is off.
  virtual void scrolled() {}
};

/// A grid of cells with a fixed header row and a fixed first column, a cursor, a selection end and
/// a scroll position. Every write goes through it and is reported to its observers, so that what is
/// on the screen is never older than what is here. A value: copies carry everything but observers.
///
/// Rows and columns out of range throw RuntimeError (Subscript out of range).
class CellGrid {
 public:
  /// @param rows, columns  at least 1 each; row 0 and column 0 are the fixed ones.
  CellGrid(int rows, int columns);
  CellGrid(const CellGrid& other);
  /// Takes the contents; keeps its own observers and tells them.
  CellGrid& operator=(const CellGrid& other);
  ~CellGrid() = default;

  /// Equal in all that a copy carries.
  bool operator==(const CellGrid& other) const;

  int rows() const { return rows_; }
  int columns() const { return static_cast<int>(columns_.size()); }
  /// Cells that remain keep their contents, new ones are empty. The cursor, the selection end and
  /// the scroll position are drawn in where they would lie outside.
  void set_rows(int rows);
  void set_columns(int columns);

  const Cell& cell(int row, int column) const;
  const std::string& text(int row, int column) const { return cell(row, column).text; }
  void set_text(int row, int column, std::string_view text);
  void set_text_colour(int row, int column, Colour colour);
  /// Text and text colour in one step.
  void set_text(int row, int column, std::string_view text, Colour colour);
  void set_background(int row, int column, Colour colour);
  void set_alignment(int row, int column, Alignment alignment);
  void set_cell(int row, int column, const Cell& cell);

  /// Width in twips.
  int column_width(int column) const;
  void set_column_width(int column, int twips);

  CellPosition cursor() const { return cursor_; }
  int row() const { return cursor_.row; }
  int column() const { return cursor_.column; }
  /// Moves the cursor; the selection shrinks to it.
  void set_cursor(int row, int column);
  void set_row(int row) { set_cursor(row, cursor_.column); }
  void set_column(int column) { set_cursor(cursor_.row, column); }
  /// Moves the cursor and the selection end in one step.
  void select(CellPosition cursor, CellPosition end);

  CellPosition selection_end() const { return selection_end_; }
  void set_selection_end(int row, int column);
  /// The selection with its corners in order.
  CellRegion selection() const;

  int top_row() const { return top_row_; }
  int left_column() const { return left_column_; }
  /// First visible row and column below and beside the fixed ones.
  void set_top_row(int row);
  void set_left_column(int column);

  bool redraw() const { return redraw_; }
  /// While off, changes gather; turning it on reports them once.
  void set_redraw(bool on);

  void add_observer(CellGridObserver* observer);
  void remove_observer(CellGridObserver* observer);

 private:
  struct Column {
    int width = 960;
    std::vector<Cell> cells;

    bool operator==(const Column&) const = default;
  };

  Cell& writable(int row, int column);
  void check(int row, int column) const;
  void clamp_positions();
  void changed(int row, int column) { changed({row, column, row, column}); }
  void changed(const CellRegion& region);
  void report_gathered();
  template <class Call>
  void tell(Call call) const;
  template <class Value>
  void write(int row, int column, Value Cell::*member, const Value& value);

  int rows_;
  std::vector<Column> columns_;
  CellPosition cursor_;
  CellPosition selection_end_;
  int top_row_ = 1;
  int left_column_ = 1;
  bool redraw_ = true;

  // What has gathered while redrawing is off.
  CellRegion gathered_;
  bool shape_gathered_ = false;
  bool selection_gathered_ = false;
  bool scroll_gathered_ = false;

  std::vector<CellGridObserver*> observers_;
};

}  // namespace lunavox

#pragma once

#include "grid/ui/cell_grid_model.h"
#include "grid/ui/cell_painter.h"
#include "grid/ui/wheel_notches.h"

#include <QTableView>
#include <QTimer>
#include <array>

namespace lunavox {

class GridHeader;

/// A song grid on the screen: shows a CellGrid, keeps its cursor, selection and scroll position in
/// step with it both ways, and repaints only what has changed.
class GridView : public QTableView, private CellGridObserver {
 public:
  /// Heights in device-independent pixels.
  struct Heights {
    int row = 18;
    int header = 18;
    int text = 14;
    int header_text = 11;
  };

  /// @param columns_per_track  after so many columns a track ends
  GridView(CellGrid& grid, HeaderRow header_row, int columns_per_track, QWidget* parent = nullptr);
  ~GridView() override;

  CellGrid& grid() { return grid_; }
  const CellGrid& grid() const { return grid_; }

  void set_heights(const Heights& heights);
  /// Width of the fixed column and of one track, device-independent pixels. A track's columns share
  /// its width in proportion to the grid's own widths.
  void set_widths(int label_width, int track_width);
  int track_width() const { return track_width_; }

  /// Rows that are wholly in view.
  int visible_rows() const;
  /// The place under a point of the viewport, drawn into the grid where it lies outside.
  CellPosition nearest_position(QPoint point) const;
  /// Where a cell stands in the viewport.
  QRect cell_rect(CellPosition position) const;

  /// Cells painted since the start: what a change costs.
  long painted_cells() const { return painted_cells_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void updateGeometries() override;
  void dataChanged(const QModelIndex& first, const QModelIndex& last,
                   const QList<int>& roles) override;

  /// True where a move of the cursor brings it into view.
  virtual bool follows_cursor() const { return true; }
  /// False for a grid whose cursor is nobody's affair.
  virtual bool shows_cursor() const { return true; }
  /// False where a drag or Shift selects nothing but one cell.
  virtual bool selects() const { return true; }
  /// True for a line that begins a beat.
  virtual bool is_beat_line(int /*row*/) const { return false; }
  /// True for a column of "yes" and "no".
  virtual bool is_switch_column(int /*column*/) const { return false; }
  /// A cell was pressed with the left button; the cursor stands there.
  virtual void cell_pressed() {}
  /// The cursor or what it looks like has changed for other reasons than a move.
  void refresh_cursor();
  /// Moves the cursor by a key; false for a key that does not move it.
  bool navigate(const QKeyEvent& event);
  void bring_into_view(CellPosition position);
  /// What shows the fixed row and column and the cell where they meet.
  std::array<QWidget*, 3> fixed_parts() const;

 private:
  void cells_changed(const CellRegion& region) override;
  void shape_changed() override;
  void selection_changed() override;
  void scrolled() override;

  /// Where a key moves a position, perhaps out of the grid; false for a key that moves nothing.
  bool step(int key, CellPosition& position) const;
  void move_to(CellPosition position, bool extend);
  void drag_on();
  void apply_widths();
  void show_scroll_position();
  void show_cursor_and_selection();
  void update_row(int row);
  void update_rect(const CellRegion& region);
  QRect rect_of(const CellRegion& region) const;
  void paint_cell(QPainter& painter, CellPosition at);

  CellGrid& grid_;
  CellGridModel* model_;
  GridHeader* columns_header_;
  GridHeader* rows_header_;
  QWidget* corner_;
  CellPainter painter_;
  int columns_per_track_;
  Heights heights_;
  int label_width_ = 60;
  int track_width_ = 300;
  CellPosition shown_cursor_;
  CellRegion shown_selection_;
  bool scrolling_ = false;  // the scroll position is being taken over from the grid
  bool dragging_ = false;
  QPoint drag_point_;
  WheelNotches wheel_;
  QTimer drag_timer_;
  long painted_cells_ = 0;
};

}  // namespace lunavox

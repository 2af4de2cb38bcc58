#pragma once

#include "grid/ui/cell_grid_model.h"

#include <QHeaderView>

namespace lunavox {

/// A header of a grid view: the fixed row or the fixed column of its grid, painted in the grid's
/// colours.
class GridHeader : public QHeaderView {
 public:
  /// @param columns_per_track  after so many columns a track ends
  GridHeader(const CellGridModel& model, Qt::Orientation orientation, int columns_per_track,
             QWidget* parent);

  static constexpr int kNoRow = -1;
  /// Marks the section of a grid row (vertical header) as the cursor's; kNoRow for none.
  void set_marked_row(int row);
  void set_text_pixels(int pixels) { text_pixels_ = pixels; }
  /// Repaints one section.
  void update_section(int section);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const Cell& cell_of(int section) const;

  const CellGridModel& model_;
  int columns_per_track_;
  int marked_row_ = kNoRow;
  int text_pixels_ = 11;
};

/// How a fixed cell stands among the others.
struct FixedCellLook {
  QColor ground;           ///< under a cell that has no colour of its own
  bool marked = false;     ///< the cursor's line
  bool track_end = false;  ///< the last column of a track
};

/// Paints a fixed cell of a grid: a header's section or the corner.
void paint_fixed_cell(QPainter& painter, const QRect& rect, const Cell& cell, int text_pixels,
                      const FixedCellLook& look);

}  // namespace lunavox

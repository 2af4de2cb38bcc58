#pragma once

#include "grid/cell_grid.h"

#include <QFont>
#include <QStaticText>
#include <string>
#include <unordered_map>

class QPainter;
class QRect;

namespace lunavox {

/// What stands around a cell and changes its looks.
struct CellSurroundings {
  bool cursor = false;       ///< the grid's cursor is here
  bool focused = false;      ///< and keys go to this grid
  bool selected = false;     ///< part of a selection of more than one cell
  bool cursor_line = false;  ///< on the cursor's line
  bool beat_line = false;    ///< on a line that begins a beat
  bool track_end = false;    ///< the last column of its track
  bool switch_cell = false;  ///< shows "yes" or "no"
};

/// Paints cells: grounds, lines, text, cursor and selection. Layouts of texts are kept, since the
/// same few hundred note names come again and again.
class CellPainter {
 public:
  /// @param row_height  of the cells to paint, device-independent pixels
  void set_size(int row_height, int text_pixels);
  /// The widest text of four characters has to go into a width of this many pixels: the face is
  /// drawn narrower where it would not.
  void fit_width(int column_width);

  void paint(QPainter& painter, const QRect& rect, const Cell& cell,
             const CellSurroundings& around);

 private:
  const QStaticText& layout(const std::string& text);
  void paint_text(QPainter& painter, const QRect& rect, const Cell& cell,
                  const CellSurroundings& around);

  QFont font_;
  int text_pixels_ = 14;
  std::unordered_map<std::string, QStaticText> layouts_;
};

}  // namespace lunavox

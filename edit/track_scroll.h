#pragma once

#include "grid/cell_grid.h"
#include "grid/screen.h"

namespace lunavox {

/// Keeps a grid's first visible column at the first column of the track that the scroll bar
/// `defilchan` stands on, so that scrolling always shows whole tracks. Lives as long as the screen.
class TrackScroll : public CellGridObserver {
 public:
  /// @param columns_per_track columns that one track has in the grid
  TrackScroll(CellGrid& grid, Screen& screen, int columns_per_track);
  ~TrackScroll() override;
  TrackScroll(const TrackScroll&) = delete;
  TrackScroll& operator=(const TrackScroll&) = delete;

  void scrolled() override { align(); }
  void shape_changed() override { align(); }

 private:
  void align();

  CellGrid& grid_;
  const Screen& screen_;
  int columns_per_track_;
};

/// The first visible column for a value of `defilchan` (1 for the first track).
constexpr int first_visible_column(int defilchan, int columns_per_track) {
  return columns_per_track * (defilchan - 1) + 1;
}

}  // namespace lunavox

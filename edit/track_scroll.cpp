#include "edit/track_scroll.h"

namespace lunavox {

TrackScroll::TrackScroll(CellGrid& grid, Screen& screen, int columns_per_track)
    : grid_(grid), screen_(screen), columns_per_track_(columns_per_track) {
  grid_.add_observer(this);
  screen.defilchan.on_change([this](int) { align(); });
}

TrackScroll::~TrackScroll() {
  grid_.remove_observer(this);
}

void TrackScroll::align() {
  const int column = first_visible_column(screen_.defilchan, columns_per_track_);
  // A track that has just been deleted may leave the scroll bar behind the last column for a while.
  if (column < grid_.columns()) grid_.set_left_column(column);
}

}  // namespace lunavox

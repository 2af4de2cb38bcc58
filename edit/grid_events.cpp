#include "edit/grid_events.h"

namespace lunavox {

CursorEvents::CursorEvents(Song& song, const Flags& flags, const Property<bool>& curs)
    : song_(song), flags_(flags), curs_(curs) {
  song_.tracks.add_observer(this);
}

CursorEvents::~CursorEvents() {
  song_.tracks.remove_observer(this);
}

void CursorEvents::cursor_moved(CellPosition /*from*/) {
  if (flags_.song_building) return;
  song_.actualtrack();
  if (curs_ && flags_.playing && song_.tracks.row() > 0)
    song_.tracks.set_top_row(song_.tracks.row());
}

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

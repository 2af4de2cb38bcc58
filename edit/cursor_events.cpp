#include "edit/cursor_events.h"

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

}  // namespace lunavox

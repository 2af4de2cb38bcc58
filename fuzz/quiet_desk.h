#pragma once

#include "files/song_file.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/progress.h"
#include "grid/screen.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"

namespace lunavox::fuzz {

/// A song of two lines with a drum track, and what reading a song file needs around it.
struct QuietDesk {
  QuietDesk() {
    song.length.put("2");
    tracks.adddrumtrack();
    length.lengthchange();
    song.tracks.set_cursor(1, 1);
  }

  Song song;
  Flags flags;
  Screen screen{800, 600};
  NoDialogs dialogs;
  NoProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};
  SongLength length{song, flags, dialogs, progress};
  SongFile file{song, flags, tracks, length, dialogs, progress};
};

}  // namespace lunavox::fuzz

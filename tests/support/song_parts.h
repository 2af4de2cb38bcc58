#pragma once

#include "grid/flags.h"
#include "grid/screen.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/scripted_dialogs.h"

#include <string>

namespace lunavox::test {

/// A song of some tracks and lines with the components that made it, without what a higher room
/// ties to them. The cursor stands on its first cell, nothing is modified, and what the progress
/// box showed on the way is forgotten.
struct SongParts {
  explicit SongParts(int track_count = 1, int lines = 64, const Screen& on = {1024, 768})
      : screen(on) {
    flags.song_building = true;
    tracks.adddrumtrack();
    for (int t = 2; t <= track_count; ++t) tracks.addinstrutrack();
    song.length.put(std::to_string(lines));
    length.lengthchange();
    length.calcultime();
    song.tracks.set_cursor(1, 1);
    song.actualtrack();
    flags.song_building = false;
    flags.modified = false;
    progress.shown.clear();
  }

  Song song;
  Flags flags;
  Screen screen;
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};
  SongLength length{song, flags, dialogs, progress};
};

}  // namespace lunavox::test

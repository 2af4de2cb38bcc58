#pragma once

#include "grid/song_length.h"
#include "grid/tracks.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/scripted_dialogs.h"

namespace lunavox::test {

/// A song of some tracks and lines, with the components that made it.
struct WindowSong {
  explicit WindowSong(int track_count = 1, int lines = 64, Screen on = {1024, 768}) : screen(on) {
    flags.song_building = true;
    tracks.adddrumtrack();
    for (int t = 2; t <= track_count; ++t) tracks.addinstrutrack();
    song.length.put(std::to_string(lines));
    song_length.lengthchange();
    song_length.calcultime();
    song.tracks.set_cursor(1, 1);
    song.actualtrack();
    flags.song_building = false;
    flags.modified = false;
  }

  Song song;
  Flags flags;
  Screen screen;
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  SongLength song_length{song, flags, dialogs, progress};
  Tracks tracks{song, flags, screen, dialogs, progress};
};

}  // namespace lunavox::test

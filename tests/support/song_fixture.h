#pragma once

#include "grid/flags.h"
#include "grid/screen.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/scripted_dialogs.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lunavox::test {

/// A song of a drum track and instrument tracks, without what a higher room ties to it, with the
/// cursor on its first cell.
class SongFixture : public ::testing::Test {
 protected:
  SongFixture() {
    flags.song_building = true;
    tracks.adddrumtrack();
    resize(16);
    tracks.addinstrutrack();
    flags.song_building = false;
    song.tracks.set_cursor(1, 1);
    song.actualtrack();
    flags.modified = false;
    progress.shown.clear();
  }

  void resize(int lines) {
    song.length.put(std::to_string(lines));
    length.lengthchange();
  }

  /// Texts of a column of `tracks`, rows first to last.
  std::vector<std::string> texts(int column, int first, int last) const {
    std::vector<std::string> found;
    for (int row = first; row <= last; ++row) found.push_back(song.tracks.text(row, column));
    return found;
  }

  /// Values of a curve, rows first to last.
  std::vector<int> values(int track, int effect, int first, int last) const {
    std::vector<int> found;
    for (int row = first; row <= last; ++row) found.push_back(song.values.at(track, effect, row));
    return found;
  }

  void set_key(int track, int effect, int row, int value) {
    song.values.at(track, effect, row) = static_cast<std::int16_t>(value);
    song.key_attributes.at(track, effect, row) = 1;
  }

  Song song;
  Flags flags;
  Screen screen{1024, 768};
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};
  SongLength length{song, flags, dialogs, progress};
};

}  // namespace lunavox::test

#pragma once

#include "files/song_file.h"
#include "grid/flags.h"
#include "grid/screen.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/temp_folder.h"

#include <string>
#include <vector>

namespace lunavox::test {

/// A song with all that the file commands need around it: one drum track of some lines.
struct SongBench {
  explicit SongBench(const std::string& lines = "64") {
    flags.song_building = true;
    song.length.put(lines);
    tracks.adddrumtrack();
    length.lengthchange();
    length.calcultime();
    song.tracks.set_cursor(1, 1);
    flags.song_building = false;
    progress.shown.clear();
    file.set_starteffect([this] { ++starteffects; });
  }

  Song song;
  Flags flags;
  Screen screen{1024, 768};
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};
  SongLength length{song, flags, dialogs, progress};
  SongFile file{song, flags, tracks, length, dialogs, progress};
  int starteffects = 0;
};

using Lines = std::vector<std::string>;

/// The lines as a file holds them, each ended by CR LF.
inline std::string joined(const Lines& lines, const std::string& line_end = "\r\n") {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + line_end;
  return bytes;
}

/// Appends lines to others.
inline void append(Lines& to, const Lines& more) {
  to.insert(to.end(), more.begin(), more.end());
}

/// The same line some times over.
inline Lines repeated(int times, const std::string& line) {
  return Lines(static_cast<std::size_t>(times), line);
}

}  // namespace lunavox::test

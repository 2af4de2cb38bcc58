#pragma once

#include "files/song_file.h"
#include "tests/support/song_parts.h"
#include "tests/support/temp_folder.h"

#include <string>
#include <vector>

namespace lunavox::test {

/// A song of one drum track with all that the file commands need around it.
struct SongBench : SongParts {
  explicit SongBench(int lines = 64) : SongParts(1, lines) {
    file.set_starteffect([this] { ++starteffects; });
  }

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

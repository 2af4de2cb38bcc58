#pragma once

#include "tests/support/error_of.h"
#include "tests/support/song_bench.h"

#include <string>

#include <gtest/gtest.h>

// Song files as lists of their lines, written out by hand.
namespace lunavox::test {

// The "Active", "Start value" and "Show" columns of a new track.
inline const Lines kActive = {"yes", "no", "no", "no", "no", "no", "no", "no", "no", "no", "no"};
inline const Lines kStartValues = {"127", "64", "1", "64", "40", "1", "1", "64", "64", "64"};
inline const Lines kShow = {"no", "yes", "no", "no", "no", "no", "no", "no", "no", "no", "no"};

inline void append_settings(Lines& lines, const std::string& voice) {
  append(lines, kActive);
  append(lines, {voice});
  append(lines, kStartValues);
  append(lines, kShow);
}

/// The curves of a new track of two lines: the key on the first line, then a line that follows.
inline void append_flat_curves(Lines& lines) {
  for (const char* value :
       {" 0 ", " 127 ", " 64 ", " 1 ", " 64 ", " 40 ", " 1 ", " 1 ", " 1 ", " 64 ", " 64 "}) {
    append(lines, {value, "-1 ", value, " 0 "});
  }
}

/// A new song of two lines, as it is saved.
inline Lines two_line_song() {
  Lines lines = {"2.0", " 1 ", " 3 ", "1", "120", "2", "4", " 0 ", " 0 "};
  append_settings(lines, "standard 1");
  append(lines, {" 0 ", " 9 "});
  append_flat_curves(lines);
  append(lines, {" 2 ", " 0 ", " 0 ", " 0 "});
  return lines;
}

/// A song of two lines and two tracks with notes, bookmarks, banks and XG effects.
inline Lines full_song() {
  Lines lines = {"2.0", " 2 ", " 3 ", "0", "96", "2", "3", " 2 ", "verse", " 1 ", "é", " 2 "};
  append(lines, {" 0 ", " 18 "});
  append_settings(lines, "room");
  append_settings(lines, "MelloGrP");
  append(lines, {" 2 ", " 1 "});
  append(lines, {"642499", "stop", "", "7F2699", "A3C90", ""});
  append(lines, {" 9 ", " 0 "});
  append_flat_curves(lines);
  append_flat_curves(lines);
  append(lines, {" 2 ", " 3 ", " 8 ", "-1 ", " 22 "});
  return lines;
}

/// A song of two lines with a folder for its files.
class SongFiles : public ::testing::Test {
 protected:
  void open(const Lines& lines) { open_bytes(joined(lines)); }
  void open_bytes(const std::string& bytes) {
    bench.file.current_name = folder.write("song.lvx", bytes);
    bench.file.procopen();
  }
  std::optional<RuntimeError::Number> error_of_opening(const Lines& lines) {
    return error_of([&] { open(lines); });
  }
  std::string saved() {
    bench.file.current_name = folder.file("saved.lvx");
    bench.file.procsave();
    return folder.read("saved.lvx");
  }

  TempFolder folder;
  SongBench bench{2};
};

}  // namespace lunavox::test

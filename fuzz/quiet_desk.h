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

/// Answers nothing and shows nothing.
class QuietDialogs : public Dialogs {
 public:
  Answer message(const Message&) override { return Answer::kCancel; }
  std::string input(const Question&) override { return {}; }
  std::string open_file(const FileQuestion&) override { return {}; }
  std::string save_file(const FileQuestion&) override { return {}; }
};

class QuietProgress : public ProgressBox {
 public:
  void show(const std::string&, int) override {}
  void set_caption(const std::string&) override {}
  void set_value(int) override {}
  void hide() override {}
};

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
  QuietDialogs dialogs;
  QuietProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};
  SongLength length{song, flags, dialogs, progress};
  SongFile file{song, flags, tracks, length, dialogs, progress};
};

}  // namespace lunavox::fuzz

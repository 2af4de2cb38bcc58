#pragma once

#include "files/field_reader.h"
#include "files/song_reader.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/progress.h"
#include "grid/property.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"

#include <functional>
#include <string>

namespace lunavox {

/// Where the message about songs of newer versions sends the user.
inline constexpr const char* kDownloadAddress = "https://lunavox.example/";

/// Saves the song to its file and opens song files (".lvx", ".lvo").
class SongFile {
 public:
  SongFile(Song& song, Flags& flags, Tracks& tracks, SongLength& length, Dialogs& dialogs,
           ProgressBox& progress);

  /// The current song file name, empty while there is none.
  Property<std::string> current_name;

  /// Sends every track's voice selection, which ends the opening of a song.
  void set_starteffect(std::function<void()> starteffect) { starteffect_ = std::move(starteffect); }

  /// Writes the song to the current file name and clears `modified`. The old file stays until the
  /// new one is whole.
  /// @throws RuntimeError as AtomicFile does; the song is still `modified` then
  void procsave();

  /// Reads the current file name into the song as it stands: the tracks that are missing are added,
  /// none are removed, and the file's bookmarks join those of the song. Files of versions that are
  /// too new or too old are refused with a message; `modified` is cleared then too.
  /// @return false when the file was refused
  /// @throws RuntimeError for a file that cannot be read, ends early or breaks a bound; the song
  ///         and its flags are as they were before, then
  bool procopen();

  /// What procopen() does with the contents of a file; the reader stands behind the song
  /// afterwards.
  bool read(FieldReader& fields);

 private:
  bool accept_version(double version);
  void read_or_put_back(FieldReader& fields, double version);
  void read_song(FieldReader& fields, double version, SongStores& old);
  void add_missing_tracks(int track_count);
  void read_groups(SongReader& reader);
  void show_effects();
  void put_cursor_home();

  Song& song_;
  Flags& flags_;
  Tracks& tracks_;
  SongLength& length_;
  Dialogs& dialogs_;
  ProgressBox& progress_;
  std::function<void()> starteffect_;
  /// The loop index that the song routines share for tracks. After a pass over all tracks it stands
  /// one past the last; the message about newer versions shows it in place of a version, as users
  /// know it.
  int shared_index_ = 0;
};

}  // namespace lunavox

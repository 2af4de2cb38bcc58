#pragma once

#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/progress.h"
#include "grid/screen.h"
#include "grid/song.h"

#include <functional>
#include <string>

namespace lunavox {

/// Creates tracks at the right end of the song and removes them from there. The three grids and the
/// per-track tables are kept in step.
class Tracks {
 public:
  /// What lies in higher rooms and ends the creation of a track.
  struct Hooks {
    std::function<void()> showeffect;   ///< draws the current track's effect column
    std::function<void()> starteffect;  ///< sends every track's voice selection
  };

  Tracks(Song& song, Flags& flags, Screen& screen, Dialogs& dialogs, ProgressBox& progress);

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }

  /// Creates track 1, the drum track. For a song that has no track yet.
  void adddrumtrack();
  /// Appends an instrument track, or tells that there is no room for an eleventh track.
  void addinstrutrack();
  /// Removes the last track, or tells that the drum track stays. The note store keeps its notes.
  void menudeltrack_click();

  /// Raises the track count by one and gives the grids the columns, headers and settings of the new
  /// instrument track, without touching its stored curves. The song reader's part of
  /// addinstrutrack.
  void append_instrument_columns();

 private:
  void append_columns(const std::string& header, const std::string& voice);
  void write_headers(int track, const std::string& header);
  void write_settings(int track, const std::string& voice);
  void start_curves(int track);
  void add_track(const std::string& caption, const std::string& header, const std::string& voice);

  Song& song_;
  Flags& flags_;
  Screen& screen_;
  Dialogs& dialogs_;
  ProgressBox& progress_;
  Hooks hooks_;
};

/// Gives the three grids the columns of a number of tracks.
void set_track_columns(Song& song, int track_count);

}  // namespace lunavox

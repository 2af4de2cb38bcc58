#pragma once

#include "files/midi_export.h"
#include "files/recent_files.h"
#include "files/song_file.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"

#include <filesystem>
#include <functional>
#include <string>

namespace lunavox {

/// What the file commands work on.
struct FileDesk {
  Song& song;
  Flags& flags;
  Tracks& tracks;
  SongLength& length;
  SongFile& file;
  MidiExport& exporter;
  RecentFiles& recent;
  Dialogs& dialogs;
};

/// The commands of the File and Help menus. What is open and unsaved is asked about before it goes.
///
/// File faults are thrown as RuntimeError. The song then is as it was before the command, under the
/// name that it had.
class FileCommands {
 public:
  struct Hooks {
    /// Stops playing or realtime recording. File work would hold up the lines.
    std::function<void()> stop_playing;
    /// Closes the MIDI ports and ends the program.
    std::function<void()> quit;
    /// Opens a document with the desktop's own program for it.
    std::function<void(const std::filesystem::path& document)> open_document;
    /// The song is another one than before.
    std::function<void()> song_changed;
  };

  /// @param readme  the help page
  FileCommands(const FileDesk& desk, std::filesystem::path readme)
      : desk_(desk), readme_(std::move(readme)) {}

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }

  void menunew_click();
  void menuopen_click();
  void menusave_click();
  void menusaveas_click();
  void menuexport_click();
  /// Also what closing the window does.
  void menuquit_click();
  void menuhelp_click();
  void menuauthor_click();

  /// Opens a song that was dropped on the window, chosen from the recent files or named on the
  /// command line, after the save question. A file that is not there is told and leaves the list.
  /// @param given  may be relative to the working folder; the song has its whole name
  void open_path(const std::string& given);

  /// Asks whether to save, when there is something to save. What becomes of the saving is not
  /// looked at.
  /// @param command  the name of the command, which is the question's title
  /// @return false for Cancel: the command is not to go on
  bool save_question(const std::string& command);

  /// Makes the song a new one of 64 lines with its drum track.
  void procnew();

 private:
  void stop_playing();
  void open(const std::string& name);
  void save_as(const std::string& name);
  std::string chosen_name(const FileQuestion& question, const std::string& extension);
  void clear_song();
  void song_changed();

  FileDesk desk_;
  std::filesystem::path readme_;
  Hooks hooks_;
};

}  // namespace lunavox

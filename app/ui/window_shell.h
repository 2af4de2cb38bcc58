#pragma once

#include "app/start_up.h"
#include "app/ui/main_window.h"
#include "edit/ui/note_keyboard.h"
#include "files/config.h"
#include "files/file_commands.h"
#include "files/program_folders.h"
#include "files/recent_files.h"
#include "files/recovery.h"
#include "grid/ui/qt_dialogs.h"
#include "grid/ui/qt_progress_box.h"
#include "grid/ui/skin_pictures.h"
#include "midi/ui/count_in_dialog.h"
#include "midi/ui/line_room.h"
#include "midi/ui/loop_driver.h"

#include <QTimer>
#include <memory>

namespace lunavox {

class DrumKitDialog;
class InstrumentDialog;
class RecordOptionsDialog;

/// The editor with its window: what stands between the toolkit-free parts and the screen, and the
/// ties between the two.
class WindowShell {
 public:
  /// What the machine offers. Outlives the shell.
  struct Machine {
    OutputDevices& outputs;
    InputDevices& inputs;
    Clock& clock;
    ProgramFolders folders;
    /// Told when lines begin to come due, and when they cease; may be empty.
    std::function<void(bool lines)> hurry = {};
  };

  /// @param dialogs  where the editor asks and tells; null for boxes on the screen
  WindowShell(const Machine& machine, const StartUp::Wishes& wishes, Dialogs* dialogs = nullptr);
  ~WindowShell();

  Editor& editor() { return *editor_; }
  MainWindow& window() { return *window_; }

  /// Shows the window and brings the editor to life.
  /// @param song  the song file to open, empty for none
  void start(const std::string& song);
  /// Something has happened that the current loop does not know of yet.
  void wake() { driver_.wake(); }
  /// The exit status once something has ended the program, else none.
  std::optional<int> ended() const { return ended_; }
  /// Ends the program: its event loop returns, or is not entered.
  void end(int status);
  /// Ends the program at the system's wish, without questions: unsaved work is kept for the next
  /// start.
  void end_at_once();
  /// Tells of a fault that no rule handles, keeps the song, and ends the program with status 1.
  void end_on_fault(const std::string& text);

 private:
  MenuCommands menu_commands();
  void add_file_commands(MenuCommands& commands);
  WindowCommands window_commands();
  void tie();
  void tie_files();
  void choose_input(const std::vector<std::string>& names);
  bool quit();
  void show_record_options();
  void keep_song();
  std::string kept_song();

  ProgramFolders folders_;
  Clock& clock_;
  QtDialogs screen_dialogs_;
  Dialogs& dialogs_;
  QtProgressBox progress_;
  std::unique_ptr<CountInDialog> count_in_;
  std::unique_ptr<Editor> editor_;
  Config config_;
  StartUp start_up_;
  RecentFiles recent_;
  FileCommands file_commands_;
  RecoveryFile recovery_;
  QTimer recovery_timer_;
  NoteKeyboard keyboard_;
  SkinPictures skin_;
  LoopDriver driver_;
  LineRoom line_room_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<RecordOptionsDialog> record_options_;
  std::unique_ptr<InstrumentDialog> instrument_;
  std::unique_ptr<DrumKitDialog> drum_kit_;
  std::optional<int> ended_;
};

}  // namespace lunavox

#pragma once

#include "app/editor.h"
#include "edit/keyboard_layout.h"
#include "files/config.h"
#include "files/program_folders.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lunavox {

/// Sets up the new song that the editor starts with: the drum track, the song's length and its
/// first cursor position. The song-building flag is raised by it.
void build_first_song(Editor& editor);

/// Brings the editor from nothing to the input loop.
class StartUp {
 public:
  /// What the user decided on the command line.
  struct Wishes {
    std::optional<std::string> output;  ///< a device's number or part of its name
    std::optional<std::string> input;
    LayoutSet keyboard = LayoutSet::kQwerty;
  };

  struct Hooks {
    /// Shows the input device dialog `Form2` with the names of the inputs. Its confirmation calls
    /// getinputid(); its "Quit Lunavox" ends the program.
    std::function<void(const std::vector<std::string>& names)> choose_input;
    /// The editor is ready.
    std::function<void()> ready;
  };

  StartUp(Editor& editor, Config& config, const ProgramFolders& folders, Wishes wishes);

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }

  /// The main window loads.
  /// @throws RuntimeError for a configuration or bank file that cannot be read
  void load();

  /// Finds the MIDI input: none, the one that the user is to choose, or the remembered one.
  void continue_();

  /// The input dialog was confirmed: the device is remembered, and start-up goes on.
  /// @param position the place of the chosen device in the list
  void getinputid(int position);

  /// Builds the editor up to the input loop, or ends the program where a device fails.
  void initialisation();

 private:
  void check_screen();
  void read_banks();
  bool open_input();
  bool open_output();
  std::optional<int> wished_input(const std::vector<std::string>& names);
  void tell_missing(const std::string& kind, const std::string& wish);

  Editor& editor_;
  Config& config_;
  const ProgramFolders& folders_;
  Wishes wishes_;
  Hooks hooks_;
  int input_device_ = 0;
};

}  // namespace lunavox

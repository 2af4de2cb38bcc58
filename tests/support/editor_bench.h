#pragma once

#include "app/start_up.h"
#include "midi/ports/logging_output_devices.h"
#include "tests/support/recorded_count_in.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/recording_output.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_inputs.h"
#include "tests/support/temp_folder.h"

#include <optional>
#include <string>
#include <vector>

namespace lunavox::test {

/// The whole editor but its window, on a clock that is advanced by hand, devices that write down
/// and a program folder of its own.
struct EditorBench {
  /// @param log_file  of all that is sent; empty for none
  explicit EditorBench(const Screen& screen = Screen(1024, 768), const std::string& log_file = {})
      : editor({begin_log(log_file), inputs, clock, dialogs, progress, count_in}, screen) {
    editor.shell.end_program = [this](int status) { end_status = status; };
    std::string kits;
    for (int kit = 0; kit < 9; ++kit) {
      kits += "kit " + std::to_string(kit) + "," + std::to_string(8 * kit) + "\r\n";
    }
    folder.write("drumbank.ini", kits);
    folder.write("instrubank.ini", "GrandPno,0,0\r\nGrndPnoK,1,0\r\nBritePno,0,1\r\n");
  }

  void start() {
    start_up.set_hooks({[this](const std::vector<std::string>& names) { offered = names; },
                        [this] { ready = true; }});
    start_up.load();
  }

  OutputDevices& begin_log(const std::string& file) {
    if (file.empty()) return output;
    return log.emplace(output, file);
  }

  ManualClock clock{1000};
  ScriptedDialogs dialogs;
  RecordingOutput output;
  std::optional<LoggingOutputDevices> log;
  ScriptedInputs inputs;
  RecordedProgress progress;
  RecordedCountIn count_in;
  TempFolder folder;
  ProgramFolders folders{folder.path(), folder.path(), folder.path(), folder.path()};
  Config config{folders.config_file()};
  Editor editor;
  StartUp::Wishes wishes;
  StartUp start_up{editor, config, folders, wishes};

  std::vector<std::string> offered;  ///< the names that the input dialog was shown with
  bool ready = false;
  int end_status = -1;  ///< the exit status once the program was told to end
};

}  // namespace lunavox::test

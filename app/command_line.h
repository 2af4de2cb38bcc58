#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lunavox {

/// What the program is started to do.
enum class Mode {
  kEdit,         ///< the window
  kExport,       ///< --export
  kConvert,      ///< --convert
  kRender,       ///< --render
  kPlay,         ///< --play
  kListDevices,  ///< --list-devices
  kVersion,      ///< --version
  kHelp,         ///< --help
};

/// The program's arguments, read and checked.
struct CommandLine {
  Mode mode = Mode::kEdit;
  std::string song;                   ///< empty: a new song
  std::string result_file;            ///< of --export, --convert and --render
  std::optional<std::string> output;  ///< device by list number or part of its name
  std::optional<std::string> input;
  std::string soundfont;  ///< empty: the system's
  std::string keyboard;   ///< "qwerty", "qwertz", "azerty"; empty: the system's
  std::string midi_log;   ///< empty: none
};

/// A wrong command line; the text is one sentence that says what is wrong.
class CommandLineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments, the program's name not among them.
/// @throws CommandLineError
CommandLine read_command_line(const std::vector<std::string>& arguments);

/// The text of --help.
std::string help_text();

}  // namespace lunavox

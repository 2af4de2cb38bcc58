#include "app/command_line.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lunavox {
namespace {

/// Reads the arguments one by one.
class Reader {
 public:
  explicit Reader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  CommandLine read() {
    for (; next_ < arguments_.size(); ++next_) {
      const std::string& argument = arguments_[next_];
      if (!options_ended_ && argument == "--") {
        options_ended_ = true;
      } else if (!options_ended_ && argument.starts_with("-") && argument != "-") {
        read_option(argument);
      } else {
        take_song(argument);
      }
    }
    check();
    return line_;
  }

 private:
  void read_option(const std::string& argument) {
    const auto equals = argument.find('=');
    name_ = argument.substr(0, equals);
    inline_value_.reset();
    if (equals != std::string::npos) inline_value_ = argument.substr(equals + 1);
    if (read_run() || read_setting()) return;
    throw CommandLineError("unknown option '" + name_ + "'");
  }

  /// The options that say what is to be done.
  bool read_run() {
    struct Run {
      std::string_view name;
      Mode mode;
      bool writes_file;
    };
    static constexpr std::array<Run, 9> kRuns = {{{"--export", Mode::kExport, true},
                                                  {"--convert", Mode::kConvert, true},
                                                  {"--render", Mode::kRender, true},
                                                  {"--play", Mode::kPlay, false},
                                                  {"--list-devices", Mode::kListDevices, false},
                                                  {"--version", Mode::kVersion, false},
                                                  {"--help", Mode::kHelp, false},
                                                  {"-h", Mode::kHelp, false},
                                                  {"-V", Mode::kVersion, false}}};
    const auto* run = std::find_if(kRuns.begin(), kRuns.end(),
                                   [&](const Run& candidate) { return candidate.name == name_; });
    if (run == kRuns.end()) return false;
    if (!run_option_.empty() && line_.mode != run->mode) {
      throw CommandLineError(run_option_ + " and " + name_ + " cannot go together");
    }
    run_option_ = name_;
    line_.mode = run->mode;
    if (run->writes_file) {
      line_.result_file = value();
    } else {
      refuse_value();
    }
    return true;
  }

  bool read_setting() {
    if (name_ == "--output") {
      line_.output = value();
    } else if (name_ == "--input") {
      line_.input = value();
    } else if (name_ == "--soundfont") {
      line_.soundfont = value();
    } else if (name_ == "--midi-log") {
      line_.midi_log = value();
    } else if (name_ == "--keyboard") {
      line_.keyboard = keyboard(value());
    } else {
      return false;
    }
    return true;
  }

  static std::string keyboard(const std::string& layout) {
    if (layout == "qwerty" || layout == "qwertz" || layout == "azerty") return layout;
    throw CommandLineError("--keyboard is qwerty, qwertz or azerty, not '" + layout + "'");
  }

  /// The option's value: after its "=", or the next argument.
  std::string value() {
    if (inline_value_ && !inline_value_->empty()) return *inline_value_;
    if (inline_value_ || next_ + 1 >= arguments_.size() || arguments_[next_ + 1].empty()) {
      throw CommandLineError(name_ + " needs a value");
    }
    return arguments_[++next_];
  }

  void refuse_value() const {
    if (inline_value_) throw CommandLineError(name_ + " takes no value");
  }

  void take_song(const std::string& argument) {
    if (argument.empty()) throw CommandLineError("the song's name is empty");
    if (!line_.song.empty()) {
      throw CommandLineError("only one song can be given, not '" + line_.song + "' and '" +
                             argument + "'");
    }
    line_.song = argument;
  }

  void check() const {
    const bool needs_song = line_.mode == Mode::kExport || line_.mode == Mode::kConvert ||
                            line_.mode == Mode::kRender || line_.mode == Mode::kPlay;
    if (needs_song && line_.song.empty()) throw CommandLineError(run_option_ + " needs a song");
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  bool options_ended_ = false;
  std::string name_;
  std::optional<std::string> inline_value_;
  std::string run_option_;
  CommandLine line_;
};

}  // namespace

CommandLine read_command_line(const std::vector<std::string>& arguments) {
  return Reader(arguments).read();
}

std::string help_text() {
  return "Usage: lunavox [options] [SONG]\n"
         "\n"
         "Opens the editor, on SONG if one is given.\n"
         "\n"
         "Without a window:\n"
         "  --export OUT.mid SONG   write a Standard MIDI File\n"
         "  --convert OUT.lvx SONG  open and save again, which upgrades old files\n"
         "  --render OUT.wav SONG   render through the built-in synthesiser (.wav .flac .ogg)\n"
         "  --play SONG             play to the output in real time; Ctrl-C stops\n"
         "  --list-devices          list the MIDI outputs and inputs\n"
         "  -V, --version           print the version\n"
         "  -h, --help              print this\n"
         "\n"
         "Options:\n"
         "  --output NAME|NUMBER    MIDI output, by list number or part of its name\n"
         "  --input NAME|NUMBER     MIDI input, likewise\n"
         "  --soundfont FILE        SoundFont of the built-in synthesiser\n"
         "  --keyboard LAYOUT       qwerty, qwertz or azerty\n"
         "  --midi-log FILE         log every message that the output port sends\n";
}

}  // namespace lunavox

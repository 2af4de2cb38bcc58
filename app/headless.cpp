#include "app/headless.h"

#include "app/console.h"
#include "app/editor.h"
#include "app/logged_outputs.h"
#include "app/song_player.h"
#include "app/start_up.h"
#include "grid/progress.h"
#include "grid/version.h"
#include "midi/count_in_window.h"
#include "midi/device_selection.h"
#include "midi/ports/audio_file.h"
#include "midi/ports/null_device.h"
#include "midi/ports/port_error.h"
#include "midi/ports/synth_renderer.h"

#include <algorithm>
#include <cmath>

namespace lunavox {
namespace {

/// Ends the run with one sentence on standard error.
class RunError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The editor without a window, with the song of the command line opened.
class HeadlessEditor {
 public:
  HeadlessEditor(OutputDevices& outputs, Clock& clock, std::ostream& errors)
      : dialogs_(errors),
        editor_({outputs, inputs_, clock, dialogs_, progress_, count_in_}, Screen(1024, 768)) {
    build_first_song(editor_);
    editor_.flags.song_building = false;
    editor_.current_loop.set(&editor_.listen);
  }

  Editor& editor() { return editor_; }

  /// @throws RunError without a text when the song was refused: the reason has been told
  void open_song(const std::string& name) {
    editor_.song_file.current_name = name;
    editor_.song_file.procopen();
    if (dialogs_.told()) throw RunError("");
  }

  /// @throws RunError without a text when the device could not be opened: that has been told
  void open_output(int device) {
    if (!editor_.outputdev.choose_device(device) || dialogs_.told()) throw RunError("");
  }

 private:
  ConsoleDialogs dialogs_;
  NoProgress progress_;
  NoCountIn count_in_;
  NullInputDevices inputs_;
  Editor editor_;
};

/// Opens the song on a silent output, for runs that only write another file.
class SilentRun {
 public:
  SilentRun(const CommandLine& line, const Headless& world)
      : headless_(silence_, clock_, world.errors) {
    headless_.open_output(0);
    headless_.open_song(line.song);
  }
  Editor& editor() { return headless_.editor(); }

 private:
  ManualClock clock_;
  NullOutputDevices silence_;
  HeadlessEditor headless_;
};

void convert_song(const CommandLine& line, const Headless& world) {
  SilentRun run(line, world);
  run.editor().song_file.current_name = line.result_file;
  run.editor().song_file.procsave();
}

void export_song(const CommandLine& line, const Headless& world) {
  SilentRun run(line, world);
  run.editor().midi_export.export_name = line.result_file;
  run.editor().midi_export.procexport();
}

bool silent(const std::vector<float>& sound) {
  constexpr float kAudible = 1.0F / 32768;
  return std::all_of(sound.begin(), sound.end(),
                     [](float sample) { return std::abs(sample) < kAudible; });
}

/// Lets the last notes and the reverb die away.
void render_tail(SynthRenderer& synth, AudioFile& file) {
  constexpr int kLongestTailSeconds = 10;
  const auto piece = static_cast<std::size_t>(synth.sample_rate()) / 10;
  for (int i = 0; i < kLongestTailSeconds * 10; ++i) {
    const std::vector<float> sound = synth.render(piece);
    file.write(sound);
    if (silent(sound)) return;
  }
}

void render_song(const CommandLine& line, const Headless& world) {
  ManualClock clock;
  SynthRenderer synth(line.soundfont);
  LoggedOutputs outputs(synth, line.midi_log,
                        [&clock] { return std::chrono::milliseconds(clock.timeGetTime()); });
  HeadlessEditor headless(outputs.get(), clock, world.errors);
  headless.open_output(0);
  headless.open_song(line.song);
  AudioFile file(line.result_file, synth.sample_rate());
  SongPlayer(headless.editor()).play_through(clock, [&](std::uint32_t ms) {
    if (world.stop) throw RunError("interrupted");
    file.write(synth.render_until(ms));
  });
  render_tail(synth, file);
  file.close();
}

int chosen_output(const CommandLine& line, OutputDevices& outputs) {
  if (!line.output) return kDefaultOutput;
  const auto device = select_device(outputs.names(), *line.output);
  if (!device) throw RunError("there is no MIDI output '" + *line.output + "'");
  return *device;
}

void play_song(const CommandLine& line, const Headless& world) {
  SystemClock clock;
  LoggedOutputs outputs(world.outputs, line.midi_log);
  HeadlessEditor headless(outputs.get(), clock, world.errors);
  headless.open_output(chosen_output(line, world.outputs));
  headless.open_song(line.song);
  const OutputDevice& output = *headless.editor().output.device();
  const std::string at_first = output.status();
  if (!at_first.empty()) world.errors << "lunavox: " << at_first << '\n';
  SongPlayer(headless.editor()).play_in_real_time(world.stop);
  const std::string at_last = output.status();
  headless.editor().close_ports();
  if (!at_last.empty() && at_last != at_first) throw RunError(at_last);
}

void list(std::ostream& out, const char* title, const std::vector<std::string>& names) {
  out << title << '\n';
  if (names.empty()) out << "  none\n";
  for (std::size_t i = 0; i < names.size(); ++i) out << "  " << i << "  " << names[i] << '\n';
}

void list_devices(const Headless& world) {
  list(world.results, "MIDI outputs:", world.outputs.names());
  list(world.results, "MIDI inputs:", world.inputs.names());
}

void run(const CommandLine& line, const Headless& world) {
  switch (line.mode) {
    case Mode::kConvert:
      return convert_song(line, world);
    case Mode::kRender:
      return render_song(line, world);
    case Mode::kPlay:
      return play_song(line, world);
    case Mode::kListDevices:
      return list_devices(world);
    case Mode::kVersion:
      world.results << version_text() << '\n';
      return;
    case Mode::kHelp:
      world.results << help_text();
      return;
    case Mode::kExport:
      return export_song(line, world);
    case Mode::kEdit:
      throw RunError("a window is needed to edit");
  }
}

}  // namespace

int run_headless(const CommandLine& line, const Headless& world) {
  try {
    run(line, world);
    return 0;
  } catch (const std::exception& error) {
    const std::string reason = error.what();
    if (!reason.empty()) world.errors << "lunavox: " << reason << '\n';
    return 1;
  }
}

}  // namespace lunavox

#include "app/start_up.h"

#include "midi/device_selection.h"

namespace lunavox {

void build_first_song(Editor& editor) {
  editor.flags.song_building = true;
  editor.tracks.adddrumtrack();
  editor.song_length.lengthchange();
  editor.song_length.calcultime();
  editor.song.tracks.set_cursor(1, 1);
  editor.song.actualtrack();
  editor.voice_name.refresh();
}

StartUp::StartUp(Editor& editor, Config& config, const ProgramFolders& folders, Wishes wishes)
    : editor_(editor), config_(config), folders_(folders), wishes_(std::move(wishes)) {}

void StartUp::load() {
  editor_.note_keys.set_layoutkeys(layoutkeys_of(layout_set_of(layout_handle(wishes_.keyboard))));
  config_.load();
  continue_();
}

void StartUp::continue_() {
  const std::vector<std::string> names = editor_.world.inputs.names();
  if (names.empty()) {
    editor_.flags.no_input = true;
    wished_input(names);
    initialisation();
  } else if (const auto wished = wished_input(names)) {
    input_device_ = *wished;
    initialisation();
  } else if (config_.asks_for_input()) {
    hooks_.choose_input(names);
  } else {
    input_device_ = config_.input_device();
    initialisation();
  }
}

std::optional<int> StartUp::wished_input(const std::vector<std::string>& names) {
  if (!wishes_.input) return std::nullopt;
  const auto device = select_device(names, *wishes_.input);
  if (!device) tell_missing("input", *wishes_.input);
  return device;
}

void StartUp::tell_missing(const std::string& kind, const std::string& wish) {
  editor_.world.dialogs.error("There is no MIDI " + kind + " \"" + wish + "\".", "Error");
}

void StartUp::getinputid(int position) {
  input_device_ = position;
  config_.store_input_device(position);
  initialisation();
}

void StartUp::initialisation() {
  editor_.flags.song_building = true;
  check_screen();
  read_banks();
  build_first_song(editor_);
  if (!open_input() || !open_output()) return;
  editor_.input.start();
  editor_.flags.song_building = false;
  editor_.flags.modified = false;
  editor_.song.tracks.set_redraw(true);
  editor_.current_loop.set(&editor_.listen);
  if (hooks_.ready) hooks_.ready();
}

void StartUp::check_screen() {
  // The width and the height are each a reason of its own, told apart.
  const auto complain = [this] {
    editor_.world.dialogs.message(
        {"Lunavox won't run correctly with this resolution. Supported "
         "resolution are: 800*600, 1024*768, 1280*1024, 1600*1200",
         "error", Icon::kCritical, Buttons::kOk, "screen size"});
  };
  if (!editor_.screen.width_supported()) complain();
  if (!editor_.screen.height_supported()) complain();
}

void StartUp::read_banks() {
  const LongOperation operation(editor_.world.progress, editor_.song.tracks, "reading banks...", 1);
  editor_.kits = DrumKits::read(folders_.drum_bank());
  editor_.voices = VoiceBanks::read(folders_.voice_bank());
}

bool StartUp::open_input() {
  if (editor_.flags.no_input) return true;
  if (editor_.input.open(input_device_)) return true;
  editor_.world.dialogs.error("No Midi input device found", "Error");
  editor_.end_for_want_of_a_device();
  return false;
}

bool StartUp::open_output() {
  editor_.outputdev.fill();
  int device = 0;
  if (wishes_.output) {
    const auto wished = select_device(editor_.world.outputs.names(), *wishes_.output);
    if (wished) {
      device = *wished;
    } else {
      tell_missing("output", *wishes_.output);
    }
  }
  return editor_.outputdev.choose_device(device);
}

}  // namespace lunavox

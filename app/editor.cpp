#include "app/editor.h"

#include "midi/voice_setup.h"

namespace lunavox {
namespace {

/// Calls what the shell does, where there is a shell to do it.
void call(const std::function<void()>& action) {
  if (action) action();
}

}  // namespace

Editor::Editor(const World& surroundings, const Screen& given_screen)
    : world(surroundings),
      screen(given_screen),
      tracks(song, flags, screen, world.dialogs, world.progress),
      song_length(song, flags, world.dialogs, world.progress),
      output(world.outputs, world.dialogs),
      input(world.inputs, notequeue),
      outputdev(world.outputs, output, song, world.dialogs),
      xg_effects(song, flags, output),
      received(song, flags, world.dialogs, output, notequeue, options),
      listen(received),
      stage{song, flags, world.clock, output, current_loop, listen, pictures, options},
      play_loop(stage),
      realtime_loop(stage, received, world.count_in),
      recorder(stage, world.dialogs, realtime_loop),
      transport(stage, play_loop, realtime_loop),
      curves(song, flags, world.dialogs, world.progress),
      cursor_events(song, flags, options.curs),
      tracks_scroll(song.tracks, screen, kColumnsPerTrack),
      effects_scroll(song.effects, screen, kSettingsPerTrack),
      channels_scroll(song.channels, screen, 1),
      typing_mode(song, flags, world.dialogs, curves),
      note_keys(song, flags, notequeue),
      clipboard(song, flags, world.dialogs),
      block_tools(song, flags, world.dialogs),
      bookmarks(song, flags, world.dialogs, pictures),
      song_file(song, flags, tracks, song_length, world.dialogs, world.progress),
      midi_export(song, world.progress),
      voice_name(song, voices, kits),
      voice_choice({song, flags, output, world.dialogs, voice_name.text}, voices),
      drum_choice({song, flags, output, world.dialogs, voice_name.text}, kits) {
  tie_song();
  tie_devices();
  tie_keys();
}

void Editor::tie_song() {
  const auto send_voices = [this] {
    starteffect(song, output);
    voice_name.refresh();
  };
  tracks.set_hooks({[this] { curves.showeffect(); }, send_voices});
  song_length.set_addfxs([this](int first_row) { curves.addfxs(first_row); });
  song_file.set_starteffect(send_voices);
  curves.set_hooks({[this] { call(shell.choose_drum_kit); },
                    [this] { call(shell.choose_instrument); }, [this] { typing_mode.finish(); }});
}

void Editor::tie_devices() {
  // Whoever holds a key there cannot let go of it any more.
  input.on_gone([this] { received.end_all(); });
  outputdev.set_hooks({[this] { input.close(); }, [this] { end_for_want_of_a_device(); }});
}

void Editor::tie_keys() {
  note_keys.set_space_bar([this] { recorder.space_bar(); });
  recorder.set_focus_tracks([this] { call(shell.focus_tracks); });
  // From then on keys are text: a release would no longer be a note's.
  typing_mode.on_enter([this] { note_keys.release_all(); });
}

void Editor::end_for_want_of_a_device() {
  if (shell.end_program) shell.end_program(1);
}

void Editor::close_ports() {
  current_loop.set(nullptr);
  input.stop();
  input.reset();
  output.reset_device();
  input.close();
  output.close();
}

}  // namespace lunavox

#pragma once

#include "app/voice_name_field.h"
#include "edit/block_tools.h"
#include "edit/bookmarks.h"
#include "edit/clipboard.h"
#include "edit/cursor_events.h"
#include "edit/curves.h"
#include "edit/note_keys.h"
#include "edit/track_scroll.h"
#include "edit/typing_mode.h"
#include "files/drum_choice.h"
#include "files/drum_kits.h"
#include "files/midi_export.h"
#include "files/song_file.h"
#include "files/voice_banks.h"
#include "files/voice_choice.h"
#include "grid/button_pictures.h"
#include "grid/flags.h"
#include "grid/screen.h"
#include "grid/song.h"
#include "grid/song_length.h"
#include "grid/tracks.h"
#include "midi/input_loop.h"
#include "midi/input_port.h"
#include "midi/note_queue.h"
#include "midi/output_choice.h"
#include "midi/output_port.h"
#include "midi/play_loop.h"
#include "midi/realtime_record_loop.h"
#include "midi/record_options.h"
#include "midi/recorder.h"
#include "midi/stage.h"
#include "midi/transport.h"
#include "midi/xg_effects.h"

#include <functional>

namespace lunavox {

/// What lies outside the editor. Everything outlives it.
struct World {
  OutputDevices& outputs;
  InputDevices& inputs;
  Clock& clock;
  Dialogs& dialogs;
  ProgressBox& progress;
  CountInWindow& count_in;
};

/// The editor: its parts, each given what it works on and nothing more, and the ties between them
/// where the end of one part's work lies in a higher room. It has no behaviour of its own; how it
/// comes to life is StartUp's affair.
class Editor {
 public:
  Editor(const World& surroundings, const Screen& given_screen);
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  World world;

  // The song and what is being done with it.
  Song song;
  Flags flags;
  Screen screen;
  RecordOptions options;
  ButtonPictures pictures;

  // grid
  Tracks tracks;
  SongLength song_length;

  // midi
  NoteQueue notequeue;
  OutputPort output;
  InputPort input;
  OutputChoice outputdev;
  XgEffects xg_effects;
  ReceivedNotes received;
  InputLoop listen;
  CurrentLoop current_loop;
  Stage stage;
  PlayLoop play_loop;
  RealtimeRecordLoop realtime_loop;
  Recorder recorder;
  Transport transport;

  // edit
  Curves curves;
  CursorEvents cursor_events;  // before typing_mode: the current track is known first
  TrackScroll tracks_scroll;
  TrackScroll effects_scroll;
  TrackScroll channels_scroll;
  TypingMode typing_mode;
  NoteKeys note_keys;
  Clipboard clipboard;
  BlockTools block_tools;
  Bookmarks bookmarks;

  // files
  SongFile song_file;
  MidiExport midi_export;
  VoiceBanks voices;  ///< empty until they are read from their files
  DrumKits kits;
  VoiceNameField voice_name;
  VoiceChoice voice_choice;
  DrumChoice drum_choice;

  /// What whoever shows the editor does for it.
  struct Shell {
    std::function<void(int status)> end_program;  ///< ends the program with an exit status
    std::function<void()> choose_drum_kit;        ///< opens the drum kit dialog
    std::function<void()> choose_instrument;      ///< opens the instrument dialog
    std::function<void()> focus_tracks;           ///< gives the keys to the note grid
  };
  Shell shell;

  /// Ends the program with status 1: a device that it needs cannot be opened, which has been told.
  void end_for_want_of_a_device();

  /// Stops and resets the input, resets the output, closes both: the last thing before the end.
  void close_ports();

 private:
  void tie_song();
  void tie_devices();
  void tie_keys();
};

}  // namespace lunavox

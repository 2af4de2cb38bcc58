#pragma once

#include "grid/screen.h"
#include "grid/tracks.h"
#include "midi/play_loop.h"
#include "midi/realtime_record_loop.h"
#include "midi/recorder.h"
#include "midi/transport.h"
#include "tests/support/recorded_count_in.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/recording_output.h"
#include "tests/support/scripted_dialogs.h"

#include <string>
#include <vector>

namespace lunavox::test {

/// Everything that plays and records, on a clock that is advanced by hand and an output that writes
/// down. The song has 16 lines, the drum track and one instrument track, no curve active, and the
/// tempo that makes a line 125 ms. The cursor is on the first line, first note column of track 2.
struct Studio {
  ManualClock clock{1000};
  ScriptedDialogs dialogs;
  RecordingOutput output;
  RecordedProgress progress;
  Flags flags;
  Song song;
  Screen screen{1024, 768};
  Tracks tracks{song, flags, screen, dialogs, progress};
  OutputPort port{output, dialogs};
  NoteQueue queue;
  RecordOptions options;
  ButtonPictures pictures;
  CurrentLoop current;
  ReceivedNotes received{song, flags, dialogs, port, queue, options};
  InputLoop listen{received};
  Stage stage{song, flags, clock, port, current, listen, pictures, options};
  RecordedCountIn count_in;
  PlayLoop play_loop{stage};
  RealtimeRecordLoop realtime{stage, received, count_in};
  Recorder recorder{stage, dialogs, realtime};
  Transport transport{stage, play_loop, realtime};

  static constexpr int kTrack2 = 10;  ///< column of track 2's first note column
  static constexpr int kEffect2 = 18;

  explicit Studio(int lines = 16) {
    song.tracks.set_rows(lines + 1);
    song.resize_stores();
    tracks.adddrumtrack();
    tracks.addinstrutrack();
    song.tracks.set_cursor(1, kTrack2);
    flags.modified = false;
    port.open(0);
    output.calls.clear();
    current.set(&listen);
  }

  /// Lets time go by, the current loop making a pass each millisecond.
  void run(std::uint32_t ms) {
    for (std::uint32_t i = 0; i < ms; ++i) {
      clock.advance(1);
      pass();
    }
  }

  void pass() { current.get()->pass(clock.timeGetTime()); }

  /// A message arrives and is handled.
  void receive(std::uint32_t packed) {
    queue.write(packed);
    pass();
  }

  std::vector<std::uint32_t> sent() { return output.take_shorts(); }
  int row() const { return song.tracks.row(); }
};

using Messages = std::vector<std::uint32_t>;

}  // namespace lunavox::test

#include "bench/loops_bench.h"

namespace lunavox::bench {
namespace {

/// A line may not be half a millisecond late; its 180 messages go out in one pass.
constexpr double kLineMs = 0.5;
constexpr double kPassThroughMs = 1;

/// Seconds of one line, on the average over the song.
double play_line(QuietEditor& quiet) {
  Editor& editor = quiet.editor;
  editor.song.tracks.set_cursor(1, 1);
  editor.transport.playnotes_mouseup();
  int lines = 0;
  const double seconds = seconds_of([&] {
    for (; editor.flags.playing; ++lines) {
      quiet.clock.set(editor.play_loop.next_due().value());
      editor.play_loop.pass(quiet.clock.timeGetTime());
    }
  });
  return seconds / lines;
}

/// Seconds from the queue to the device for one message, on the average over some notes.
double pass_through(QuietEditor& quiet) {
  constexpr int kMessages = 10000;
  constexpr std::uint32_t kNoteOn = 0x643C90;
  constexpr std::uint32_t kNoteOff = 0x003C90;
  Editor& editor = quiet.editor;
  editor.song.tracks.set_cursor(1, first_column_of(2));
  const double seconds = seconds_of([&] {
    for (int i = 0; i < kMessages; ++i) {
      editor.notequeue.write(i % 2 == 0 ? kNoteOn : kNoteOff);
      editor.listen.pass(0);
    }
  });
  return seconds / kMessages;
}

}  // namespace

void add_loop_figures(Figures& figures, QuietEditor& quiet) {
  figures.add_time("one line of ten full tracks with all curves played", kLineMs,
                   [&quiet] { return play_line(quiet); });
  figures.add_time("a message passed from the queue to the device", kPassThroughMs,
                   [&quiet] { return pass_through(quiet); });
}

}  // namespace lunavox::bench

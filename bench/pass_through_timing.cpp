#include "bench/timing.h"

#include <algorithm>
#include <thread>

namespace lunavox::bench {
namespace {

constexpr int kNotes = 500;
constexpr double kLimitMs = 1;
/// The note-on as it leaves on the second track's channel.
constexpr std::uint32_t kNoteOn = 0x643C90;
constexpr std::uint32_t kNoteOff = 0x003C90;

/// Plays notes as an input device does, from a thread of its own.
/// @return when each note-on was put into the queue
std::vector<TimePoint> play_notes(NoteQueue& queue) {
  std::vector<TimePoint> played;
  played.reserve(kNotes);
  std::thread device([&] {
    for (int i = 0; i < kNotes; ++i) {
      // No multiple of a millisecond, so that no timer of the editor is always just due.
      std::this_thread::sleep_for(std::chrono::microseconds(5370));
      played.push_back(std::chrono::steady_clock::now());
      queue.write(kNoteOn);
      std::this_thread::sleep_for(std::chrono::microseconds(3190));
      queue.write(kNoteOff);
    }
  });
  run_events(kNotes * 10 + 200);
  device.join();
  run_events(50);
  return played;
}

}  // namespace

std::vector<Figure> pass_through_timing(ShownEditor& shown, StampedOutputs& outputs) {
  Editor& editor = shown.editor();
  editor.song.tracks.set_cursor(1, first_column_of(2));
  editor.options.velocity = true;
  shown.settle();
  outputs.stamps.clear();
  const std::vector<TimePoint> played = play_notes(editor.notequeue);
  std::vector<double> taken;
  for (const Stamp& stamp : outputs.stamps) {
    if (stamp.packed != kNoteOn || taken.size() == played.size()) continue;
    const auto time = stamp.time - played[taken.size()];
    taken.push_back(std::chrono::duration<double, std::milli>(time).count());
  }
  std::sort(taken.begin(), taken.end());
  const auto notes = static_cast<double>(taken.size());
  return {{"notes that came in and did not go out", kNotes - notes, {}, 0.0, ""},
          {"a note from the input to the output: half of them", median_of(taken), {}, {}, "ms"},
          {"a note from the input to the output: 99 of 100",
           taken.empty() ? 0 : taken[taken.size() * 99 / 100],
           {},
           kLimitMs,
           "ms"}};
}

}  // namespace lunavox::bench

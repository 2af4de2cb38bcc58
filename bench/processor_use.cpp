#include "bench/timing.h"

#include <time.h>

namespace lunavox::bench {
namespace {

constexpr double kStoppedPercent = 0.5;
constexpr double kPlayingPercent = 10;

/// Processor seconds that the whole process has used, all threads together.
double process_seconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

/// Per cent of one core that is used while window events run for some time.
double percent_over(int seconds) {
  const double before = process_seconds();
  run_events(1000 * seconds);
  return 100 * (process_seconds() - before) / seconds;
}

}  // namespace

std::vector<Figure> processor_use(ShownEditor& shown, StampedOutputs& outputs, int seconds) {
  Editor& editor = shown.editor();
  editor.options.curs = true;
  editor.song_length.bpm_change("120");
  editor.song_length.number_change("4");
  editor.song.tracks.set_cursor(1, 1);
  run_events(1000);
  const double stopped = percent_over(seconds);
  outputs.stamps.clear();
  editor.transport.playnotes_mouseup();
  const double playing = percent_over(seconds);
  editor.transport.playnotes_mouseup();
  shown.settle();
  return {
      {"share of one core, stopped", stopped, {}, kStoppedPercent, "%"},
      {"share of one core, playing 120 BPM, 4 lines a beat", playing, {}, kPlayingPercent, "%"}};
}

}  // namespace lunavox::bench

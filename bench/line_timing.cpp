#include "bench/timing.h"

#include <algorithm>
#include <cmath>

namespace lunavox::bench {
namespace {

constexpr const char* kBpm = "300";
constexpr const char* kLinesPerBeat = "8";
constexpr std::chrono::milliseconds kPeriod{25};

/// Each line begins with the volume of the drum track, which nothing else in the song sends.
constexpr std::uint32_t kFirstMessage = 0x07B9;
constexpr std::uint32_t kStatusAndController = 0xFFFF;

constexpr double kUsualMs = 0.5;  // for 99 of 100 lines
constexpr double kWorstMs = 2;
/// Less than this cannot be told from chance.
constexpr double kDriftMs = 0.05;

/// When the millisecond clock gets to a reading that is to come soon.
TimePoint time_of(std::uint32_t reading) {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(steady_clock::now());
  const auto now_reading = static_cast<std::uint32_t>(now.time_since_epoch().count());
  return now + milliseconds(static_cast<std::int32_t>(elapsed_ms(now_reading, reading)));
}

/// Plays for some time.
/// @return when the first line was due
TimePoint play(Editor& editor, StampedOutputs& outputs, int seconds) {
  editor.options.curs = true;
  editor.song_length.bpm_change(kBpm);
  editor.song_length.number_change(kLinesPerBeat);
  editor.song.tracks.set_cursor(1, 1);
  run_events(500);
  editor.transport.playnotes_mouseup();
  outputs.stamps.clear();
  const TimePoint first_due = time_of(editor.play_loop.next_due().value());
  run_events(1000 * seconds);
  return first_due;
}

/// Milliseconds by which each line was late against a grid that is laid out from the first line.
std::vector<double> lateness(const std::vector<Stamp>& stamps, TimePoint first_due) {
  std::vector<double> late;
  TimePoint due = first_due;
  for (const Stamp& stamp : stamps) {
    if ((stamp.packed & kStatusAndController) != kFirstMessage) continue;
    late.push_back(std::chrono::duration<double, std::milli>(stamp.time - due).count());
    due += kPeriod;
  }
  return late;
}

double share_of(std::vector<double> sorted, double share) {
  std::sort(sorted.begin(), sorted.end());
  const auto place =
      static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
  return sorted.at(std::max<std::size_t>(place, 1) - 1);
}

/// By how much the last tenth of the lines is later than the first tenth.
double drift(const std::vector<double>& late) {
  const auto tenth = static_cast<std::ptrdiff_t>(late.size() / 10);
  return std::abs(median_of({late.end() - tenth, late.end()}) -
                  median_of({late.begin(), late.begin() + tenth}));
}

}  // namespace

std::vector<Figure> line_timing(ShownEditor& shown, StampedOutputs& outputs, int seconds) {
  Editor& editor = shown.editor();
  const TimePoint first_due = play(editor, outputs, seconds);
  const std::vector<double> late = lateness(outputs.stamps, first_due);
  editor.transport.playnotes_mouseup();
  shown.settle();
  const std::string lines = std::to_string(late.size()) + " lines, late: ";
  return {{lines + "half of them up to", share_of(late, 0.5), {}, {}, "ms"},
          {lines + "90 of 100 up to", share_of(late, 0.9), {}, {}, "ms"},
          {lines + "99 of 100 up to", share_of(late, 0.99), {}, kUsualMs, "ms"},
          {lines + "all up to", share_of(late, 1), {}, kWorstMs, "ms"},
          {lines + "more at the end than at the beginning", drift(late), {}, kDriftMs, "ms"}};
}

}  // namespace lunavox::bench

#include "bench/lateness.h"

#include "bench/timing.h"
#include "midi/ui/line_priority.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

namespace lunavox::bench {
namespace {

constexpr const char* kBpm = "300";
constexpr const char* kLinesPerBeat = "8";
constexpr std::chrono::milliseconds kPeriod{25};

/// Each line begins with the volume of the drum track, which nothing else in the song sends.
constexpr std::uint32_t kFirstMessage = 0x07B9;
constexpr std::uint32_t kStatusAndController = 0xFFFF;

/// When the millisecond clock gets to a reading that is to come soon.
TimePoint time_of(std::uint32_t reading) {
  using namespace std::chrono;
  const auto now = floor<milliseconds>(steady_clock::now());
  const auto now_reading = static_cast<std::uint32_t>(now.time_since_epoch().count());
  return now + milliseconds(static_cast<std::int32_t>(elapsed_ms(now_reading, reading)));
}

double ms_between(TimePoint from, TimePoint to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

/// A thread that does nothing but wait for the middle of each line, the way the editor waits for
/// its beginning: what the machine itself makes of such waits in the same seconds.
class BareWaiting {
 public:
  explicit BareWaiting(TimePoint first_due) : thread_([this, first_due] { wait(first_due); }) {}

  /// Milliseconds by which each wait was late.
  std::vector<double> stop() {
    stopped_ = true;
    thread_.join();
    return late_;
  }

 private:
  void wait(TimePoint first_due) {
    constexpr std::chrono::milliseconds kSpin{2};
    run_before_others(true);
    for (TimePoint due = first_due + kPeriod / 2; !stopped_; due += kPeriod) {
      std::this_thread::sleep_until(due - kSpin);
      TimePoint now = std::chrono::steady_clock::now();
      while (now < due) now = std::chrono::steady_clock::now();
      late_.push_back(ms_between(due, now));
    }
  }

  std::atomic<bool> stopped_{false};
  std::vector<double> late_;
  std::thread thread_;
};

std::vector<double> lateness(const std::vector<Stamp>& stamps, TimePoint first_due) {
  std::vector<double> late;
  TimePoint due = first_due;
  for (const Stamp& stamp : stamps) {
    if ((stamp.packed & kStatusAndController) != kFirstMessage) continue;
    late.push_back(ms_between(due, stamp.time));
    due += kPeriod;
  }
  return late;
}

}  // namespace

Lateness time_lines(ShownEditor& shown, StampedOutputs& outputs, int seconds) {
  Editor& editor = shown.editor();
  editor.options.curs = true;
  editor.song_length.bpm_change(kBpm);
  editor.song_length.number_change(kLinesPerBeat);
  editor.song.tracks.set_cursor(1, 1);
  run_events(500);
  editor.transport.playnotes_mouseup();
  outputs.stamps.clear();
  const TimePoint first_due = time_of(editor.play_loop.next_due().value());
  BareWaiting waiting(first_due);
  run_events(1000 * seconds);
  Lateness late{lateness(outputs.stamps, first_due), waiting.stop()};
  editor.transport.playnotes_mouseup();
  return late;
}

std::size_t messages_in(int seconds) {
  constexpr std::size_t kMessagesPerLine = kMaxTracks * (kLastEffect - 1 + 2 * kNoteColumns);
  constexpr std::size_t kLinesPerSecond = 40;
  constexpr int kMore = 10;
  return static_cast<std::size_t>(seconds + kMore) * kLinesPerSecond * kMessagesPerLine;
}

double share_of(std::vector<double> numbers, double share) {
  if (numbers.empty()) return 0;
  std::sort(numbers.begin(), numbers.end());
  const auto place =
      static_cast<std::size_t>(std::ceil(share * static_cast<double>(numbers.size())));
  return numbers.at(std::max<std::size_t>(place, 1) - 1);
}

}  // namespace lunavox::bench

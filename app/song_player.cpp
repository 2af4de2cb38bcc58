#include "app/song_player.h"

#include <algorithm>
#include <thread>

namespace lunavox {
namespace {

/// The longest sleep, so that a stop is noticed at once.
constexpr std::int32_t kLongestSleepMs = 20;

}  // namespace

SongPlayer::SongPlayer(Editor& editor, Sleep sleep) : editor_(editor), sleep_(std::move(sleep)) {
  if (!sleep_) sleep_ = [](std::chrono::milliseconds time) { std::this_thread::sleep_for(time); };
}

void SongPlayer::start() {
  editor_.song.tracks.set_cursor(1, 1);
  editor_.transport.playnotes_mouseup();
}

void SongPlayer::play_through(ManualClock& clock,
                              const std::function<void(std::uint32_t)>& before_line) {
  const std::uint32_t begin = clock.timeGetTime();
  start();
  while (editor_.flags.playing) {
    Loop& loop = *editor_.current_loop.get();
    clock.set(loop.next_due().value());
    before_line(elapsed_ms(begin, clock.timeGetTime()));
    loop.pass(clock.timeGetTime());
  }
}

void SongPlayer::play_in_real_time(const std::atomic<bool>& stop) {
  start();
  while (editor_.flags.playing && !stop) {
    Loop& loop = *editor_.current_loop.get();
    wait_until(loop.next_due().value(), stop);
    if (!stop) loop.pass(editor_.world.clock.timeGetTime());
  }
  // The button that starts also stops.
  if (editor_.flags.playing) editor_.transport.playnotes_mouseup();
}

void SongPlayer::wait_until(std::uint32_t due, const std::atomic<bool>& stop) {
  while (!stop) {
    const auto left = remaining_ms(editor_.world.clock.timeGetTime(), due);
    if (left <= 0) return;
    if (left <= kBusyWaitMs) continue;
    sleep_(std::chrono::milliseconds(std::min(left - kBusyWaitMs, kLongestSleepMs)));
  }
}

}  // namespace lunavox

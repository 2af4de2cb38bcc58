#pragma once

#include "app/editor.h"

#include <atomic>
#include <chrono>
#include <functional>

namespace lunavox {

/// Plays the editor's song from the first line to its end, without a window.
class SongPlayer {
 public:
  using Sleep = std::function<void(std::chrono::milliseconds)>;

  /// @param sleep how real time is waited for; the machine's own sleep unless a test brings another
  explicit SongPlayer(Editor& editor, Sleep sleep = {});

  /// Plays on a clock of the run's own, as fast as the machine can.
  /// @param clock the editor's clock; stands at the end of the song afterwards
  /// @param before_line called with the milliseconds since the start, before each line is played
  void play_through(ManualClock& clock, const std::function<void(std::uint32_t)>& before_line);

  /// Plays in real time on the editor's clock.
  /// @param stop set from elsewhere (a signal handler, say) to stop; the channels are reset then
  void play_in_real_time(const std::atomic<bool>& stop);

 private:
  void start();
  void wait_until(std::uint32_t due, const std::atomic<bool>& stop);

  Editor& editor_;
  Sleep sleep_;
};

}  // namespace lunavox

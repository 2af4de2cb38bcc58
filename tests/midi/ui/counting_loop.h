#pragma once

#include "midi/clock.h"
#include "midi/loop.h"

#include <functional>
#include <optional>

namespace lunavox::test {

/// Counts its passes, is due as often as it is told, and does what it is told in a pass.
class CountingLoop : public Loop {
 public:
  void pass(std::uint32_t now) override {
    ++passes;
    if (due) {
      *due += 10;
      if (lines_left > 0 && --lines_left == 0) due.reset();
    }
    last = now;
    if (in_pass) in_pass();
  }
  std::optional<std::uint32_t> next_due() const override { return due; }

  int passes = 0;
  int lines_left = 0;
  std::uint32_t last = 0;
  std::optional<std::uint32_t> due;
  std::function<void()> in_pass;
};

/// Goes on by a millisecond with each reading.
class TickingClock : public Clock {
 public:
  explicit TickingClock(std::uint32_t now) : now_(now) {}
  std::uint32_t timeGetTime() override { return now_++; }
  void advance(std::uint32_t ms) { now_ += ms; }

 private:
  std::uint32_t now_;
};

}  // namespace lunavox::test

#pragma once

#include <cstdint>

namespace lunavox {

/// The millisecond clock that all loops run by.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Milliseconds since some start. Wraps around after 2^32: take differences with elapsed_ms().
  virtual std::uint32_t timeGetTime() = 0;
};

/// Milliseconds from one clock reading to a later one, modulo 2^32.
constexpr std::uint32_t elapsed_ms(std::uint32_t from, std::uint32_t to) {
  return to - from;
}

/// Milliseconds that remain until a clock reading, negative where it is past.
constexpr std::int32_t remaining_ms(std::uint32_t now, std::uint32_t due) {
  return static_cast<std::int32_t>(due - now);
}

/// A wait for a line ends this much early, and the rest is waited for on the clock: a timer or a
/// sleep may come this much late even on an idle machine, a line may not.
inline constexpr std::int32_t kBusyWaitMs = 2;

/// The steady clock of the machine.
class SystemClock : public Clock {
 public:
  std::uint32_t timeGetTime() override;
};

/// A clock that is advanced by hand: for tests, and for rendering faster than real time.
class ManualClock : public Clock {
 public:
  explicit ManualClock(std::uint32_t now = 0) : now_(now) {}
  std::uint32_t timeGetTime() override { return now_; }
  void advance(std::uint32_t ms) { now_ += ms; }
  void set(std::uint32_t now) { now_ = now; }

 private:
  std::uint32_t now_;
};

}  // namespace lunavox

#include "midi/line_clock.h"

#include "midi/clock.h"

namespace lunavox {

void LineClock::start(std::uint32_t now, std::int32_t period_ms) {
  tick_start_ = now;
  period_ms_ = period_ms;
}

bool LineClock::take_line(std::uint32_t now) {
  // As a signed difference, so that a reading taken just before the start is not due for a month.
  const auto elapsed = static_cast<std::int32_t>(elapsed_ms(tick_start_, now));
  if (elapsed <= period_ms_) return false;
  tick_start_ += static_cast<std::uint32_t>(period_ms_);
  return true;
}

std::uint32_t LineClock::next_due() const {
  return tick_start_ + static_cast<std::uint32_t>(period_ms_) + 1;
}

}  // namespace lunavox

#pragma once

#include <cstdint>

namespace lunavox {

/// Tells when lines are due: one every period, each reckoned from the one before and not from when
/// it was noticed, so that lines do not drift and late ones are caught up.
class LineClock {
 public:
  /// @param now a clock reading; the first line is due more than a period later
  /// @param period_ms milliseconds of one line
  void start(std::uint32_t now, std::int32_t period_ms);

  /// Whether more than a period has passed since the last line was due. If so, the next line's
  /// period begins.
  bool take_line(std::uint32_t now);

  /// The first clock reading at which take_line() gives a line.
  std::uint32_t next_due() const;

 private:
  std::uint32_t tick_start_ = 0;
  std::int32_t period_ms_ = 0;
};

}  // namespace lunavox

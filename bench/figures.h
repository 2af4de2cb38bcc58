#pragma once

#include "bench/figure_table.h"

#include <functional>
#include <string>
#include <vector>

namespace lunavox::bench {

/// One run of what is measured; returns the seconds that count, so that preparations do not.
using TimedRun = std::function<double()>;

/// A clock, in seconds.
using Now = double (*)();

/// The processor seconds that this thread has used so far: for work that waits for nothing. What
/// other programs take from the machine meanwhile does not count.
double processor_seconds();
/// The time of day, as it were: for work in which others have a part, such as the display.
double elapsed_seconds();

/// Seconds that some work takes.
template <class Work>
double seconds_of(Work work, Now now = processor_seconds) {
  const double start = now();
  work();
  return now() - start;
}

/// The figures that are taken with Google Benchmark. Repetitions of all runs are interleaved at
/// random, so that a spell in which the machine is slow does not fall on one side of a ratio.
class Figures {
 public:
  /// How many times `subject` may take as long as `reference`.
  void add_ratio(const std::string& what, double limit, const TimedRun& subject,
                 const TimedRun& reference);
  /// How many milliseconds `subject` may take.
  void add_time(const std::string& what, double limit_ms, const TimedRun& subject);

  /// Measures all of them.
  /// @param details  shows every repetition too
  std::vector<Figure> measure(bool details) const;

 private:
  struct Entry {
    std::string what;
    double limit = 0;
    bool ratio = false;
  };
  std::vector<Entry> entries_;
};

}  // namespace lunavox::bench

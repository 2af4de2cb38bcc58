#pragma once

#include "bench/figure_table.h"

#include <functional>
#include <string>
#include <vector>

namespace lunavox::bench {

/// One run of what is measured; returns the seconds that count, so that preparations do not.
using TimedRun = std::function<double()>;

/// The processor seconds that this thread has used so far.
double processor_seconds();

/// Processor seconds that some work takes: what other programs take from the machine meanwhile does
/// not count. For work that waits for nothing.
template <class Work>
double seconds_of(Work work) {
  const double start = processor_seconds();
  work();
  return processor_seconds() - start;
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

#include "bench/lateness.h"
#include "bench/timing.h"

#include <cmath>

namespace lunavox::bench {
namespace {

constexpr double kUsualMs = 0.5;  // for 99 of 100 lines
constexpr double kWorstMs = 2;
/// Less than this cannot be told from chance.
constexpr double kDriftMs = 0.05;

/// By how much the last tenth of the lines is later than the first tenth.
double drift(const std::vector<double>& late) {
  const auto tenth = static_cast<std::ptrdiff_t>(late.size() / 10);
  return std::abs(median_of({late.end() - tenth, late.end()}) -
                  median_of({late.begin(), late.begin() + tenth}));
}

}  // namespace

std::vector<Figure> line_timing(ShownEditor& shown, StampedOutputs& outputs, int seconds) {
  const Lateness timed = time_lines(shown, outputs, seconds);
  const auto& [lines, bare] = timed;
  shown.settle();
  const std::string late = std::to_string(lines.size()) + " lines, late: ";
  const std::string waits = "bare waits in the same seconds, late: ";
  return {{"lines that did not come", static_cast<double>(timed.missing()), {}, 0.0, ""},
          {late + "half of them up to", share_of(lines, 0.5), {}, {}, "ms"},
          {late + "90 of 100 up to", share_of(lines, 0.9), {}, {}, "ms"},
          {late + "99 of 100 up to", share_of(lines, 0.99), {}, kUsualMs, "ms"},
          {waits + "99 of 100 up to", share_of(bare, 0.99), {}, {}, "ms"},
          {late + "all up to", share_of(lines, 1), {}, kWorstMs, "ms"},
          {waits + "all up to", share_of(bare, 1), {}, {}, "ms"},
          {late + "more at the end than at the beginning", drift(lines), {}, kDriftMs, "ms"}};
}

}  // namespace lunavox::bench

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lunavox::bench {

/// One figure, as it came out.
struct Figure {
  std::string what;
  double value = 0;              ///< of repeated runs the best one's
  std::optional<double> median;  ///< of repeated runs
  std::optional<double> limit;   ///< the figure is reached up to this; none where it only informs
  std::string unit;              ///< of all three
};

/// Whether a figure is reached. The best repetition tells: what other programs take from the
/// machine can only make a figure worse.
bool reached(const Figure& figure);

void print_header();
/// Prints one row a figure.
/// @return whether all are reached
bool print_rows(const std::vector<Figure>& figures);

/// The middle one of some numbers, 0 where there is none.
double median_of(std::vector<double> numbers);

}  // namespace lunavox::bench

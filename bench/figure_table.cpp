#include "bench/figure_table.h"

#include <algorithm>
#include <cstdio>

namespace lunavox::bench {

bool reached(const Figure& figure) {
  return figure.best <= figure.limit;
}

void print_header() {
  std::printf("%-60s %10s %10s %10s\n", "figure", "best", "median", "limit");
}

bool print_rows(const std::vector<Figure>& figures) {
  bool all = true;
  for (const Figure& figure : figures) {
    std::printf("%-60s %10.3g %10.3g %10.3g %-3s %s\n", figure.what.c_str(), figure.best,
                figure.median, figure.limit, figure.unit.c_str(), reached(figure) ? "ok" : "over");
    all = all && reached(figure);
  }
  std::fflush(stdout);
  return all;
}

double median_of(std::vector<double> numbers) {
  if (numbers.empty()) return 0;
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

}  // namespace lunavox::bench

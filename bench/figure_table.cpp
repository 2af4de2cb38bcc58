#include "bench/figure_table.h"

#include <algorithm>
#include <cstdio>

namespace lunavox::bench {
namespace {

std::string shown(const std::optional<double>& number) {
  if (!number) return {};
  char text[32];
  std::snprintf(text, sizeof text, "%.3g", *number);
  return text;
}

}  // namespace

bool reached(const Figure& figure) {
  return !figure.limit || figure.value <= *figure.limit;
}

void print_header() {
  std::printf("%-62s %10s %10s %10s\n", "figure", "measured", "median", "limit");
}

bool print_rows(const std::vector<Figure>& figures) {
  bool all = true;
  for (const Figure& figure : figures) {
    const char* verdict = reached(figure) ? "ok" : "over";
    std::printf("%-62s %10s %10s %10s %-3s %s\n", figure.what.c_str(), shown(figure.value).c_str(),
                shown(figure.median).c_str(), shown(figure.limit).c_str(), figure.unit.c_str(),
                figure.limit ? verdict : "");
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

#include "bench/stress_timing.h"

#include "bench/disturbances.h"
#include "bench/lateness.h"

#include <algorithm>
#include <cstdio>

namespace lunavox::bench {
namespace {

// What is undisturbed may be as late: for 99 of 100 lines, and for all of them.
constexpr double kUsualMs = 0.5;
constexpr double kWorstMs = 2;

void print_heading() {
  std::printf("%-38s %6s %30s   %30s\n", "", "", "lines late by ms", "bare waits late by ms");
  std::printf("%-38s %6s %10s%10s%10s   %10s%10s%10s\n", "while", "times", "half", "99 of 100",
              "all", "half", "99 of 100", "all");
}

/// @return whether all lines came, and hardly later than bare waits
bool on_time(const Lateness& late) {
  return late.missing() == 0 &&
         share_of(late.lines, 0.99) <= share_of(late.bare, 0.99) + kUsualMs &&
         share_of(late.lines, 1) <= share_of(late.bare, 1) + kWorstMs;
}

/// @return whether the editor was disturbed all the time
bool happened(const Disturbance& disturbance, const Programs& programs) {
  const bool running = std::all_of(programs.begin(), programs.end(), [](const auto& program) {
    return program->state() == QProcess::Running;
  });
  return running && (!disturbance.happening || disturbance.happening->count > 0);
}

/// @return whether the row is reached
bool print_row(const Disturbance& disturbance, bool disturbed, const Lateness& late) {
  const std::string times =
      disturbance.happening ? std::to_string(disturbance.happening->count) : std::string();
  std::printf("%-38s %6s", disturbance.what.c_str(), times.c_str());
  for (const auto* numbers : {&late.lines, &late.bare}) {
    std::printf(" ");
    for (const double share : {0.5, 0.99, 1.0}) std::printf("%10.3f", share_of(*numbers, share));
    std::printf("  ");
  }
  const bool reached = disturbed && on_time(late);
  std::printf("%s\n", reached ? "ok" : "over");
  std::fflush(stdout);
  return reached;
}

}  // namespace

bool print_stress_timing(ShownEditor& shown, StampedOutputs& outputs, const QString& program,
                         int seconds) {
  Disturbances disturbances(shown, program);
  print_heading();
  bool all = true;
  for (const Disturbance& disturbance : disturbances.all()) {
    const Programs running = disturbance.start();
    if (disturbance.happening) disturbance.happening->count = 0;
    const Lateness late = time_lines(shown, outputs, seconds);
    const bool disturbed = happened(disturbance, running);
    end(running);
    disturbances.end();
    all = print_row(disturbance, disturbed, late) && all;
  }
  return all;
}

}  // namespace lunavox::bench

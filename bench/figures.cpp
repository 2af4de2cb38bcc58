#include "bench/figures.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>

#include <benchmark/benchmark.h>
#include <time.h>

namespace lunavox::bench {
namespace {

constexpr const char* kReference = " (reference)";

void register_run(const std::string& name, const TimedRun& run) {
  const auto loop = [run](benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) state.SetIterationTime(run());
  };
  benchmark::RegisterBenchmark(name.c_str(), loop)
      ->UseManualTime()
      ->Iterations(1)
      ->Unit(benchmark::kMillisecond);
}

/// Keeps the milliseconds of every repetition by the run's name.
class Collector : public benchmark::BenchmarkReporter {
 public:
  explicit Collector(bool details) {
    if (details) shown_.reset(benchmark::CreateDefaultDisplayReporter());
  }

  bool ReportContext(const Context& context) override {
    return shown_ == nullptr || shown_->ReportContext(context);
  }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      times_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
    }
    if (shown_ != nullptr) shown_->ReportRuns(runs);
  }

  const std::vector<double>& times(const std::string& name) { return times_[name]; }

 private:
  std::unique_ptr<benchmark::BenchmarkReporter> shown_;
  std::map<std::string, std::vector<double>> times_;
};

double best_of(const std::vector<double>& times) {
  return times.empty() ? 0 : *std::min_element(times.begin(), times.end());
}

}  // namespace

double processor_seconds() {
  timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

double elapsed_seconds() {
  using std::chrono::steady_clock;
  return std::chrono::duration<double>(steady_clock::now().time_since_epoch()).count();
}

void Figures::add_ratio(const std::string& what, double limit, const TimedRun& subject,
                        const TimedRun& reference) {
  entries_.push_back({what, limit, true});
  register_run(what, subject);
  register_run(what + kReference, reference);
}

void Figures::add_time(const std::string& what, double limit_ms, const TimedRun& subject) {
  entries_.push_back({what, limit_ms, false});
  register_run(what, subject);
}

std::vector<Figure> Figures::measure(bool details) const {
  Collector collector(details);
  benchmark::RunSpecifiedBenchmarks(&collector);
  std::vector<Figure> figures;
  for (const Entry& entry : entries_) {
    const std::vector<double>& times = collector.times(entry.what);
    if (times.empty()) continue;
    double best = best_of(times);
    double median = median_of(times);
    if (entry.ratio) {
      const std::vector<double>& reference = collector.times(entry.what + kReference);
      best /= best_of(reference);
      median /= median_of(reference);
    }
    figures.push_back({entry.what, best, median, entry.limit, entry.ratio ? "x" : "ms"});
  }
  return figures;
}

}  // namespace lunavox::bench

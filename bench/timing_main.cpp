#include "bench/lateness.h"
#include "bench/stress_timing.h"
#include "bench/timing.h"
#include "grid/ui/theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QEventLoop>
#include <QTimer>
#include <cstdlib>

namespace lunavox::bench {

void run_events(int milliseconds) {
  QEventLoop events;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &events, &QEventLoop::quit);
  events.exec();
}

namespace {

/// @return whether all figures are reached
bool run(int seconds) {
  bool all = print_rows(start_timing(QStringLiteral(LUNAVOX_PROGRAM)));
  StampedOutputs outputs(messages_in(seconds));
  ShownEditor shown(outputs);
  all = print_rows(pass_through_timing(shown, outputs)) && all;
  all = print_rows(processor_use(shown, outputs, std::min(seconds, 5))) && all;
  return print_rows(line_timing(shown, outputs, seconds)) && all;
}

/// @return whether all figures are reached
bool run_disturbed(int seconds) {
  StampedOutputs outputs(messages_in(seconds));
  ShownEditor shown(outputs, kMostLines, Boxes::kOnScreen);
  return print_stress_timing(shown, outputs, QStringLiteral(LUNAVOX_PROGRAM), seconds);
}

}  // namespace
}  // namespace lunavox::bench

// lunavox_timing [--seconds N] [--no-header] [--disturbed]: measures the running editor in its
// window and prints one row a figure. Ends with status 1 where a figure is over its limit.
int main(int argc, char** argv) {
  using namespace lunavox;
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lunavox-bench"));
  theme::apply(application);
  QCommandLineParser options;
  const QCommandLineOption seconds("seconds", "how long lines are timed, 1..70", "N", "60");
  const QCommandLineOption no_header("no-header", "prints the rows alone");
  const QCommandLineOption disturbed(
      "disturbed", "times lines alone, so long under each of a row of disturbances");
  options.addOptions({seconds, no_header, disturbed});
  options.addHelpOption();
  options.process(application);
  const int count = std::clamp(options.value(seconds).toInt(), 1, 70);
  if (options.isSet(disturbed)) return bench::run_disturbed(count) ? EXIT_SUCCESS : EXIT_FAILURE;
  if (!options.isSet(no_header)) bench::print_header();
  return bench::run(count) ? EXIT_SUCCESS : EXIT_FAILURE;
}

#include "bench/edits_bench.h"
#include "bench/loops_bench.h"
#include "bench/shown_editor.h"
#include "bench/song_file_bench.h"
#include "grid/ui/theme.h"

#include <QApplication>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

namespace lunavox::bench {
namespace {

/// What the command line says, with our own ways as far as it does not say otherwise.
struct Options {
  bool details = false;
  bool understood = true;
};

Options read_options(int argc, char** argv) {
  Options options;
  char interleaved[] = "--benchmark_enable_random_interleaving=true";
  char repeated[] = "--benchmark_repetitions=25";
  std::vector<char*> arguments{argv[0], interleaved, repeated};
  for (int i = 1; i < argc; ++i) {
    const bool details = std::strcmp(argv[i], "--details") == 0;
    if (!details) arguments.push_back(argv[i]);
    options.details = options.details || details;
  }
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  options.understood = !benchmark::ReportUnrecognizedArguments(count, arguments.data());
  return options;
}

/// @return whether all figures are reached
bool run(bool details) {
  QuietEditor quiet;
  fill_song(quiet.editor);
  NullOutputDevices silence;
  ShownEditor shown(silence);
  const ScratchFolder folder;
  Figures figures;
  add_song_file_figures(figures, quiet, folder);
  add_edit_figures(figures, quiet.editor, quiet.dialogs);
  add_edit_figures(figures, shown.editor(), shown.dialogs(),
                   {", including the window", [&] { shown.settle(); },
                    [&] { shown.show_changes(); }, elapsed_seconds});
  add_loop_figures(figures, quiet);
  const std::vector<Figure> measured = figures.measure(details);
  print_header();
  return print_rows(measured);
}

}  // namespace
}  // namespace lunavox::bench

// lunavox_bench [--details] [Google Benchmark's options]: measures what the editor's work costs and
// prints one row a figure. Ends with status 1 where a figure is over its limit.
int main(int argc, char** argv) {
  using namespace lunavox;
  const bench::Options options = bench::read_options(argc, argv);
  if (!options.understood) return 2;
  int no_arguments = 1;
  QApplication application(no_arguments, argv);
  QApplication::setApplicationName(QStringLiteral("lunavox-bench"));
  theme::apply(application);
  return bench::run(options.details) ? EXIT_SUCCESS : EXIT_FAILURE;
}

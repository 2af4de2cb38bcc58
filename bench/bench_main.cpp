#include "bench/edits_bench.h"
#include "bench/loops_bench.h"
#include "bench/song_file_bench.h"

#include <cstdlib>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

// lunavox_bench [--details] [Google Benchmark's options]: measures what the editor's work costs and
// prints one row a figure. Ends with status 1 where a figure is over its limit.
int main(int argc, char** argv) {
  using namespace lunavox::bench;
  std::vector<char*> arguments{argv[0]};
  char interleaved[] = "--benchmark_enable_random_interleaving=true";
  char repeated[] = "--benchmark_repetitions=25";
  arguments.insert(arguments.end(), {interleaved, repeated});
  bool details = false;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--details") == 0) {
      details = true;
    } else {
      arguments.push_back(argv[i]);
    }
  }
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

  QuietEditor quiet;
  fill_song(quiet.editor);
  const ScratchFolder folder;
  Figures figures;
  add_song_file_figures(figures, quiet, folder);
  add_edit_figures(figures, quiet.editor, quiet.dialogs, ", without the window", [] {});
  add_loop_figures(figures, quiet);
  const std::vector<Figure> measured = figures.measure(details);
  print_header();
  return print_rows(measured) ? EXIT_SUCCESS : EXIT_FAILURE;
}

#pragma once

#include "bench/figures.h"
#include "bench/full_editor.h"

namespace lunavox::bench {

/// Opening, saving and exporting the largest song, each against a bare loop that does no more than
/// move the same bytes.
void add_song_file_figures(Figures& figures, FullEditor& full);

}  // namespace lunavox::bench

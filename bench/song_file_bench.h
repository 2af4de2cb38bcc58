#pragma once

#include "bench/figures.h"
#include "bench/quiet_editor.h"
#include "bench/scratch_folder.h"

namespace lunavox::bench {

/// Opening, saving and exporting the largest song, each against a bare loop that does no more than
/// move the same contents.
/// @param folder  where the files are put. In memory: what a disk needs until it has the bytes for
///                certain is not the editor's doing, and would hide what is
void add_song_file_figures(Figures& figures, QuietEditor& quiet, const ScratchFolder& folder);

}  // namespace lunavox::bench

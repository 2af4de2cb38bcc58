#pragma once

#include "bench/figures.h"
#include "bench/full_editor.h"

namespace lunavox::bench {

/// What the loops spend on a line and on a message that has arrived, window and waiting aside.
void add_loop_figures(Figures& figures, FullEditor& full);

}  // namespace lunavox::bench

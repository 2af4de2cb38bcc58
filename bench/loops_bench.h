#pragma once

#include "bench/figures.h"
#include "bench/quiet_editor.h"

namespace lunavox::bench {

/// What the loops spend on a line and on a message that has arrived, window and waiting aside.
void add_loop_figures(Figures& figures, QuietEditor& quiet);

}  // namespace lunavox::bench

#pragma once

#include "grid/song.h"
#include "midi/output_port.h"

namespace lunavox {

/// Sends every track's voice selection: bank select, program change, and a silent note that makes
/// modules take the new voice at once.
void starteffect(const Song& song, OutputPort& port);

}  // namespace lunavox

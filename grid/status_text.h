#pragma once

#include "grid/song.h"

#include <string>

namespace lunavox {

/// Where the cursor stands in time: "Line 10 of 64   Beat 3", lines and beats counted from 0 and 1.
std::string cursor_line_text(const Song& song);

/// What stands under the cursor of `tracks`: "Track 2 #3: C#4 velocity 100", "Track 1 Volume: 127".
std::string cursor_cell_text(const Song& song);

/// The octave of the note keys, in octaves from the usual one: "Octave +1".
/// @param octaveshift  semitones
std::string octave_text(int octaveshift);

}  // namespace lunavox

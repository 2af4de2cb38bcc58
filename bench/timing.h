#pragma once

#include "bench/figure_table.h"
#include "bench/shown_editor.h"
#include "bench/stamped_output.h"

#include <vector>

// Figures that are taken on the running editor in real time.
namespace lunavox::bench {

/// How late each line's first message is: the full song at 300 beats a minute and 8 lines a beat,
/// the window following.
std::vector<Figure> line_timing(ShownEditor& shown, StampedOutputs& outputs, int seconds);

/// How long a message from a MIDI input, on a thread of its own, takes to the device.
std::vector<Figure> pass_through_timing(ShownEditor& shown, StampedOutputs& outputs);

/// The share of one core that the editor uses while it is stopped, and while it plays at 120 beats
/// a minute and 4 lines a beat.
std::vector<Figure> processor_use(ShownEditor& shown, StampedOutputs& outputs, int seconds);

/// The time from the start of the program to its painted window, with whatever the loading of the
/// SoundFont takes.
/// @param program  the editor's executable
std::vector<Figure> start_timing(const QString& program);

/// Lets window events run for some time.
void run_events(int milliseconds);

}  // namespace lunavox::bench

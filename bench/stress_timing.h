#pragma once

#include "bench/shown_editor.h"
#include "bench/stamped_output.h"

namespace lunavox::bench {

/// Times lines while the editor and the machine are disturbed, one disturbance after the other, and
/// prints a table of its own: how often what disturbs has happened, and in milliseconds how late
/// lines were, and bare waits in the same seconds. A row is reached where it did happen and lines
/// were hardly later than the waits.
/// @param shown    asks on the screen
/// @param program  the editor's executable
/// @param seconds  of play for each disturbance, 1..70
/// @return whether all rows are reached
bool print_stress_timing(ShownEditor& shown, StampedOutputs& outputs, const QString& program,
                         int seconds);

}  // namespace lunavox::bench

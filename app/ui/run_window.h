#pragma once

#include "app/command_line.h"
#include "midi/devices.h"

namespace lunavox {

/// Runs the editor in its window until it is closed.
/// @return the program's exit status
int run_window(const CommandLine& line, OutputDevices& outputs, InputDevices& inputs);

}  // namespace lunavox

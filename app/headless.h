#pragma once

#include "app/command_line.h"
#include "midi/devices.h"

#include <atomic>
#include <ostream>

namespace lunavox {

/// What a run without a window works with.
struct Headless {
  OutputDevices& outputs;         ///< of the machine, for --play and --list-devices
  InputDevices& inputs;           ///< of the machine, for --list-devices
  std::ostream& results;          ///< standard output
  std::ostream& errors;           ///< standard error
  const std::atomic<bool>& stop;  ///< set by Ctrl-C and the like
};

/// Does what the command line asks for in any mode but kEdit. No display is needed.
/// @return the exit status: 0, or 1 after one line on `errors`
int run_headless(const CommandLine& line, const Headless& world);

}  // namespace lunavox

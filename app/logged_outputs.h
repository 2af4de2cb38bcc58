#pragma once

#include "midi/devices.h"
#include "midi/ports/logging_output_devices.h"

#include <optional>
#include <string>
#include <utility>

namespace lunavox {

/// The outputs of a run, logged where the command line asks for it.
class LoggedOutputs {
 public:
  /// @param devices   the outputs proper; outlives this object
  /// @param log_file  empty for no log
  /// @throws PortError when the log cannot be written
  LoggedOutputs(OutputDevices& devices, const std::string& log_file,
                LoggingOutputDevices::Now now = {})
      : devices_(devices) {
    if (!log_file.empty()) log_.emplace(devices, log_file, std::move(now));
  }

  OutputDevices& get() { return log_ ? *log_ : devices_; }

 private:
  OutputDevices& devices_;
  std::optional<LoggingOutputDevices> log_;
};

}  // namespace lunavox

#pragma once

#include "midi/devices.h"

#include <chrono>
#include <filesystem>
#include <functional>

namespace lunavox {

class MidiLog;

/// Outputs that also write every message to a log file, one line each: milliseconds since the log
/// began with three decimals, a tab, "short" or "sysex", a tab, the packed message as eight
/// upper-case hexadecimal digits or the bytes as hexadecimal pairs.
///
/// Whoever sends only notes the message down; a thread of the log's own writes the lines. All are
/// in the file once this object and its devices are gone, or after flush().
class LoggingOutputDevices : public OutputDevices {
 public:
  /// Time since some start.
  using Now = std::function<std::chrono::microseconds()>;

  /// Begins the log, in place of a file of that name.
  /// @param devices the outputs proper; outlives this object and what it opens
  /// @throws PortError when the file cannot be written
  LoggingOutputDevices(OutputDevices& devices, const std::filesystem::path& file, Now now = {});
  ~LoggingOutputDevices() override;

  std::vector<std::string> names() override { return devices_.names(); }
  std::unique_ptr<OutputDevice> open(int device) override;
  std::string open_error() const override { return devices_.open_error(); }

  /// Returns when every message sent so far is in the file.
  void flush();

 private:
  OutputDevices& devices_;
  std::shared_ptr<MidiLog> log_;
};

}  // namespace lunavox

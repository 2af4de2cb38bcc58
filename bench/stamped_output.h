#pragma once

#include "midi/ports/null_device.h"

#include <chrono>
#include <vector>

namespace lunavox::bench {

using TimePoint = std::chrono::steady_clock::time_point;

/// A short message, and when the device got it.
struct Stamp {
  TimePoint time;
  std::uint32_t packed = 0;
};

/// A device that writes down when each short message came.
class StampedDevice : public NullDevice {
 public:
  explicit StampedDevice(std::vector<Stamp>& stamps) : stamps_(stamps) {}
  MidiResult short_message(std::uint32_t packed) override {
    stamps_.push_back({std::chrono::steady_clock::now(), packed});
    return kMidiOk;
  }

 private:
  std::vector<Stamp>& stamps_;
};

/// One output, which writes down into `stamps`.
class StampedOutputs : public OutputDevices {
 public:
  /// @param expected  so many messages are written down without a pause for more memory
  explicit StampedOutputs(std::size_t expected) { stamps.reserve(expected); }

  std::vector<std::string> names() override { return {"Stamped"}; }
  std::unique_ptr<OutputDevice> open(int) override {
    return std::make_unique<StampedDevice>(stamps);
  }
  std::string open_error() const override { return {}; }

  std::vector<Stamp> stamps;
};

}  // namespace lunavox::bench

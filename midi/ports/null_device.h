#pragma once

#include "midi/devices.h"

namespace lunavox {

/// An output that takes everything and does nothing.
class NullDevice : public OutputDevice {
 public:
  MidiResult short_message(std::uint32_t) override { return kMidiOk; }
  MidiResult prepare_header(const SysExBytes&) override { return kMidiOk; }
  MidiResult long_message(const SysExBytes&) override { return kMidiOk; }
  MidiResult unprepare_header(const SysExBytes&) override { return kMidiOk; }
  std::string error_text(MidiResult) const override { return "There is no error."; }
  void reset() override {}
};

/// One output, the null device, under every number.
class NullOutputDevices : public OutputDevices {
 public:
  std::vector<std::string> names() override { return {"No output"}; }
  std::unique_ptr<OutputDevice> open(int) override { return std::make_unique<NullDevice>(); }
  std::string open_error() const override { return {}; }
};

/// An input on which nothing ever arrives.
class NullInputDevice : public InputDevice {
 public:
  void start() override {}
  void stop() override {}
  void reset() override {}
};

/// One input, the null input, under every number.
class NullInputDevices : public InputDevices {
 public:
  std::vector<std::string> names() override { return {"No input"}; }
  std::unique_ptr<InputDevice> open(int, InputCallback) override {
    return std::make_unique<NullInputDevice>();
  }
  std::string open_error() const override { return {}; }
};

}  // namespace lunavox

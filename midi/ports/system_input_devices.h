#pragma once

#include "midi/devices.h"

namespace lunavox {

/// The inputs of this machine: the ports of the system's MIDI service (as for the outputs), then a
/// port of our own that other programs connect to. Where there is no MIDI service, the list is
/// empty.
///
/// Only short messages are delivered, complete, with their status byte; not System Exclusive,
/// timing and active sensing.
class SystemInputDevices : public InputDevices {
 public:
  SystemInputDevices();

  std::vector<std::string> names() override;
  std::unique_ptr<InputDevice> open(int device, InputCallback callback) override;
  std::string open_error() const override { return open_error_; }

 private:
  std::string open_error_;
};

}  // namespace lunavox

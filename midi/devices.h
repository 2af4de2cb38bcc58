#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// What the editor needs of MIDI devices. Backends stand in midi/ports.
namespace lunavox {

/// Result code of a device call, 0 for success.
using MidiResult = std::uint32_t;
inline constexpr MidiResult kMidiOk = 0;

/// Number of the system's default output, beside the numbers 0, 1, ... of the listed ones.
inline constexpr int kDefaultOutput = -1;

using SysExBytes = std::vector<std::uint8_t>;

/// An open MIDI output. Closed by destruction.
class OutputDevice {
 public:
  virtual ~OutputDevice() = default;

  /// Sends a packed short message: status in the low byte, then data 1, then data 2. What comes is
  /// exactly what the song says, 0 and data bytes above 127 too; a device that writes to a wire
  /// keeps the low seven bits of data bytes and sends nothing for a message without a status byte.
  virtual MidiResult short_message(std::uint32_t packed) = 0;

  // The three steps of sending a System Exclusive message, F0 ... F7.
  virtual MidiResult prepare_header(const SysExBytes& data) = 0;
  virtual MidiResult long_message(const SysExBytes& data) = 0;
  virtual MidiResult unprepare_header(const SysExBytes& data) = 0;

  /// The text for a result code of this device.
  virtual std::string error_text(MidiResult result) const = 0;

  /// Silences the device.
  virtual void reset() = 0;

  /// One sentence on anything the user should know of the device, such as that it is silent for
  /// want of a sound card; else empty. May change while the device is open.
  virtual std::string status() const { return {}; }
  /// Takes the device up again when it was gone and has come back. To be called now and then.
  virtual void look_after() {}
};

/// The outputs of the machine. Numbers are places in the list at the time of the call.
class OutputDevices {
 public:
  virtual ~OutputDevices() = default;
  /// Names of devices 0, 1, ...
  virtual std::vector<std::string> names() = 0;
  /// Opens a device, or kDefaultOutput. Null when it cannot be opened; why is then in open_error().
  virtual std::unique_ptr<OutputDevice> open(int device) = 0;
  /// One sentence on why the last open failed, empty when it succeeded.
  virtual std::string open_error() const = 0;
};

/// An open MIDI input. Closed by destruction.
class InputDevice {
 public:
  virtual ~InputDevice() = default;
  virtual void start() = 0;  ///< messages begin to arrive
  virtual void stop() = 0;   ///< no further message arrives once it returns
  virtual void reset() = 0;
  /// One sentence when the device has gone away while open, else empty.
  virtual std::string status() const { return {}; }
  /// Takes the device up again when it was gone and has come back. To be called now and then.
  virtual void look_after() {}
};

/// Receives each incoming short message, packed, on the device's own thread.
using InputCallback = std::function<void(std::uint32_t packed)>;

/// The inputs of the machine.
class InputDevices {
 public:
  virtual ~InputDevices() = default;
  virtual std::vector<std::string> names() = 0;
  /// Null when it cannot be opened; why is then in open_error().
  virtual std::unique_ptr<InputDevice> open(int device, InputCallback callback) = 0;
  virtual std::string open_error() const = 0;
};

}  // namespace lunavox

#pragma once

#include "midi/devices.h"
#include "midi/ports/midi_service.h"

#include <atomic>

namespace lunavox {

/// An open input port of the system's MIDI service.
class RtMidiInput : public InputDevice {
 public:
  /// Opens a port by its name, or, by an empty name, one of our own for others to connect to.
  /// @return null when the port cannot be opened
  static std::unique_ptr<RtMidiInput> open(MidiService service, const std::string& port,
                                           InputCallback callback);
  ~RtMidiInput() override;

  void start() override { running_ = true; }
  void stop() override;
  /// Nothing is kept back, so there is nothing more to it than stopping.
  void reset() override { stop(); }
  std::string status() const override;
  void look_after() override;

 private:
  RtMidiInput(MidiService service, std::string port, InputCallback callback);

  bool open_port();
  void received(const std::vector<unsigned char>& bytes);

  MidiService service_;
  std::string port_;  // empty for our own
  bool gone_ = false;
  InputCallback callback_;
  // Together they let stop() know that no message is being delivered: the one is written before
  // the other is read on either side.
  std::atomic<bool> running_{false};
  std::atomic<bool> delivering_{false};
  PortErrors errors_;
  // Asking for the ports' names changes the library's object, not the device.
  mutable RtMidiIn in_;
};

/// Name of the input that others connect to.
inline constexpr char kVirtualInput[] = "Lunavox virtual input";

}  // namespace lunavox

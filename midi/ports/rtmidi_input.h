#pragma once

#include "midi/devices.h"
#include "midi/ports/returning_port.h"

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
  void look_after() override { port_.look_after(); }

 private:
  RtMidiInput(MidiService service, std::string port, InputCallback callback);

  void listen_to(RtMidiIn& in);
  void received(const std::vector<unsigned char>& bytes);

  InputCallback callback_;
  // Together they let stop() know that no message is being delivered: the one is written before
  // the other is read on either side.
  std::atomic<bool> running_{false};
  std::atomic<bool> delivering_{false};
  ReturningPort<RtMidiIn> port_;  // last: it calls while the others still are there
};

/// Name of the input that others connect to.
inline constexpr char kVirtualInput[] = "Lunavox virtual input";

}  // namespace lunavox

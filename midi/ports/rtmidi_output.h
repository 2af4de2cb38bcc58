#pragma once

#include "midi/ports/jack_queue_guard.h"
#include "midi/ports/port_result.h"
#include "midi/ports/returning_port.h"

#include <optional>
#include <span>

namespace lunavox {

/// An open output port of the system's MIDI service.
class RtMidiOutput : public OutputDevice {
 public:
  /// Opens a port by its name, or, by an empty name, one of our own for others to connect to.
  /// @return null when the port cannot be opened
  static std::unique_ptr<RtMidiOutput> open(MidiService service, const std::string& port);
  /// Closes the port once what was sent has arrived.
  ~RtMidiOutput() override;

  MidiResult short_message(std::uint32_t packed) override;
  MidiResult prepare_header(const SysExBytes& data) override { return steps_.prepare(data); }
  MidiResult long_message(const SysExBytes& data) override;
  MidiResult unprepare_header(const SysExBytes&) override { return steps_.unprepare(); }
  std::string error_text(MidiResult result) const override { return port_result_text(result); }
  void reset() override;
  std::string status() const override;
  void look_after() override;

 private:
  RtMidiOutput(MidiService service, std::string port);

  bool open();
  void silence_if_returned();
  bool has_room(std::size_t size);
  /// Whether the server has done nothing since it was last waited for in vain. It is alive but may
  /// stay so for long, and not every message can wait for it.
  bool stalled() const;
  template <class Condition>
  bool wait_for(Condition condition);
  MidiResult send(std::span<const std::uint8_t> bytes);
  const JackServer* jack() const { return port_.service().jack.get(); }

  ReturningPort<RtMidiOut> port_;
  JackQueueGuard guard_;
  std::uint64_t last_send_cycle_ = 0;
  std::optional<std::uint64_t> stalled_at_;  // the cycle at which a wait was in vain
  SysExSteps steps_;
};

/// Name of the output that others connect to.
inline constexpr char kVirtualOutput[] = "Lunavox virtual port";

}  // namespace lunavox

#pragma once

#include "midi/ports/jack_server.h"

#include <memory>
#include <string>
#include <vector>

#include <RtMidi.h>

// What outputs and inputs share of RtMidi.
namespace lunavox {

// Our names among the programs that MIDI ports belong to.
inline constexpr char kOutputClient[] = "Lunavox output";
inline constexpr char kInputClient[] = "Lunavox input";

/// The system's MIDI service, as it is found at the time of the call.
struct MidiService {
  RtMidi::Api api = RtMidi::UNSPECIFIED;  ///< UNSPECIFIED where there is none
  std::shared_ptr<JackServer> jack;       ///< for JACK alone

  bool available() const { return api != RtMidi::UNSPECIFIED; }
  /// Whether the service still runs.
  bool alive() const { return api != RtMidi::UNIX_JACK || (jack && jack->alive()); }
};

/// ALSA's sequencer, else a running JACK server, else none.
MidiService find_midi_service();

/// Whether a port is our own, which is not to be played into or heard from again.
bool is_own_port(const std::string& name);

/// Whether a port leads to a device rather than to another program.
bool is_hardware_port(RtMidi::Api api, const std::string& name);

/// The place of the system's default in a list of outputs: the first port that leads to a device,
/// else the first output of all.
int default_output(RtMidi::Api api, const std::vector<std::string>& names);

/// The names of a service's ports but our own, in its order.
std::vector<std::string> port_names(RtMidi& ports);

/// The service's number of the port of a name, -1 when it has none.
int port_number(RtMidi& ports, const std::string& name);

/// Collects what RtMidi has to say, in place of its printing and throwing.
class PortErrors {
 public:
  void listen_to(RtMidi& ports);
  /// Whether anything was told since clear(), a mere warning too.
  bool any() const { return any_; }
  /// Whether something worse than a warning was told.
  bool failed() const { return failed_; }
  void clear() { any_ = failed_ = false; }

 private:
  bool any_ = false;
  bool failed_ = false;
};

}  // namespace lunavox

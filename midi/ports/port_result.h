#pragma once

#include "midi/devices.h"

namespace lunavox {

// What the devices here answer beside kMidiOk.
inline constexpr MidiResult kNotSysEx = 1;     ///< not F0 ... F7
inline constexpr MidiResult kNotPrepared = 2;  ///< sent or unprepared before being prepared
inline constexpr MidiResult kPortGone = 3;     ///< nothing can be sent any more
inline constexpr MidiResult kPortBusy = 4;     ///< no room for the message at present
inline constexpr MidiResult kNotSent = 5;      ///< the MIDI service refused it

/// What status() of an output says that went by way of a JACK server which is gone.
inline constexpr const char* kJackStopped =
    "The JACK server has stopped: nothing is heard any more.";

/// One sentence for each of the results.
std::string port_result_text(MidiResult result);

/// Keeps the order of the three steps of System Exclusive sending.
class SysExSteps {
 public:
  MidiResult prepare(const SysExBytes& data);
  /// Whether sending may follow.
  MidiResult check_prepared() const { return prepared_ ? kMidiOk : kNotPrepared; }
  MidiResult unprepare();

 private:
  bool prepared_ = false;
};

}  // namespace lunavox

#include "midi/ports/port_result.h"

#include <utility>

namespace lunavox {

std::string port_result_text(MidiResult result) {
  switch (result) {
    case kMidiOk:
      return "There is no error.";
    case kNotSysEx:
      return "The bytes are not a System Exclusive message.";
    case kNotPrepared:
      return "The message has not been prepared.";
    case kPortGone:
      return "The MIDI port is gone.";
    case kPortBusy:
      return "The MIDI port is still busy with earlier messages.";
    case kNotSent:
      return "The MIDI service did not take the message.";
    default:
      return "Unknown error " + std::to_string(result) + ".";
  }
}

MidiResult SysExSteps::prepare(const SysExBytes& data) {
  prepared_ = data.size() >= 2 && data.front() == 0xF0 && data.back() == 0xF7;
  return prepared_ ? kMidiOk : kNotSysEx;
}

MidiResult SysExSteps::unprepare() {
  return std::exchange(prepared_, false) ? kMidiOk : kNotPrepared;
}

}  // namespace lunavox

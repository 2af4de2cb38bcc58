#include "midi/ports/rtmidi_input.h"

#include "midi/ports/wire_message.h"

#include <thread>

namespace lunavox {

std::unique_ptr<RtMidiInput> RtMidiInput::open(MidiService service, const std::string& port,
                                               InputCallback callback) {
  try {
    std::unique_ptr<RtMidiInput> device(
        new RtMidiInput(std::move(service), port, std::move(callback)));
    return device->open_port() ? std::move(device) : nullptr;
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

RtMidiInput::RtMidiInput(MidiService service, std::string port, InputCallback callback)
    : service_(std::move(service)),
      port_(std::move(port)),
      callback_(std::move(callback)),
      in_(service_.api, kInputClient) {
  errors_.listen_to(in_);
  in_.ignoreTypes(true, true, true);
  in_.setCallback([](double, std::vector<unsigned char>* bytes,
                     void* self) { static_cast<RtMidiInput*>(self)->received(*bytes); },
                  this);
}

RtMidiInput::~RtMidiInput() {
  stop();
}

bool RtMidiInput::open_port() {
  if (port_.empty()) {
    in_.openVirtualPort(kVirtualInput);
    return !errors_.failed();
  }
  const int number = port_number(in_, port_);
  if (number < 0) return false;
  in_.openPort(static_cast<unsigned>(number), "MIDI in");
  return in_.isPortOpen() && !errors_.failed();
}

void RtMidiInput::received(const std::vector<unsigned char>& bytes) {
  const auto packed = from_wire(bytes);
  if (!packed) return;
  delivering_ = true;
  if (running_) callback_(*packed);
  delivering_ = false;
}

void RtMidiInput::stop() {
  running_ = false;
  while (delivering_) std::this_thread::yield();
}

void RtMidiInput::look_after() {
  if (port_.empty() || !service_.alive()) return;
  if (port_number(in_, port_) < 0) {
    gone_ = true;
  } else if (gone_) {
    // Listed again, but our connection went with the old one.
    in_.closePort();
    errors_.clear();
    gone_ = !open_port();
  }
}

std::string RtMidiInput::status() const {
  if (!service_.alive()) return "The JACK server has stopped: the MIDI input is silent.";
  if (port_.empty() || (!gone_ && port_number(in_, port_) >= 0)) return {};
  return "The MIDI input \"" + port_ + "\" is gone.";
}

}  // namespace lunavox

#include "midi/ports/rtmidi_input.h"

#include "midi/ports/wire_message.h"

#include <thread>

namespace lunavox {

std::unique_ptr<RtMidiInput> RtMidiInput::open(MidiService service, const std::string& port,
                                               InputCallback callback) {
  try {
    std::unique_ptr<RtMidiInput> device(
        new RtMidiInput(std::move(service), port, std::move(callback)));
    return device->port_.open() ? std::move(device) : nullptr;
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

RtMidiInput::RtMidiInput(MidiService service, std::string port, InputCallback callback)
    : callback_(std::move(callback)),
      port_(std::move(service), std::move(port), {kInputClient, "MIDI in", kVirtualInput},
            [this](RtMidiIn& in) { listen_to(in); }) {}

void RtMidiInput::listen_to(RtMidiIn& in) {
  in.ignoreTypes(true, true, true);
  in.setCallback([](double, std::vector<unsigned char>* bytes,
                    void* self) { static_cast<RtMidiInput*>(self)->received(*bytes); },
                 this);
}

RtMidiInput::~RtMidiInput() {
  stop();
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

std::string RtMidiInput::status() const {
  using State = ReturningPort<RtMidiIn>::State;
  switch (port_.state()) {
    case State::kNoService:
      return "The JACK server has stopped: the MIDI input is silent.";
    case State::kAway:
      return "The MIDI input \"" + port_.wanted() + "\" is gone.";
    default:
      return {};
  }
}

}  // namespace lunavox

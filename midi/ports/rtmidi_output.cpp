#include "midi/ports/rtmidi_output.h"

#include "midi/ports/wire_message.h"

#include <chrono>
#include <thread>

namespace lunavox {
namespace {

/// How long to wait for the service, which has much else to do at times.
constexpr std::chrono::milliseconds kPatience{500};
/// After so many process cycles, what was sent has left the queue and been read by the receiver.
constexpr std::uint64_t kCyclesToArrive = 4;

}  // namespace

std::unique_ptr<RtMidiOutput> RtMidiOutput::open(MidiService service, const std::string& port) {
  try {
    std::unique_ptr<RtMidiOutput> device(new RtMidiOutput(std::move(service), port));
    return device->open() ? std::move(device) : nullptr;
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

RtMidiOutput::RtMidiOutput(MidiService service, std::string port)
    : port_(std::move(service), std::move(port), {kOutputClient, "MIDI out", kVirtualOutput},
            [](RtMidiOut&) {}) {}

bool RtMidiOutput::open() {
  if (!port_.open()) return false;
  wait_for([&] { return port_.connected(); });
  return true;
}

MidiResult RtMidiOutput::short_message(std::uint32_t packed) {
  const WireMessage message = to_wire(packed);
  if (message.size == 0) return kMidiOk;
  return send({message.bytes.data(), message.size});
}

MidiResult RtMidiOutput::long_message(const SysExBytes& data) {
  const MidiResult prepared = steps_.check_prepared();
  return prepared == kMidiOk ? send(data) : prepared;
}

MidiResult RtMidiOutput::send(std::span<const std::uint8_t> bytes) {
  if (!port_.usable()) return kPortGone;
  silence_if_returned();
  if (!has_room(bytes.size())) return port_.usable() ? kPortBusy : kPortGone;
  if (jack()) last_send_cycle_ = jack()->cycles();
  port_.errors().clear();
  try {
    port_.port().sendMessage(bytes.data(), bytes.size());
  } catch (const RtMidiError&) {
    return kNotSent;
  }
  return port_.errors().any() ? kNotSent : kMidiOk;
}

/// What sounded when the device went away may have been ended meanwhile, which the device does not
/// know of.
void RtMidiOutput::silence_if_returned() {
  if (port_.has_returned()) reset();
}

bool RtMidiOutput::has_room(std::size_t size) {
  if (!jack()) return true;
  if (stalled()) return false;
  if (wait_for([&] { return guard_.admit(size, jack()->cycles()); })) return true;
  stalled_at_ = jack()->cycles();
  return false;
}

bool RtMidiOutput::stalled() const {
  return jack() && stalled_at_ == jack()->cycles();
}

/// Waits for something that the running server brings about; not long, and not for a dead one.
template <class Condition>
bool RtMidiOutput::wait_for(Condition condition) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + kPatience;
  while (!condition()) {
    if (!port_.service().alive() || Clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

RtMidiOutput::~RtMidiOutput() {
  // A JACK port that closes takes with it what its receiver has not looked at yet.
  if (!jack() || stalled()) return;
  wait_for([&] { return jack()->cycles() >= last_send_cycle_ + kCyclesToArrive; });
}

void RtMidiOutput::look_after() {
  port_.look_after();
  silence_if_returned();
}

void RtMidiOutput::reset() {
  for (std::uint32_t channel = 0; channel < 16; ++channel) {
    short_message(0x78B0 | channel);  // all sound off
    short_message(0x7BB0 | channel);  // all notes off
  }
}

std::string RtMidiOutput::status() const {
  using State = ReturningPort<RtMidiOut>::State;
  switch (port_.state()) {
    case State::kNoService:
      return kJackStopped;
    case State::kAway:
      return "The MIDI output \"" + port_.wanted() + "\" is gone.";
    default:
      return stalled() ? "The JACK server does not answer: nothing is heard." : "";
  }
}

}  // namespace lunavox

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
    return device->open_port() ? std::move(device) : nullptr;
  } catch (const RtMidiError&) {
    return nullptr;
  }
}

RtMidiOutput::RtMidiOutput(MidiService service, std::string port)
    : service_(std::move(service)), port_(std::move(port)), out_(service_.api, kOutputClient) {
  errors_.listen_to(out_);
}

bool RtMidiOutput::open_port() {
  if (port_.empty()) {
    out_.openVirtualPort(kVirtualOutput);
    return !errors_.failed();
  }
  const int number = port_number(out_, port_);
  if (number < 0) return false;
  out_.openPort(static_cast<unsigned>(number), "MIDI out");
  if (!out_.isPortOpen() || errors_.failed()) return false;
  if (service_.jack) wait_for([&] { return service_.jack->connected(port_, kOutputClient); });
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
  if (!service_.alive()) return kPortGone;
  if (!has_room(bytes.size())) return service_.alive() ? kPortBusy : kPortGone;
  if (service_.jack) last_send_cycle_ = service_.jack->cycles();
  errors_.clear();
  try {
    out_.sendMessage(bytes.data(), bytes.size());
  } catch (const RtMidiError&) {
    return kNotSent;
  }
  return errors_.any() ? kNotSent : kMidiOk;
}

bool RtMidiOutput::has_room(std::size_t size) {
  if (!service_.jack) return true;
  return wait_for([&] { return guard_.admit(size, service_.jack->cycles()); });
}

/// Waits for something that the running server brings about; not long, and not for a dead one.
template <class Condition>
bool RtMidiOutput::wait_for(Condition condition) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + kPatience;
  while (!condition()) {
    if (!service_.alive() || Clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

RtMidiOutput::~RtMidiOutput() {
  // A JACK port that closes takes with it what its receiver has not looked at yet.
  if (!service_.jack) return;
  wait_for([&] { return service_.jack->cycles() >= last_send_cycle_ + kCyclesToArrive; });
}

void RtMidiOutput::reset() {
  for (std::uint32_t channel = 0; channel < 16; ++channel) {
    short_message(0x78B0 | channel);  // all sound off
    short_message(0x7BB0 | channel);  // all notes off
  }
}

void RtMidiOutput::look_after() {
  if (port_.empty() || !service_.alive()) return;
  if (port_number(out_, port_) < 0) {
    gone_ = true;
  } else if (gone_) {
    // Listed again, but our connection went with the old one.
    out_.closePort();
    errors_.clear();
    gone_ = !open_port();
  }
}

std::string RtMidiOutput::status() const {
  if (!service_.alive()) return "The JACK server has stopped: nothing is heard any more.";
  if (port_.empty() || (!gone_ && port_number(out_, port_) >= 0)) return {};
  return "The MIDI output \"" + port_ + "\" is gone.";
}

}  // namespace lunavox

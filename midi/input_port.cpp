#include "midi/input_port.h"

#include <utility>

namespace lunavox {
namespace {

constexpr std::uint32_t kActiveSensing = 0xFE;

}  // namespace

InputPort::InputPort(InputDevices& devices, NoteQueue& queue) : devices_(devices), queue_(queue) {}

bool InputPort::open(int device) {
  close();
  device_ = devices_.open(device, [&queue = queue_](std::uint32_t packed) {
    // Keyboards send active sensing several times a second to say that they are still there.
    if ((packed & 0xFFU) != kActiveSensing) queue.write(packed);
  });
  return is_open();
}

void InputPort::close() {
  device_.reset();
}

void InputPort::start() {
  if (device_) device_->start();
}

void InputPort::stop() {
  if (device_) device_->stop();
}

void InputPort::reset() {
  if (device_) device_->reset();
}

void InputPort::look_after() {
  if (device_) device_->look_after();
  const bool was_gone = std::exchange(gone_, !status().empty());
  if (gone_ && !was_gone && on_gone_) on_gone_();
}

std::string InputPort::status() const {
  return device_ ? device_->status() : std::string();
}

}  // namespace lunavox

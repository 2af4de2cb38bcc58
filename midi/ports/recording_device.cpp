#include "midi/ports/recording_device.h"

namespace lunavox {

std::vector<std::uint32_t> MidiRecord::shorts() const {
  std::vector<std::uint32_t> packed;
  for (const RecordedCall& call : calls) {
    if (call.kind == RecordedCall::kShort) packed.push_back(call.packed);
  }
  return packed;
}

std::vector<SysExBytes> MidiRecord::sysexes() const {
  std::vector<SysExBytes> messages;
  for (const RecordedCall& call : calls) {
    if (call.kind == RecordedCall::kLong) messages.push_back(call.sysex);
  }
  return messages;
}

RecordingDevice::RecordingDevice(MidiRecord& record, int device) : record_(record) {
  write({.kind = RecordedCall::kOpen, .sysex = {}, .device = device});
}

RecordingDevice::~RecordingDevice() {
  write({.kind = RecordedCall::kClose, .sysex = {}});
}

MidiResult RecordingDevice::short_message(std::uint32_t packed) {
  write({.kind = RecordedCall::kShort, .packed = packed, .sysex = {}});
  return kMidiOk;
}

MidiResult RecordingDevice::prepare_header(const SysExBytes& data) {
  write({.kind = RecordedCall::kPrepare, .sysex = data});
  return record_.prepare_result;
}

MidiResult RecordingDevice::long_message(const SysExBytes& data) {
  write({.kind = RecordedCall::kLong, .sysex = data});
  return record_.long_result;
}

MidiResult RecordingDevice::unprepare_header(const SysExBytes& data) {
  write({.kind = RecordedCall::kUnprepare, .sysex = data});
  return record_.unprepare_result;
}

void RecordingDevice::reset() {
  write({.kind = RecordedCall::kReset, .sysex = {}});
}

void RecordingDevice::write(RecordedCall call) {
  if (record_.now) call.time_ms = record_.now();
  record_.calls.push_back(std::move(call));
}

std::unique_ptr<OutputDevice> RecordingDevices::open(int device) {
  if (device < kDefaultOutput || device >= static_cast<int>(names_.size())) {
    open_error_ = "There is no MIDI output number " + std::to_string(device) + ".";
    return nullptr;
  }
  open_error_.clear();
  return std::make_unique<RecordingDevice>(record_, device);
}

}  // namespace lunavox

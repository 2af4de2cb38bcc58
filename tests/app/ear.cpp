#include "ear.h"

namespace lunavox::test {

void Ear::hear(const std::vector<RecordingOutput::Call>& calls) {
  for (const RecordingOutput::Call& call : calls) {
    if (call.kind == RecordingOutput::Call::kShort) hear(call.packed);
    if (call.kind == RecordingOutput::Call::kReset) sounding_.clear();
  }
}

void Ear::hear(std::uint32_t packed) {
  const auto channel = static_cast<int>(packed & 0xFU);
  const auto status = packed & 0xF0U;
  const auto data1 = static_cast<int>(packed >> 8 & 0xFFU);
  const bool loud = packed > 0xFFFF;
  if (status == 0x90 && loud) sounding_.insert({channel, data1});
  if (status == 0x80 || (status == 0x90 && !loud)) sounding_.erase({channel, data1});
  if (status == 0xB0 && (data1 == 120 || data1 == 123)) silence(channel);
}

void Ear::silence(int channel) {
  std::erase_if(sounding_, [&](const auto& note) { return note.first == channel; });
}

std::string Ear::sounding() const {
  std::string notes;
  for (const auto& [channel, note] : sounding_) {
    notes += " " + std::to_string(note) + " on channel " + std::to_string(channel);
  }
  return notes;
}

}  // namespace lunavox::test

#include "midi/ports/wire_message.h"

#include <algorithm>

namespace lunavox {
namespace {

std::size_t system_length(std::uint8_t status) {
  switch (status) {
    case 0xF1:  // time code
    case 0xF3:  // song select
      return 2;
    case 0xF2:  // song position
      return 3;
    case 0xF6:  // tune request
    case 0xF8:  // clock
    case 0xFA:  // start
    case 0xFB:  // continue
    case 0xFC:  // stop
    case 0xFE:  // active sensing
    case 0xFF:  // reset
      return 1;
    default:
      return 0;
  }
}

}  // namespace

std::size_t wire_length(std::uint8_t status) {
  if (status < 0x80) return 0;
  if (status >= 0xF0) return system_length(status);
  const int kind = status & 0xF0;
  return kind == 0xC0 || kind == 0xD0 ? 2 : 3;
}

WireMessage to_wire(std::uint32_t packed) {
  WireMessage message;
  const auto status = static_cast<std::uint8_t>(packed);
  message.size = wire_length(status);
  if (message.size > 0) message.bytes[0] = status;
  if (message.size > 1) message.bytes[1] = static_cast<std::uint8_t>(packed >> 8) & 0x7F;
  if (message.size > 2) message.bytes[2] = static_cast<std::uint8_t>(packed >> 16) & 0x7F;
  return message;
}

std::optional<std::uint32_t> from_wire(std::span<const std::uint8_t> bytes) {
  if (bytes.empty() || wire_length(bytes[0]) != bytes.size()) return std::nullopt;
  const auto is_status = [](std::uint8_t byte) { return byte >= 0x80; };
  if (std::any_of(bytes.begin() + 1, bytes.end(), is_status)) return std::nullopt;
  std::uint32_t packed = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) packed |= std::uint32_t{bytes[i]} << (8 * i);
  return packed;
}

}  // namespace lunavox

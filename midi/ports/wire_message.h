#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace lunavox {

/// A short message as it stands on a MIDI wire: one to three bytes, or none.
struct WireMessage {
  std::array<std::uint8_t, 3> bytes{};
  std::size_t size = 0;

  std::uint8_t status() const { return bytes[0]; }
  std::uint8_t channel() const { return bytes[0] & 0x0F; }
  bool operator==(const WireMessage&) const = default;
};

/// How many bytes a short message with this status byte has: 1 to 3; 0 for what begins none (data
/// bytes, System Exclusive, undefined status bytes).
std::size_t wire_length(std::uint8_t status);

/// The bytes of a packed message: data bytes keep their low seven bits; a message without a status
/// byte, such as 0, has none.
WireMessage to_wire(std::uint32_t packed);

/// The packed message of bytes received; none unless they are one complete short message.
std::optional<std::uint32_t> from_wire(std::span<const std::uint8_t> bytes);

}  // namespace lunavox

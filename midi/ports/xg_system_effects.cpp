#include "midi/ports/xg_system_effects.h"

#include "midi/xg_effects.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace lunavox {
namespace {

template <class Shape>
struct EffectType {
  std::uint16_t code;  // MSB and LSB of the XG type
  Shape shape;
};

// By ear: the names tell the room, not its figures.
constexpr std::array<EffectType<ReverbShape>, 11> kReverbs = {{
    {0x0100, {0.40, 0.25, 0.8, 0.70}},  // Hall 1
    {0x0101, {0.50, 0.20, 1.0, 0.70}},  // Hall 2
    {0x0200, {0.15, 0.40, 0.5, 0.80}},  // Room 1
    {0x0201, {0.20, 0.35, 0.6, 0.80}},  // Room 2
    {0x0202, {0.25, 0.30, 0.7, 0.80}},  // Room 3
    {0x0300, {0.30, 0.20, 0.9, 0.75}},  // Stage 1
    {0x0301, {0.35, 0.15, 1.0, 0.75}},  // Stage 2
    {0x0400, {0.30, 0.00, 0.9, 0.80}},  // Plate
    {0x1000, {0.10, 0.10, 0.5, 0.90}},  // White Room
    {0x1100, {0.70, 0.50, 0.9, 0.80}},  // Tunnel
    {0x1300, {0.20, 0.70, 0.4, 0.90}},  // Basement
}};

constexpr std::array<EffectType<ChorusShape>, 11> kChoruses = {{
    {0x4100, {3, 1.2, 0.40, 6.0}},   // Chorus 1
    {0x4101, {3, 1.4, 0.60, 8.0}},   // Chorus 2
    {0x4102, {4, 1.2, 0.20, 10.0}},  // Chorus 3
    {0x4108, {5, 1.2, 0.80, 6.0}},   // Chorus 4
    {0x4200, {2, 1.0, 0.50, 3.0}},   // Celeste 1
    {0x4201, {2, 1.2, 0.70, 4.0}},   // Celeste 2
    {0x4202, {2, 1.4, 0.30, 5.0}},   // Celeste 3
    {0x4208, {3, 1.0, 1.00, 3.0}},   // Celeste 4
    {0x4300, {1, 2.5, 0.15, 2.0}},   // Flanger 1
    {0x4301, {1, 3.0, 0.25, 2.5}},   // Flanger 2
    {0x4308, {1, 3.5, 0.40, 1.5}},   // Flanger 3
}};

constexpr std::uint8_t kReverbAddress = 0x00;
constexpr std::uint8_t kChorusAddress = 0x20;

/// The type that a parameter change gives to the effect at an address of the system effects.
std::optional<std::uint16_t> type_given(const SysExBytes& data, std::uint8_t address) {
  const std::array<std::uint8_t, 7> head = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, address};
  constexpr std::size_t kLength = 10;
  if (data.size() != kLength || !std::equal(head.begin(), head.end(), data.begin())) {
    return std::nullopt;
  }
  return static_cast<std::uint16_t>(data[7] << 8 | data[8]);
}

template <class Shape>
std::optional<Shape> chosen(std::span<const EffectType<Shape>> types, const SysExBytes& data,
                            std::uint8_t address) {
  if (data == xg_system_on()) return types.front().shape;
  const auto code = type_given(data, address);
  const auto found = std::find_if(types.begin(), types.end(),
                                  [&](const EffectType<Shape>& type) { return code == type.code; });
  if (found == types.end()) return std::nullopt;
  return found->shape;
}

}  // namespace

std::optional<ReverbShape> reverb_chosen_by(const SysExBytes& data) {
  return chosen<ReverbShape>(kReverbs, data, kReverbAddress);
}

std::optional<ChorusShape> chorus_chosen_by(const SysExBytes& data) {
  return chosen<ChorusShape>(kChoruses, data, kChorusAddress);
}

}  // namespace lunavox

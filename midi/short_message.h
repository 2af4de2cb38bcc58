#pragma once

#include "grid/runtime_error.h"
#include "grid/song.h"

#include <array>
#include <cstdint>

// Packed short messages: status and channel in the low byte, then data 1, then data 2.
//
// Everywhere a short message is written as hexadecimal digits, most significant byte first, and
// read as one number: a value's digits followed by "07b" and the channel digit is a volume message.
// The functions here compose the same number without going through the text. Values are 16-bit;
// they are not brought into the range of a data byte, a volume of 255 is sent as 255.
namespace lunavox {

constexpr std::uint32_t channel_nibble(int channel) {
  return static_cast<std::uint32_t>(channel) & 0xFU;
}

/// Velocity, note, "9", channel digit; velocity 0 ends the note.
constexpr std::uint32_t note_on(int channel, int note, int velocity) {
  return static_cast<std::uint32_t>(velocity) << 16 | static_cast<std::uint32_t>(note) << 8 |
         0x90U | channel_nibble(channel);
}

/// Value, two digits of controller, "b", channel digit.
constexpr std::uint32_t control_change(int channel, int controller, int value) {
  return static_cast<std::uint32_t>(static_cast<std::uint16_t>(value)) << 16 |
         static_cast<std::uint32_t>(controller) << 8 | 0xB0U | channel_nibble(channel);
}

/// Program, "c", channel digit.
constexpr std::uint32_t program_change(int channel, int program) {
  return static_cast<std::uint32_t>(static_cast<std::uint16_t>(program)) << 8 | 0xC0U |
         channel_nibble(channel);
}

/// Value, "00e", channel digit: the value is the more significant byte, 64 the centre.
constexpr std::uint32_t pitch_bend(int channel, int value) {
  return static_cast<std::uint32_t>(static_cast<std::uint16_t>(value)) << 16 | 0xE0U |
         channel_nibble(channel);
}

// The controllers that choose the bank of the voices, and the bank of XG's drum kits.
inline constexpr int kBankMsb = 0;
inline constexpr int kBankLsb = 32;
inline constexpr int kDrumBank = 127;

/// The controller that a curve is sent by.
/// @param effect kVolume..kRelease; others, Pitch too, throw RuntimeError (Subscript out of range)
constexpr int controller_of(int effect) {
  constexpr std::array<int, kEffectSlots> kControllers = {0, 0, 7, 10, 1, 74, 91, 93, 94, 73, 72};
  if (effect < kFirstCurve || effect > kRelease) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return kControllers[static_cast<std::size_t>(effect)];
}

/// The message of an effect value on a channel.
/// @param effect kVolume..kPitch; others throw RuntimeError (Subscript out of range)
constexpr std::uint32_t curve_message(int effect, int channel, int value) {
  if (effect == kPitch) return pitch_bend(channel, value);
  return control_change(channel, controller_of(effect), value);
}

inline constexpr int kPitchCentre = 64;

/// The metronome's click: note 37 (side stick) of the drum channel at velocity 96.
inline constexpr std::uint32_t kMetronomeClick = 0x602599;

}  // namespace lunavox

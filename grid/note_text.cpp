#include "grid/note_text.h"

#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

namespace lunavox {
namespace {

constexpr std::array<std::string_view, 12> kNames = {"C  ", "C#",  "D  ", "D#",  "E  ", "F  ",
                                                     "F#",  "G  ", "G#",  "A  ", "A#",  "B  "};

std::uint8_t component(std::int64_t value) {
  return static_cast<std::uint8_t>(std::clamp<std::int64_t>(value, 0, 255));
}

}  // namespace

std::string note_text(int velocity, int note, int channel) {
  std::string note_digits = hex_text(static_cast<std::uint32_t>(note));
  if (note_digits.size() < 2) note_digits.insert(0, "0");
  return hex_text(static_cast<std::uint32_t>(velocity)) + note_digits + "9" +
         channel_digit(channel);
}

int velocity_of(std::string_view note_text) {
  if (note_text.size() <= 4) return 0;
  return static_cast<int>(hex_value(note_text.substr(0, note_text.size() - 4)));
}

int note_of(std::string_view note_text) {
  const std::size_t tail = std::min<std::size_t>(4, note_text.size());
  return static_cast<int>(hex_value(note_text.substr(note_text.size() - tail, 2)));
}

bool is_note(std::string_view entry) {
  return !entry.empty() && entry != kStop;
}

std::string_view note_name(int note_index) {
  if (note_index < 0 || note_index >= static_cast<int>(kNames.size())) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return kNames[static_cast<std::size_t>(note_index)];
}

std::string ShownNote::text() const {
  return std::string(note_name(note_index)) + plain_number(octave);
}

ShownNote shown_note(std::string_view entry) {
  const int note = entry.size() > 2 ? static_cast<int>(hex_value(entry.substr(2, 2))) : 0;
  return {note / 12, note % 12};
}

Colour velocity_colour(int velocity) {
  // Wide enough for the velocity that a damaged file's overlong text gives.
  const std::int64_t doubled = 2 * static_cast<std::int64_t>(velocity);
  return {component(doubled), component(256 - 2 * std::abs(127 - doubled)),
          component(256 - doubled)};
}

char channel_digit(int channel) {
  return hex_text(static_cast<std::uint32_t>(channel)).back();
}

}  // namespace lunavox

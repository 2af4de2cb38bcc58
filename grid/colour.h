#pragma once

#include <cstdint>

namespace lunavox {

/// A cell colour, components 0 to 255.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Colour&) const = default;
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};
/// Line-number cell of a beat line (colour value 240).
inline constexpr Colour kBeat{240, 0, 0};
/// Track header in the `channels` grid.
inline constexpr Colour kTrackHeader{60, 60, 140};
/// Background of an effect column's cells.
inline constexpr Colour kEffectCell{240, 240, 240};
/// Text of a key value in an effect column; interpolated values are black.
inline constexpr Colour kKeyValue{255, 0, 0};

}  // namespace lunavox

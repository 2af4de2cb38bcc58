#pragma once

#include <string>

namespace lunavox {

/// The rows of the `effects` grid: a track's voice and its ten controller curves.
enum Effect : int {
  kInstrument = 1,  ///< not a curve: the voice's program number on the first line
  kVolume = 2,
  kPan = 3,
  kModulation = 4,
  kBrightness = 5,
  kReverb = 6,
  kChorus = 7,
  kVariation = 8,
  kAttack = 9,
  kRelease = 10,
  kPitch = 11,
};
inline constexpr int kFirstEffect = kInstrument;
inline constexpr int kFirstCurve = kVolume;
inline constexpr int kLastEffect = kPitch;

/// "Instrument", "Volume", ... "Pitch" for row 1..11.
/// @throws RuntimeError (Subscript out of range) for any other
const std::string& effect_name(int effect);

}  // namespace lunavox

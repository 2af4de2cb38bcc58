#pragma once

#include <string>

namespace lunavox {

/// The eleven controller curves of a track, by their row in the `effects` grid.
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

/// "Instrument", "Volume", ... "Pitch" for effect 1..11.
/// @throws RuntimeError (Subscript out of range) for any other
const std::string& effect_name(int effect);

}  // namespace lunavox

#include "grid/effect.h"

#include "grid/runtime_error.h"

#include <array>

namespace lunavox {

const std::string& effect_name(int effect) {
  static const std::array<std::string, kLastEffect> kNames = {
      "Instrument", "Volume",    "Pan",    "Modulation", "Brightness", "Reverb",
      "Chorus",     "Variation", "Attack", "Release",    "Pitch"};
  if (effect < kFirstEffect || effect > kLastEffect) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return kNames[static_cast<std::size_t>(effect - kFirstEffect)];
}

}  // namespace lunavox

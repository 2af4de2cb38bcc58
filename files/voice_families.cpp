#include "files/voice_families.h"

#include <array>

namespace lunavox {

std::string_view voice_family(int program) {
  static constexpr std::array<std::string_view, 16> kFamilies = {
      "Piano",         "Chromatic Percussion",
      "Organ",         "Guitar",
      "Bass",          "Strings",
      "Ensemble",      "Brass",
      "Reed",          "Pipe",
      "Synth Lead",    "Synth Pad",
      "Synth Effects", "Ethnic",
      "Percussive",    "Sound Effects"};
  return kFamilies.at(static_cast<std::size_t>(program / kFamilySize));
}

}  // namespace lunavox

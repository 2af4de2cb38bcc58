#pragma once

#include <string_view>

namespace lunavox {

/// General MIDI sorts its 128 programs into sixteen families of eight.
inline constexpr int kFamilySize = 8;

/// "Piano", "Chromatic Percussion", ...: the family of a program.
/// @param program 0..127
std::string_view voice_family(int program);

}  // namespace lunavox

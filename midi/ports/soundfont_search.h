#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lunavox {

/// A SoundFont to play with, or one sentence on why there is none.
struct SoundFontChoice {
  std::filesystem::path path;
  std::string problem;

  bool operator==(const SoundFontChoice&) const = default;
};

/// Where a General MIDI SoundFont of this machine may be, best first.
std::vector<std::filesystem::path> usual_soundfonts();

/// The SoundFont the user wants, or, when none is wanted, the first of the usual ones that is one.
/// Only the beginning of files is read.
SoundFontChoice choose_soundfont(
    const std::filesystem::path& wanted,
    const std::vector<std::filesystem::path>& usual = usual_soundfonts());

}  // namespace lunavox

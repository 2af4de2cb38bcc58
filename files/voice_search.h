#pragma once

#include "files/voice_choice.h"

#include <optional>
#include <string_view>

namespace lunavox {

/// Where a search of the voice grid begins.
enum class SearchFrom { kHere, kNext };

/// Finds a voice by a part of its name, going along the rows and from the last voice on to the
/// first. A name that begins with the text is preferred to one that only contains it; letter case
/// and blanks do not count.
/// @param at  the cell to begin at, or after
/// @return nothing where no voice has the text in its name, or where the text is blank
std::optional<VoiceCell> find_voice(const VoiceBanks& banks, std::string_view text, VoiceCell at,
                                    SearchFrom from = SearchFrom::kHere);

}  // namespace lunavox

#pragma once

#include "grid/song.h"

#include <functional>
#include <string>

namespace lunavox {

/// How texts are written that a reader would not take for one field as they stand.
enum class TextGuard {
  kNone,    ///< exactly as held: the song format's own way
  kQuotes,  ///< in double quotes where they hold a comma, a quote, a line end or outer spaces
};

/// The song as the bytes of a song file, format version "2.0": one value a line, each line ended by
/// CR LF, integers with a leading blank (or minus) and a trailing one.
/// @param progress  told 1..7 as the writing goes on
std::string song_text(const Song& song, TextGuard guard = TextGuard::kNone,
                      const std::function<void(int step)>& progress = {});

}  // namespace lunavox

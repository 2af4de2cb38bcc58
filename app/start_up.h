#pragma once

#include "app/editor.h"

#include <optional>

namespace lunavox {

/// Sets up the new song that the editor starts with: the drum track, the song's length and its
/// first cursor position.
void build_first_song(Editor& editor);

}  // namespace lunavox

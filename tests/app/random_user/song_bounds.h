#pragma once

#include "grid/song.h"

#include <string>

namespace lunavox::test {

/// Looks for what in a song's stores, fields, lists and grid positions lies outside its bounds.
/// @return what does, empty where nothing
std::string out_of_bounds(const Song& song);

}  // namespace lunavox::test

#pragma once

#include "files/field_reader.h"
#include "grid/song.h"

#include <string>

namespace lunavox {

/// The bytes of a recovery file: the song as in a song file, then the name of the file that it was
/// opened from or saved to.
std::string recovery_text(const Song& song, const std::string& name);

/// That name, empty where the file has none.
/// @param fields  stands behind the song
std::string recovered_name(FieldReader& fields);

}  // namespace lunavox

#pragma once

#include <QString>
#include <string_view>

namespace lunavox {

/// A text of a song, bank or configuration file as it is shown: UTF-8 where its bytes are valid
/// UTF-8, else Latin-1, in which songs and banks of old systems are written. The bytes themselves
/// stay as they are, and go back into the file unchanged.
QString file_text(std::string_view bytes);

}  // namespace lunavox

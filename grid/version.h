#pragma once

#include <string>

namespace lunavox {

/// The program's version; the build takes that of the package from here.
inline constexpr const char* kVersion = "2.1";

/// What the program calls itself: "Lunavox 2.1".
inline std::string version_text() {
  return std::string("Lunavox ") + kVersion;
}

}  // namespace lunavox

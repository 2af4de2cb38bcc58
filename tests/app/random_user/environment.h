#pragma once

#include <cstdlib>

namespace lunavox::test {

/// A number from the environment, so that a longer run needs no other program.
inline unsigned from_environment(const char* name, unsigned otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

}  // namespace lunavox::test

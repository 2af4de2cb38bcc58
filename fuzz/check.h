#pragma once

#include <cstdio>
#include <cstdlib>

namespace lunavox::fuzz {

/// Ends the process where something that must hold does not, so that the fuzzer keeps the input.
inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace lunavox::fuzz

#pragma once

#include "grid/runtime_error.h"

#include <optional>

namespace lunavox::test {

/// The runtime error that a call ends in, none where it comes to its end.
template <class Call>
std::optional<RuntimeError::Number> error_of(Call call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return std::nullopt;
}

}  // namespace lunavox::test

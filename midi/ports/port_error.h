#pragma once

#include <stdexcept>

namespace lunavox {

/// A file behind a device that cannot be used, told to the user in one sentence.
class PortError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace lunavox

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lunavox::test {

/// Bytes of the heap that are in use.
std::size_t heap_in_use();
/// Bytes of memory that the process has.
std::size_t resident_memory();

/// Watches a quantity that is to stay where it is, once the first quarter of its readings, the time
/// in which buffers find their size, is over.
class FlatLine {
 public:
  /// @param allowance  how much it may grow from the second quarter to the last
  explicit FlatLine(std::size_t allowance) : allowance_(allowance) {
    // So that the readings themselves are not among what grows.
    readings_.reserve(kUsualReadings);
  }

  void add(std::size_t reading) { readings_.push_back(reading); }
  /// What is wrong, empty where nothing is. Needs eight readings.
  std::string verdict() const;
  /// The readings' middle in the second quarter, in the last, and their number.
  std::string summary() const;

 private:
  static constexpr std::size_t kUsualReadings = 4096;
  std::size_t middle(std::size_t quarter) const;

  std::size_t allowance_;
  std::vector<std::size_t> readings_;
};

}  // namespace lunavox::test

#pragma once

#include "tests/support/recording_output.h"

#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lunavox::test {

/// Listens to an output: which notes sound.
class Ear {
 public:
  void hear(const std::vector<RecordingOutput::Call>& calls);
  bool silent() const { return sounding_.empty(); }
  std::string sounding() const;

 private:
  void hear(std::uint32_t packed);
  void silence(int channel);

  std::set<std::pair<int, int>> sounding_;  ///< channel index and note
};

}  // namespace lunavox::test

#pragma once

#include "midi/count_in_window.h"

#include <string>
#include <vector>

namespace lunavox::test {

/// Records what the count-in window was told.
class RecordedCountIn : public CountInWindow {
 public:
  void show(const std::string& caption) override { calls.push_back("show " + caption); }
  void set_caption(const std::string& caption) override { calls.push_back(caption); }
  void hide() override { calls.push_back("hide"); }

  std::vector<std::string> calls;
};

}  // namespace lunavox::test

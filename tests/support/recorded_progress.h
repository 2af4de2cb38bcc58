#pragma once

#include "grid/progress.h"

#include <functional>
#include <string>
#include <vector>

namespace lunavox::test {

/// Records what the progress box was told to show.
class RecordedProgress : public ProgressBox {
 public:
  struct Shown {
    std::string caption;
    int maximum = 0;
    int last_value = 0;

    bool operator==(const Shown&) const = default;
  };

  void show(const std::string& caption, int maximum) override {
    shown.push_back({caption, maximum, 0});
    visible = true;
  }
  void set_caption(const std::string& caption) override { shown.back().caption = caption; }
  void set_value(int value) override {
    shown.back().last_value = value;
    values.push_back(value);
    if (on_step) on_step();
  }
  void hide() override { visible = false; }

  std::vector<Shown> shown;
  std::vector<int> values;        ///< all that the bar was set to, in order
  std::function<void()> on_step;  ///< looks at what is under way
  bool visible = false;
};

}  // namespace lunavox::test

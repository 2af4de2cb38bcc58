#pragma once

#include <string>

namespace lunavox::test {

/// The first of many things that turns out not to hold.
class FirstWrong {
 public:
  void expect(bool held, const std::string& what) {
    if (!held && text_.empty()) text_ = what;
  }
  /// Empty where all has held.
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace lunavox::test

#pragma once

#include "grid/dialogs.h"

#include <ostream>
#include <string>

namespace lunavox {

/// Stands in for the dialogs in a run without a window: what is told goes to a stream, one line
/// each, and nobody answers a question.
class ConsoleDialogs : public NoDialogs {
 public:
  explicit ConsoleDialogs(std::ostream& errors) : errors_(errors) {}

  Answer message(const Message& message) override;

  /// True once anything has been told: without a window every message is a refusal.
  bool told() const { return told_; }

 private:
  std::ostream& errors_;
  bool told_ = false;
};

}  // namespace lunavox

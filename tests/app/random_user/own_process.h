#pragma once

#include "shortest_script.h"

#include <chrono>
#include <functional>

namespace lunavox::test {

/// Replays a script and tells of each action before it is done.
using ToldReplay = std::function<Outcome(const Script&, const std::function<void()>& begin_action)>;

/// Longer than any action takes on a machine that is busy with other things.
inline constexpr std::chrono::seconds kPatience{30};

/// Replays a script in a process of its own: what ends the process, or keeps it from ever ending,
/// is an outcome like any other. Not for a process with several threads.
/// @param patience  how long a single action may take
Outcome in_own_process(const Script& script, const ToldReplay& replay,
                       std::chrono::milliseconds patience = kPatience);

/// Standard error goes nowhere while it lives: for processes that are known to fail.
class QuietErrors {
 public:
  QuietErrors();
  ~QuietErrors();
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

 private:
  int errors_;
};

}  // namespace lunavox::test

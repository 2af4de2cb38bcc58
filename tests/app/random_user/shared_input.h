#pragma once

#include "tests/support/scripted_inputs.h"

#include <condition_variable>
#include <mutex>
#include <random>
#include <thread>

namespace lunavox::test {

/// Plays on an input from a thread of its own, as a MIDI keyboard's driver does, as much as it is
/// allowed to.
class SharedInput {
 public:
  SharedInput(ScriptedInputs& inputs, std::mt19937 chance);
  /// Ends the thread.
  ~SharedInput();
  SharedInput(const SharedInput&) = delete;
  SharedInput& operator=(const SharedInput&) = delete;

  /// Allows a number of messages more, which come at any time from now on. 0 returns when all have
  /// come.
  void play(int messages);

 private:
  void run();

  ScriptedInputs& inputs_;
  std::mt19937 chance_;
  std::mutex mutex_;
  std::condition_variable changed_;
  int allowed_ = 0;
  bool ending_ = false;
  std::thread thread_;  // last: it uses all the others
};

}  // namespace lunavox::test

#include "shared_input.h"

namespace lunavox::test {

SharedInput::SharedInput(ScriptedInputs& inputs, std::mt19937 chance)
    : inputs_(inputs), chance_(chance), thread_([this] { run(); }) {}

SharedInput::~SharedInput() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

void SharedInput::play(int messages) {
  std::unique_lock lock(mutex_);
  allowed_ += messages;
  changed_.notify_all();
  if (messages == 0) changed_.wait(lock, [this] { return allowed_ == 0; });
}

void SharedInput::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return allowed_ > 0 || ending_; });
    if (ending_) return;
    lock.unlock();
    const auto note = static_cast<std::uint32_t>(36 + chance_() % 24);
    const std::uint32_t velocity = chance_() % 2 == 0 ? 0 : 100;
    inputs_.play(velocity << 16 | note << 8 | 0x90);
    lock.lock();
    if (--allowed_ == 0) changed_.notify_all();
  }
}

}  // namespace lunavox::test

#include "midi/ports/jack_queue_guard.h"

namespace lunavox {

bool JackQueueGuard::admit(std::size_t size, std::uint64_t cycle) {
  forget_what_was_taken(cycle);
  const std::size_t needed = size + kOverhead;
  if (epoch_before_ + this_epoch_ + needed > kCapacity) return false;
  this_epoch_ += needed;
  return true;
}

void JackQueueGuard::forget_what_was_taken(std::uint64_t cycle) {
  const std::uint64_t age = cycle - epoch_start_;
  if (age < kEpochCycles) return;
  epoch_before_ = age < 2 * kEpochCycles ? this_epoch_ : 0;
  this_epoch_ = 0;
  epoch_start_ = cycle;
}

}  // namespace lunavox

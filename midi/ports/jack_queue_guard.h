#pragma once

#include <cstddef>
#include <cstdint>

namespace lunavox {

/// Reckons how full RtMidi's queue to a JACK server can be at most. RtMidi waits for room in it
/// without end, so a message must only be handed over when it is sure to fit.
///
/// What was put into the queue is taken out within three process cycles. Two counts suffice: what
/// was put in since an epoch of at least three cycles began, and what in the epoch before.
class JackQueueGuard {
 public:
  /// What the queue holds in all; a message takes up its length and kOverhead.
  static constexpr std::size_t kCapacity = 16383;
  static constexpr std::size_t kOverhead = 4;

  /// Whether a message of this many bytes is sure to fit. When it is, it counts as put in.
  /// @param cycle how many process cycles the server has made
  bool admit(std::size_t size, std::uint64_t cycle);

 private:
  static constexpr std::uint64_t kEpochCycles = 3;

  void forget_what_was_taken(std::uint64_t cycle);

  std::uint64_t epoch_start_ = 0;
  std::size_t this_epoch_ = 0;
  std::size_t epoch_before_ = 0;
};

}  // namespace lunavox

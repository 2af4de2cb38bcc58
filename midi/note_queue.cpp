#include "midi/note_queue.h"

namespace lunavox {

void NoteQueue::write(std::uint32_t packed) {
  const std::uint64_t message = packed & ((1U << kMessageBits) - 1);
  if (message == 0) return;
  const std::uint64_t number = written_.fetch_add(1, std::memory_order_relaxed) + 1;
  const std::uint64_t content = number << kMessageBits | message;
  Slot& slot = slot_of(number);
  std::uint64_t present = slot.load(std::memory_order_relaxed);
  // Between taking its number and coming here, this writer may have been overtaken by a whole round
  // of the other one: what is newer stays.
  while (number_of(present) < number &&
         !slot.compare_exchange_weak(present, content, std::memory_order_release,
                                     std::memory_order_relaxed)) {
  }
  if (wake_) wake_();
}

std::uint32_t NoteQueue::front() {
  for (;;) {
    const std::uint64_t content = slot_of(next_read_).load(std::memory_order_acquire);
    const std::uint64_t number = number_of(content);
    if (number < next_read_) return 0;
    if (number == next_read_) {
      return static_cast<std::uint32_t>(content & ((1U << kMessageBits) - 1));
    }
    // Lapped: the slots hold the last twenty writes, of which this is not the oldest but the newest
    // that the reader knows of.
    next_read_ = number - kSlots + 1;
  }
}

void NoteQueue::pop() {
  // The slot may have been overwritten since front(): one message goes, whichever stands there.
  const std::uint64_t content = slot_of(next_read_).load(std::memory_order_relaxed);
  if (number_of(content) >= next_read_) ++next_read_;
}

}  // namespace lunavox

#pragma once

#include <array>
#include <atomic>
#include <cstdint>

namespace lunavox {

/// The ring of incoming short messages: 20 slots, numbered 1..20, 0 meaning empty. Written by the
/// input device's thread and by the computer keyboard, read by the current loop. No lock is taken:
/// a writer that laps the reader overwrites what was not read, and nothing else comes to harm.
class NoteQueue {
 public:
  static constexpr int kSlots = 20;

  /// Stores a message in the next slot. Safe from any thread.
  void write(std::uint32_t packed);

  /// The message in the slot to be read next, 0 when it is empty. For the reader only.
  std::uint32_t front() const;
  /// Clears the slot to be read next and goes on to the one after it. For the reader only.
  void pop();

 private:
  static int after(int slot) { return slot == kSlots ? 1 : slot + 1; }

  std::array<std::atomic<std::uint32_t>, kSlots + 1> slots_{};  // slot 0 is never used
  std::atomic<int> write_index_{1};
  int read_index_ = 1;
};

}  // namespace lunavox

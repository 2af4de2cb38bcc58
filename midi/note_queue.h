#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>

namespace lunavox {

/// The ring of incoming short messages: 20 slots. Written by the input device's thread and by the
/// computer keyboard, read by the current loop. No lock is taken: a writer that laps the reader
/// overwrites what was not read, and nothing else comes to harm; the reader goes on with the oldest
/// message that is still there.
class NoteQueue {
 public:
  static constexpr int kSlots = 20;

  /// Called after each write, on the writer's thread, so that a waiting reader wakes up. To be set
  /// before the first write, and not again.
  void set_wake(std::function<void()> wake) { wake_ = std::move(wake); }

  /// Stores the three bytes of a packed message in the next slot. 0 stands for an empty slot and is
  /// not stored. Safe from any thread.
  void write(std::uint32_t packed);

  /// The message to be read next, 0 when none waits. For the reader only.
  std::uint32_t front();
  /// Goes past the message that front() gave; nothing where none waits. For the reader only.
  void pop();

 private:
  // A slot holds a message in its low 24 bits and above them the number of the write that put it
  // there, counted from 1. The number tells the reader which message is older where it was lapped,
  // and a slow writer that it has been overtaken. 2^40 writes are more than a keyboard lives.
  using Slot = std::atomic<std::uint64_t>;
  static constexpr int kMessageBits = 24;
  static std::uint64_t number_of(std::uint64_t content) { return content >> kMessageBits; }
  Slot& slot_of(std::uint64_t number) { return slots_[number % kSlots]; }

  std::array<Slot, kSlots> slots_{};
  std::atomic<std::uint64_t> written_{0};
  std::uint64_t next_read_ = 1;
  std::function<void()> wake_;
};

}  // namespace lunavox

#include "midi/note_queue.h"

#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using Messages = std::vector<std::uint32_t>;

Messages take_all(NoteQueue& queue) {
  Messages taken;
  while (const std::uint32_t message = queue.front()) {
    queue.pop();
    taken.push_back(message);
  }
  return taken;
}

TEST(NoteQueue, AnEmptyQueueGives0) {
  NoteQueue queue;
  EXPECT_EQ(queue.front(), 0U);
  queue.pop();
  queue.write(0x643C90);
  EXPECT_EQ(queue.front(), 0x643C90U);
}

TEST(NoteQueue, MessagesComeOutInOrder) {
  NoteQueue queue;
  queue.write(0x643C90);
  queue.write(0x3C90);
  EXPECT_EQ(take_all(queue), (Messages{0x643C90, 0x3C90}));
  EXPECT_EQ(queue.front(), 0U);
}

TEST(NoteQueue, AMessageStaysInFrontUntilItIsPopped) {
  NoteQueue queue;
  queue.write(1);
  queue.write(2);
  EXPECT_EQ(queue.front(), 1U);
  EXPECT_EQ(queue.front(), 1U);
  queue.pop();
  EXPECT_EQ(queue.front(), 2U);
}

TEST(NoteQueue, TheRingGoesRound) {
  NoteQueue queue;
  for (std::uint32_t i = 1; i <= 100; ++i) {
    queue.write(i);
    ASSERT_EQ(queue.front(), i);
    queue.pop();
  }
}

TEST(NoteQueue, TwentyMessagesFit) {
  NoteQueue queue;
  for (std::uint32_t i = 1; i <= 20; ++i) queue.write(i);
  EXPECT_EQ(take_all(queue),
            (Messages{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}));
}

TEST(NoteQueue, AnOverrunOverwritesTheOldest) {
  NoteQueue queue;
  for (std::uint32_t i = 1; i <= 25; ++i) queue.write(i);
  EXPECT_EQ(take_all(queue),
            (Messages{6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25}));
}

TEST(NoteQueue, AfterAnOverrunMessagesComeAtOnceAgain) {
  NoteQueue queue;
  for (std::uint32_t i = 1; i <= 67; ++i) queue.write(i);
  take_all(queue);
  queue.write(0x643C90);
  EXPECT_EQ(take_all(queue), (Messages{0x643C90}));
}

TEST(NoteQueue, AMessageOverwrittenWhileItIsHandledCostsNoOther) {
  NoteQueue queue;
  queue.write(1);
  EXPECT_EQ(queue.front(), 1U);
  for (std::uint32_t i = 2; i <= 21; ++i) queue.write(i);
  queue.pop();
  EXPECT_EQ(take_all(queue).size(), 20U);
}

TEST(NoteQueue, TheMessage0IsNotStored) {
  NoteQueue queue;
  queue.write(0);
  queue.write(0x643C90);
  EXPECT_EQ(take_all(queue), (Messages{0x643C90}));
}

TEST(NoteQueue, OnlyTheThreeBytesOfAMessageAreKept) {
  NoteQueue queue;
  queue.write(0xAB643C90);
  EXPECT_EQ(queue.front(), 0x643C90U);
}

TEST(NoteQueue, AWaitingReaderIsWokenAtEachWrite) {
  NoteQueue queue;
  int woken = 0;
  Messages seen;
  queue.set_wake([&] {
    ++woken;
    seen.push_back(queue.front());
  });
  queue.write(0x643C90);
  queue.write(0);
  EXPECT_EQ(woken, 1);
  EXPECT_EQ(seen, (Messages{0x643C90}));
}

constexpr std::uint32_t kEach = 20'000;
constexpr std::uint32_t kKeyboard = 0x800000;

/// Writes kEach numbered messages. The reader's progress holds the writer back so that the ring is
/// never lapped, unless it is null.
void hammer(NoteQueue& queue, std::uint32_t mark, const std::atomic<std::uint32_t>* read) {
  for (std::uint32_t i = 1; i <= kEach; ++i) {
    // Two writers may each run half a ring ahead of the reader.
    while (read && i > *read + NoteQueue::kSlots / 2) std::this_thread::yield();
    queue.write(mark | i);
  }
}

TEST(NoteQueue, TwoWritersAndAReaderLoseNothingWhileTheReaderKeepsUp) {
  NoteQueue queue;
  std::atomic<std::uint32_t> device_read{0};
  std::atomic<std::uint32_t> keyboard_read{0};
  std::thread device([&] { hammer(queue, 0, &device_read); });
  std::thread keyboard([&] { hammer(queue, kKeyboard, &keyboard_read); });
  while (device_read < kEach || keyboard_read < kEach) {
    const std::uint32_t message = queue.front();
    if (message == 0) {
      std::this_thread::yield();
      continue;
    }
    queue.pop();
    auto& read = message & kKeyboard ? keyboard_read : device_read;
    EXPECT_EQ(message & ~kKeyboard, read + 1);
    ++read;
  }
  device.join();
  keyboard.join();
  EXPECT_EQ(queue.front(), 0U);
}

TEST(NoteQueue, AReaderThatIsLappedSeesEachWritersMessagesInOrder) {
  NoteQueue queue;
  std::atomic<int> writing{2};
  std::thread device([&] {
    hammer(queue, 0, nullptr);
    --writing;
  });
  std::thread keyboard([&] {
    hammer(queue, kKeyboard, nullptr);
    --writing;
  });
  std::uint32_t last_of_device = 0;
  std::uint32_t last_of_keyboard = 0;
  for (;;) {
    const bool over = writing == 0;
    const std::uint32_t message = queue.front();
    if (message == 0 && over) break;
    if (message == 0) continue;
    queue.pop();
    std::uint32_t& last = message & kKeyboard ? last_of_keyboard : last_of_device;
    EXPECT_GT(message & ~kKeyboard, last);
    last = message & ~kKeyboard;
  }
  device.join();
  keyboard.join();
  // The very last write of all was read, and it was one writer's last.
  EXPECT_TRUE(last_of_device == kEach || last_of_keyboard == kEach);
  queue.write(0x3C90);
  EXPECT_EQ(queue.front(), 0x3C90U);
}

}  // namespace
}  // namespace lunavox

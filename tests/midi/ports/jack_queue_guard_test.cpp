#include "midi/ports/jack_queue_guard.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

// A message of 12 bytes takes up 16: 1023 of them fill the queue but for 15 bytes.
constexpr std::size_t kSize = 12;

int admitted(JackQueueGuard& guard, std::uint64_t cycle, int most) {
  int count = 0;
  while (count < most && guard.admit(kSize, cycle)) ++count;
  return count;
}

TEST(JackQueueGuard, AdmitsWhatTheQueueHolds) {
  JackQueueGuard guard;
  EXPECT_EQ(admitted(guard, 0, 5000), 1023);
}

TEST(JackQueueGuard, AServerThatStandsStillGetsNoMore) {
  JackQueueGuard guard;
  admitted(guard, 7, 5000);
  EXPECT_FALSE(guard.admit(kSize, 7));
  EXPECT_FALSE(guard.admit(kSize, 8));
  EXPECT_FALSE(guard.admit(kSize, 9));
}

TEST(JackQueueGuard, WhatWasPutInTwoEpochsAgoHasBeenTakenOut) {
  JackQueueGuard guard;
  EXPECT_EQ(admitted(guard, 0, 1000), 1000);
  EXPECT_EQ(admitted(guard, 3, 5000), 23);
  EXPECT_EQ(admitted(guard, 6, 5000), 1000);
}

TEST(JackQueueGuard, AfterALongRestTheQueueIsEmpty) {
  JackQueueGuard guard;
  admitted(guard, 0, 5000);
  EXPECT_EQ(admitted(guard, 1000, 5000), 1023);
}

TEST(JackQueueGuard, AMessageLongerThanTheQueueNeverFits) {
  JackQueueGuard guard;
  EXPECT_FALSE(guard.admit(16380, 0));
  EXPECT_TRUE(guard.admit(16379, 0));
}

}  // namespace
}  // namespace lunavox

#include "memory_use.h"

#include <memory>
#include <vector>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::FlatLine;

TEST(MemoryUse, WhatStaysWhereItIsIsFlat) {
  FlatLine line(10);
  for (const std::size_t reading : {1, 500, 900, 1000, 1004, 1000, 1008, 1003}) line.add(reading);
  EXPECT_EQ(line.verdict(), "");
}

TEST(MemoryUse, WhatGrowsFromReadingToReadingIsNot) {
  FlatLine line(10);
  for (std::size_t i = 0; i < 16; ++i) line.add(1000 + 2 * i);
  EXPECT_EQ(line.verdict(), "grows: 1012 at first, 1028 at last, 16 readings");
}

TEST(MemoryUse, TooFewReadingsProveNothing) {
  FlatLine line(10);
  for (int i = 0; i < 7; ++i) line.add(1000);
  EXPECT_EQ(line.verdict(), "there are too few readings");
}

TEST(MemoryUse, WhatIsKeptOfEachRoundShowsOnTheHeap) {
  FlatLine line(1000);
  std::vector<std::unique_ptr<std::vector<char>>> kept;
  for (int i = 0; i < 100; ++i) {
    kept.push_back(std::make_unique<std::vector<char>>(100));
    line.add(test::heap_in_use());
  }
  EXPECT_NE(line.verdict(), "");
}

TEST(MemoryUse, TheProcessHasMemory) {
  EXPECT_GT(test::resident_memory(), 1'000'000U);
}

}  // namespace
}  // namespace lunavox

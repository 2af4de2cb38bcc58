#include "files/event_text.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

std::string written(std::string_view text) {
  std::string bytes;
  midwrite(text, bytes);
  return bytes;
}

TEST(Midwrite, EachPairOfDigitsIsAByte) {
  EXPECT_EQ(written("4D54ff0a"), "MT\xff\x0a");
}

TEST(Midwrite, BlanksCountAsZeros) {
  EXPECT_EQ(written(" 7A1"), "\x07\xa1");
  EXPECT_EQ(written("   6"), std::string("\0\x06", 2));
}

TEST(Midwrite, ATextOfOddLengthEndsWithAByteOfOneDigit) {
  EXPECT_EQ(written("FFA"), "\xff\x0a");
  EXPECT_EQ(written("7"), "\x07");
}

TEST(Midwrite, AppendsToWhatIsThere) {
  std::string bytes = "MThd";
  midwrite("41", bytes);
  EXPECT_EQ(bytes, "MThdA");
  midwrite("", bytes);
  EXPECT_EQ(bytes, "MThdA");
}

TEST(Midwrite, WhatIsNoDigitEndsANumber) {
  EXPECT_EQ(written("4gg4"), std::string("\x04\0", 2));
}

TEST(Reverse, TurnsTheBytesAround) {
  EXPECT_EQ(reverse("7F00B9"), "B9007F");
  EXPECT_EQ(reverse(" 7F9"), "F9 7");
  EXPECT_EQ(reverse(""), "");
}

TEST(Reverse, LosesTheFirstCharacterOfATextOfOddLength) {
  EXPECT_EQ(reverse("A7F00"), "007F");
  EXPECT_EQ(reverse("A"), "");
}

TEST(RightAligned, PadsWithBlanksAndDoesNotCut) {
  EXPECT_EQ(right_aligned(10, 2), " A");
  EXPECT_EQ(right_aligned(500000, 6), " 7A120");
  EXPECT_EQ(right_aligned(0, 4), "   0");
  EXPECT_EQ(right_aligned(0x12345, 4), "12345");
}

TEST(ComputedDelta, IsOneByteBelow128) {
  EXPECT_EQ(computed_delta(1), " 1");
  EXPECT_EQ(computed_delta(127), "7F");
}

TEST(ComputedDelta, DividesBy127FromThereOn) {
  EXPECT_EQ(written(computed_delta(128)), "\x81\x01");
  EXPECT_EQ(written(computed_delta(200)), "\x81\x49");
  EXPECT_EQ(written(computed_delta(254)), std::string("\x82\0", 2));
}

TEST(ComputedDelta, AQuotientOfSixteenIsNotCut) {
  EXPECT_EQ(computed_delta(16 * 127), "810 0");
}

TEST(EventText, IsComposedLastByteFirst) {
  EventText event;
  event.data(0x64).data(7).status('B', 9).delta("01");
  EXPECT_EQ(event.text(), "64 7B901");
  EXPECT_EQ(written(reverse(event.text())), "\x01\xb9\x07\x64");
}

TEST(EventText, AValueLongerThanItsFieldIsNotCut) {
  EXPECT_EQ(EventText().data(300).data(0xFFFF).text(), "12CFFFF");
}

}  // namespace
}  // namespace lunavox

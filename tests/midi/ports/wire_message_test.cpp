#include "midi/ports/wire_message.h"

#include <vector>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes wire(std::uint32_t packed) {
  const WireMessage message = to_wire(packed);
  return {message.bytes.begin(), message.bytes.begin() + message.size};
}

TEST(WireMessage, ANoteIsStatusThenNoteThenVelocity) {
  EXPECT_EQ(wire(0x643C90), (Bytes{0x90, 0x3C, 0x64}));
}

TEST(WireMessage, AVolumeOf255KeepsItsLowSevenBits) {
  EXPECT_EQ(wire(0xFF07B0), (Bytes{0xB0, 0x07, 0x7F}));
}

TEST(WireMessage, AFirstDataByteAbove127KeepsItsLowSevenBits) {
  EXPECT_EQ(wire(0x40BC90), (Bytes{0x90, 0x3C, 0x40}));
}

TEST(WireMessage, TheMessageZeroIsNotPutOnTheWire) {
  EXPECT_EQ(wire(0), Bytes{});
}

TEST(WireMessage, AMessageWithoutAStatusByteIsNotPutOnTheWire) {
  EXPECT_EQ(wire(0x643C7F), Bytes{});
}

TEST(WireMessage, ProgramChangeAndChannelPressureHaveOneDataByte) {
  EXPECT_EQ(wire(0x005C9), (Bytes{0xC9, 0x05}));
  EXPECT_EQ(wire(0x7F40D2), (Bytes{0xD2, 0x40}));
}

TEST(WireMessage, WhatIsPackedAboveTheThirdByteIsNotSent) {
  EXPECT_EQ(wire(0x12400AB3), (Bytes{0xB3, 0x0A, 0x40}));
}

TEST(WireMessage, EachStatusHasItsLength) {
  EXPECT_EQ(wire_length(0x7F), 0u);
  EXPECT_EQ(wire_length(0x80), 3u);
  EXPECT_EQ(wire_length(0x9F), 3u);
  EXPECT_EQ(wire_length(0xA0), 3u);
  EXPECT_EQ(wire_length(0xBF), 3u);
  EXPECT_EQ(wire_length(0xC0), 2u);
  EXPECT_EQ(wire_length(0xDF), 2u);
  EXPECT_EQ(wire_length(0xEF), 3u);
  EXPECT_EQ(wire_length(0xF0), 0u);
  EXPECT_EQ(wire_length(0xF1), 2u);
  EXPECT_EQ(wire_length(0xF2), 3u);
  EXPECT_EQ(wire_length(0xF3), 2u);
  EXPECT_EQ(wire_length(0xF4), 0u);
  EXPECT_EQ(wire_length(0xF6), 1u);
  EXPECT_EQ(wire_length(0xF7), 0u);
  EXPECT_EQ(wire_length(0xF8), 1u);
  EXPECT_EQ(wire_length(0xFE), 1u);
  EXPECT_EQ(wire_length(0xFF), 1u);
}

TEST(WireMessage, ACompleteMessageReceivedIsPackedWithTheStatusLowest) {
  EXPECT_EQ(from_wire(Bytes{0x90, 0x3C, 0x40}), 0x403C90u);
  EXPECT_EQ(from_wire(Bytes{0x80, 0x3C, 0x00}), 0x003C80u);
  EXPECT_EQ(from_wire(Bytes{0xC9, 0x05}), 0x05C9u);
}

TEST(WireMessage, AnIncompleteMessageReceivedIsNone) {
  EXPECT_EQ(from_wire(Bytes{}), std::nullopt);
  EXPECT_EQ(from_wire(Bytes{0x90, 0x3C}), std::nullopt);
  EXPECT_EQ(from_wire(Bytes{0x3C, 0x40}), std::nullopt);
}

TEST(WireMessage, BytesThatAreMoreThanOneShortMessageAreNone) {
  EXPECT_EQ(from_wire(Bytes{0xC0, 0x05, 0x06}), std::nullopt);
  EXPECT_EQ(from_wire(Bytes{0x90, 0x3C, 0x90}), std::nullopt);
  EXPECT_EQ(from_wire(Bytes{0xF0, 0x43, 0xF7}), std::nullopt);
}

}  // namespace
}  // namespace lunavox

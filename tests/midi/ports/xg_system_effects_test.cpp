#include "midi/ports/xg_system_effects.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

SysExBytes choice(std::uint8_t address, std::uint8_t msb, std::uint8_t lsb) {
  return {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, address, msb, lsb, 0xF7};
}

TEST(XgSystemEffects, SystemOnChoosesTheFirstTypes) {
  const SysExBytes system_on = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};
  ASSERT_TRUE(reverb_chosen_by(system_on));
  EXPECT_EQ(reverb_chosen_by(system_on)->room_size, 0.40);
  ASSERT_TRUE(chorus_chosen_by(system_on));
  EXPECT_EQ(chorus_chosen_by(system_on)->voices, 3);
}

TEST(XgSystemEffects, AReverbTypeIsNoChorusTypeAndTheOtherWayRound) {
  EXPECT_TRUE(reverb_chosen_by(choice(0x00, 0x13, 0x00)));  // Basement
  EXPECT_FALSE(chorus_chosen_by(choice(0x00, 0x13, 0x00)));
  EXPECT_TRUE(chorus_chosen_by(choice(0x20, 0x43, 0x08)));  // Flanger 3
  EXPECT_FALSE(reverb_chosen_by(choice(0x20, 0x43, 0x08)));
}

TEST(XgSystemEffects, EveryTypeThatTheListsOfferIsKnown) {
  for (const int code :
       {0x0100, 0x0101, 0x0200, 0x0201, 0x0202, 0x0300, 0x0301, 0x0400, 0x1000, 0x1100, 0x1300}) {
    EXPECT_TRUE(reverb_chosen_by(
        choice(0x00, static_cast<std::uint8_t>(code >> 8), static_cast<std::uint8_t>(code))))
        << code;
  }
  for (const int code :
       {0x4100, 0x4101, 0x4102, 0x4108, 0x4200, 0x4201, 0x4202, 0x4208, 0x4300, 0x4301, 0x4308}) {
    EXPECT_TRUE(chorus_chosen_by(
        choice(0x20, static_cast<std::uint8_t>(code >> 8), static_cast<std::uint8_t>(code))))
        << code;
  }
}

TEST(XgSystemEffects, OtherMessagesAndTypesChooseNothing) {
  EXPECT_FALSE(reverb_chosen_by(choice(0x00, 0x7F, 0x00)));
  EXPECT_FALSE(reverb_chosen_by(choice(0x40, 0x05, 0x00)));  // a variation type
  EXPECT_FALSE(reverb_chosen_by({0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0xF7}));
  EXPECT_FALSE(reverb_chosen_by({}));
  EXPECT_FALSE(chorus_chosen_by({0xF0, 0xF7}));
}

}  // namespace
}  // namespace lunavox

#include "midi/voice_setup.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;

TEST(StartEffect, EveryTrackGetsItsBankItsProgramAndASilentNote) {
  test::Studio studio;
  studio.song.values.at(1, kInstrument, 1) = 8;
  studio.song.bank.at(2) = 18;
  studio.song.values.at(2, kInstrument, 1) = 24;
  starteffect(studio.song, studio.port);
  EXPECT_EQ(studio.sent(), (Messages{0x7F00B9, 0x0020B9, 0x08C9, 0x3099,  //
                                     0x0000B0, 0x1220B0, 0x18C0, 0x3090}));
}

TEST(StartEffect, OnlyTheProgramOfTheFirstLineCounts) {
  test::Studio studio;
  studio.song.values.at(2, kInstrument, 1) = 0;
  studio.song.values.at(2, kInstrument, 2) = 99;
  starteffect(studio.song, studio.port);
  EXPECT_EQ(studio.sent()[6], 0xC0U);
}

}  // namespace
}  // namespace lunavox

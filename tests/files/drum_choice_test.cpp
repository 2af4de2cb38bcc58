#include "files/drum_choice.h"

#include "tests/support/voice_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using ::testing::IsEmpty;

struct DrumChoiceTest : test::VoiceBench {
  DrumChoiceTest() { bench.song.current_track = 1; }
};

TEST_F(DrumChoiceTest, OkTakesTheKitAndSendsAllVoices) {
  EXPECT_TRUE(drums.drumok_click(7));
  EXPECT_TRUE(bench.flags.modified);
  EXPECT_EQ(voice_name.get(), "brush");
  EXPECT_EQ(bench.song.values.at(1, 1, 1), 40);
  EXPECT_EQ(bench.song.effects.text(1, 2), "brush");
  EXPECT_EQ(output.take_shorts().at(2), 0x28C9U);
  EXPECT_EQ(drums.current_kit(), 7);
}

TEST_F(DrumChoiceTest, ADoubleClickDoesNotSetModified) {
  EXPECT_TRUE(drums.drumlist_dblclick(2));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_EQ(bench.song.values.at(1, 1, 1), 8);
  EXPECT_EQ(output.take_shorts().size(), 8U);
  bench.flags.modified = true;
  drums.drumlist_dblclick(3);
  EXPECT_TRUE(bench.flags.modified);
}

TEST_F(DrumChoiceTest, NothingHappensWithoutAKitSelected) {
  EXPECT_FALSE(drums.drumok_click(-1));
  EXPECT_FALSE(drums.drumok_click(9));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(DrumChoiceTest, OpensOnTheCurrentKit) {
  EXPECT_EQ(drums.current_kit(), 0);
  bench.song.values.at(1, 1, 1) = 3;
  EXPECT_EQ(drums.current_kit(), -1);
}

}  // namespace
}  // namespace lunavox

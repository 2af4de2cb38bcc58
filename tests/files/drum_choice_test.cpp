#include "files/drum_choice.h"

#include "tests/support/recording_output.h"
#include "tests/support/song_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using ::testing::IsEmpty;

class DrumKitDialog : public ::testing::Test {
 protected:
  DrumKitDialog() {
    bench.tracks.addinstrutrack();
    bench.song.current_track = 1;
    port.open(0);
    output.calls.clear();
    bench.flags.modified = false;
  }

  test::SongBench bench;
  test::RecordingOutput output;
  OutputPort port{output, bench.dialogs};
  Property<std::string> voice_name;
  DrumKits kits = DrumKits::parse("a,0,b,1,c,8,d,16,e,24,f,25,g,32,h,40,i,48");
  VoiceDesk desk{bench.song, bench.flags, port, bench.dialogs, voice_name};
  DrumChoice drums{desk, kits};
};

TEST_F(DrumKitDialog, OkTakesTheKitAndSendsAllVoices) {
  EXPECT_TRUE(drums.drumok_click(7));
  EXPECT_TRUE(bench.flags.modified);
  EXPECT_EQ(voice_name.get(), "h");
  EXPECT_EQ(bench.song.values.at(1, 1, 1), 40);
  EXPECT_EQ(bench.song.effects.text(1, 2), "h");
  EXPECT_EQ(output.take_shorts().at(2), 0x28C9U);
  EXPECT_EQ(drums.current_kit(), 7);
}

TEST_F(DrumKitDialog, ADoubleClickDoesNotSetModified) {
  EXPECT_TRUE(drums.drumlist_dblclick(2));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_EQ(bench.song.values.at(1, 1, 1), 8);
  EXPECT_EQ(output.take_shorts().size(), 8U);
  bench.flags.modified = true;
  drums.drumlist_dblclick(3);
  EXPECT_TRUE(bench.flags.modified);
}

TEST_F(DrumKitDialog, NothingHappensWithoutAKitSelected) {
  EXPECT_FALSE(drums.drumok_click(-1));
  EXPECT_FALSE(drums.drumok_click(9));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(DrumKitDialog, OpensOnTheCurrentKit) {
  EXPECT_EQ(drums.current_kit(), 0);
  bench.song.values.at(1, 1, 1) = 3;
  EXPECT_EQ(drums.current_kit(), -1);
}

}  // namespace
}  // namespace lunavox

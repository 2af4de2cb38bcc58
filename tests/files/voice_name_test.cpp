#include "files/voice_name.h"

#include "tests/support/song_bench.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(VoiceName, IsFoundByBankAndProgram) {
  test::SongBench bench;
  bench.tracks.addinstrutrack();
  const VoiceBanks voices = VoiceBanks::parse("GrandPno,0,0\r\nDream,41,0\r\n");
  const DrumKits kits = DrumKits::parse("a,0,b,1,c,8,d,16,e,24,f,25,g,32,brush,40,i,48");
  EXPECT_EQ(voice_name_of(bench.song, 2, voices, kits), "GrandPno");
  bench.song.bank.at(2) = 41;
  EXPECT_EQ(voice_name_of(bench.song, 2, voices, kits), "Dream");
  bench.song.values.at(1, kInstrument, 1) = 40;
  EXPECT_EQ(voice_name_of(bench.song, 1, voices, kits), "brush");
}

TEST(VoiceName, OfAVoiceThatIsNotListedIsTheSongsOwn) {
  test::SongBench bench;
  bench.tracks.addinstrutrack();
  bench.song.bank.at(2) = 99;
  bench.song.effects.set_text(1, 5, "Mystery");
  bench.song.values.at(1, kInstrument, 1) = 300;
  EXPECT_EQ(voice_name_of(bench.song, 2, VoiceBanks(), DrumKits()), "Mystery");
  EXPECT_EQ(voice_name_of(bench.song, 1, VoiceBanks(), DrumKits()), "standard 1");
}

}  // namespace
}  // namespace lunavox

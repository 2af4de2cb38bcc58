#include "files/voice_search.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

class VoiceSearch : public ::testing::Test {
 protected:
  VoiceBanks banks = VoiceBanks::parse("Grand,0,0,Old Organ,1,0,Organ,0,1,VX El.P1,0,2");
};

TEST_F(VoiceSearch, FindsANameByItsBeginning) {
  EXPECT_EQ(find_voice(banks, "gr", {2, 0}), (VoiceCell{0, 0}));
}

TEST_F(VoiceSearch, PrefersABeginningToAPlaceWithin) {
  EXPECT_EQ(find_voice(banks, "org", {0, 0}), (VoiceCell{1, 0}));
  EXPECT_EQ(find_voice(banks, "rga", {0, 0}), (VoiceCell{0, 1}));
}

TEST_F(VoiceSearch, TakesNoNoticeOfLetterCaseAndBlanks) {
  EXPECT_EQ(find_voice(banks, "vxEL", {0, 0}), (VoiceCell{2, 0}));
  EXPECT_EQ(find_voice(banks, "o l d", {0, 0}), (VoiceCell{0, 1}));
}

TEST_F(VoiceSearch, StaysWhereItIsWhileTheNameFits) {
  EXPECT_EQ(find_voice(banks, "o", {1, 0}), (VoiceCell{1, 0}));
}

TEST_F(VoiceSearch, GoesOnToTheNextAndFromTheLastToTheFirst) {
  EXPECT_EQ(find_voice(banks, "o", {0, 1}, SearchFrom::kNext), (VoiceCell{1, 0}));
  EXPECT_EQ(find_voice(banks, "o", {1, 0}, SearchFrom::kNext), (VoiceCell{0, 1}));
}

TEST_F(VoiceSearch, FindsNothingForAStrangeOrABlankText) {
  EXPECT_EQ(find_voice(banks, "xyz", {0, 0}), std::nullopt);
  EXPECT_EQ(find_voice(banks, " ", {0, 0}), std::nullopt);
  EXPECT_EQ(find_voice(banks, "", {0, 0}), std::nullopt);
}

TEST_F(VoiceSearch, NeverFindsAPlaceWithoutAVoice) {
  EXPECT_EQ(find_voice(banks, "---", {0, 0}), std::nullopt);
}

}  // namespace
}  // namespace lunavox

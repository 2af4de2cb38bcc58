#include "files/voice_choice.h"

#include "tests/support/voice_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct VoiceChoiceTest : test::VoiceBench {
  VoiceChoiceTest()
      : VoiceBench(VoiceBanks::parse("GrandPno,0,0\r\nDream,41,0\r\nBritePno,0,1\r\n"), {}) {}
};

TEST_F(VoiceChoiceTest, PressingACellPlaysItsVoiceOnChannelSixteen) {
  voices.instrulist_mousedown({0, 1});
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x0000BFU, 0x2920BFU, 0x00CFU, 0x7E3C9FU));
  voices.instrulist_mouseup();
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
  voices.instrulist_mouseup();
  EXPECT_THAT(output.take_shorts(), IsEmpty()) << "what is released already";
  voices.instrulist_mousedown({1, 0});
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x0000BFU, 0x0020BFU, 0x01CFU, 0x7E3C9FU));
}

TEST_F(VoiceChoiceTest, OctaveSixPreviewsNote84AndOctaveOneNote24) {
  voices.text1_change("6");
  voices.instrulist_mousedown({0, 0});
  EXPECT_EQ(output.take_shorts().back(), 0x7E549FU);
  voices.instrulist_mouseup();
  EXPECT_EQ(output.take_shorts().back(), 0x00549FU);
  voices.text1_change("1");
  voices.instrulist_mousedown({0, 0});
  EXPECT_EQ(output.take_shorts().back(), 0x7E189FU);
}

TEST_F(VoiceChoiceTest, PressingACellWithoutAVoiceSendsNothing) {
  voices.instrulist_mousedown({0, 2});
  voices.instrulist_mouseup();
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(VoiceChoiceTest, AnEmptyCellPlaysTheBasicVoiceOfItsProgram) {
  voices.instrulist_mousedown({1, 4});
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x0000BFU, 0x0020BFU, 0x01CFU, 0x7E3C9FU));
}

TEST_F(VoiceChoiceTest, NothingSoundsWhilePreviewIsNotTicked) {
  voices.preview = false;
  voices.instrulist_mousedown({0, 0});
  voices.instrulist_mouseup();
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(VoiceChoiceTest, ReleaseEndsTheNoteThatWasPressed) {
  voices.instrulist_mousedown({0, 0});
  voices.text1_change("5");
  output.calls.clear();
  voices.instrulist_mouseup();
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
}

TEST_F(VoiceChoiceTest, TheOctaveIsOneToSixAndABadEntryReturnsToTheLast) {
  EXPECT_EQ(voices.octave.text(), "4");
  EXPECT_FALSE(voices.text1_change("7"));
  EXPECT_FALSE(voices.text1_change("0"));
  EXPECT_FALSE(voices.text1_change("x"));
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(test::error_box("Invalid value (1-6)"),
                                                  test::error_box("Invalid value (1-6)"),
                                                  test::error_box("Invalid value (1-6)")));
  EXPECT_EQ(voices.octave.text(), "4");
  EXPECT_TRUE(voices.text1_change("6"));
  EXPECT_FALSE(voices.text1_change("9"));
  EXPECT_EQ(voices.octave.value(), 6);
}

TEST_F(VoiceChoiceTest, TheOctavesTextIsGreyWhilePreviewIsNotTicked) {
  EXPECT_EQ(voices.octave_colour(), (Colour{255, 255, 255}));
  voices.preview = false;
  EXPECT_EQ(voices.octave_colour(), (Colour{64, 64, 64}));
}

TEST_F(VoiceChoiceTest, OkTakesTheVoiceForTheCurrentTrackAndSendsAllVoices) {
  EXPECT_TRUE(voices.instruok_click({0, 1}));
  EXPECT_TRUE(bench.flags.modified);
  EXPECT_EQ(voice_name.get(), "Dream");
  EXPECT_EQ(bench.song.values.at(2, 1, 1), 0);
  EXPECT_EQ(bench.song.bank.at(2), 41);
  EXPECT_EQ(bench.song.effects.text(1, 5), "Dream");
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x7F00B9U, 0x0020B9U, 0x00C9U, 0x003099U, 0x0000B0U,
                                                0x2920B0U, 0x00C0U, 0x003090U));
  EXPECT_TRUE(voices.instruok_click({1, 0}));
  EXPECT_EQ(bench.song.values.at(2, 1, 1), 1);
  EXPECT_EQ(bench.song.bank.at(2), 0);
}

TEST_F(VoiceChoiceTest, OkOnACellWithoutAVoiceKeepsTheDialogOpen) {
  EXPECT_FALSE(voices.instruok_click({0, 2}));
  EXPECT_FALSE(voices.instruok_click({1, 1})) << "nothing follows the last voice of all";
  const Message refusal = test::error_box("you must select a valid instrument", "error");
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(refusal, refusal));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_EQ(bench.song.effects.text(1, 5), "GrandPno");
  EXPECT_EQ(voice_name.get(), "");
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(VoiceChoiceTest, OpensOnTheCurrentVoice) {
  EXPECT_EQ(voices.current_voice(), (VoiceCell{0, 0}));
  bench.song.bank.at(2) = 41;
  EXPECT_EQ(voices.current_voice(), (VoiceCell{0, 1}));
  bench.song.bank.at(2) = 5;
  EXPECT_EQ(voices.current_voice(), (VoiceCell{0, 0}));
  bench.song.values.at(2, 1, 1) = 1;
  EXPECT_EQ(voices.current_voice(), (VoiceCell{1, 0}));
  bench.song.values.at(2, 1, 1) = -3;
  EXPECT_EQ(voices.current_voice(), (VoiceCell{0, 0}));
}

}  // namespace
}  // namespace lunavox

#include "midi/xg_effects.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

struct Entry {
  std::string name;
  SysExBytes code;

  bool operator==(const Entry&) const = default;
};

std::vector<Entry> entries(XgList list) {
  std::vector<Entry> all;
  for (const std::string& name : xg_names(list)) {
    all.push_back({name, xg_type_code(list, static_cast<int>(all.size()))});
  }
  return all;
}

TEST(XgEffects, TheReverbTypes) {
  EXPECT_EQ(entries(XgList::kReverb), (std::vector<Entry>{{"Hall 1", {0x00, 0x01, 0x00}},
                                                          {"Hall 2", {0x00, 0x01, 0x01}},
                                                          {"Room 1", {0x00, 0x02, 0x00}},
                                                          {"Room 2", {0x00, 0x02, 0x01}},
                                                          {"Room 3", {0x00, 0x02, 0x02}},
                                                          {"Stage 1", {0x00, 0x03, 0x00}},
                                                          {"Stage 2", {0x00, 0x03, 0x01}},
                                                          {"Plate", {0x00, 0x04, 0x00}},
                                                          {"White Room", {0x00, 0x10, 0x00}},
                                                          {"Tunnel", {0x00, 0x11, 0x00}},
                                                          {"Basement", {0x00, 0x13, 0x00}}}));
}

TEST(XgEffects, TheChorusTypes) {
  EXPECT_EQ(entries(XgList::kChorus), (std::vector<Entry>{{"Chorus 1", {0x20, 0x41, 0x00}},
                                                          {"Chorus 2", {0x20, 0x41, 0x01}},
                                                          {"Chorus 3", {0x20, 0x41, 0x02}},
                                                          {"Chorus 4", {0x20, 0x41, 0x08}},
                                                          {"Celeste 1", {0x20, 0x42, 0x00}},
                                                          {"Celeste 2", {0x20, 0x42, 0x01}},
                                                          {"Celeste 3", {0x20, 0x42, 0x02}},
                                                          {"Celeste 4", {0x20, 0x42, 0x08}},
                                                          {"Flanger 1", {0x20, 0x43, 0x00}},
                                                          {"Flanger 2", {0x20, 0x43, 0x01}},
                                                          {"Flanger 3", {0x20, 0x43, 0x08}}}));
}

TEST(XgEffects, TheVariationTypes) {
  EXPECT_EQ(
      entries(XgList::kVariation),
      (std::vector<Entry>{{"Delay LCR", {0x40, 0x05, 0x00}},   {"Delay LR", {0x40, 0x06, 0x00}},
                          {"Echo", {0x40, 0x07, 0x00}},        {"Cross Delay", {0x40, 0x08, 0x00}},
                          {"ER 1", {0x40, 0x09, 0x00}},        {"ER 2", {0x40, 0x09, 0x01}},
                          {"Gate Reverb", {0x40, 0x0A, 0x00}}, {"Reverse Gate", {0x40, 0x0B, 0x00}},
                          {"Karaoke 1", {0x40, 0x14, 0x00}},   {"Karaoke 2", {0x40, 0x14, 0x01}},
                          {"Karaoke 3", {0x40, 0x14, 0x02}},   {"Symphonic", {0x40, 0x44, 0x00}},
                          {"Rotary Spk", {0x40, 0x45, 0x00}},  {"Tremolo", {0x40, 0x46, 0x00}},
                          {"Auto Pan", {0x40, 0x47, 0x00}},    {"Phaser 1", {0x40, 0x48, 0x00}},
                          {"Phaser 2", {0x40, 0x48, 0x08}},    {"Distortion", {0x40, 0x49, 0x00}},
                          {"Overdrive", {0x40, 0x4A, 0x00}},   {"Amp Sim", {0x40, 0x4B, 0x00}},
                          {"3 Band Eq", {0x40, 0x4C, 0x00}},   {"2 Band Eq", {0x40, 0x4D, 0x00}},
                          {"Auto Wah", {0x40, 0x4E, 0x00}}}));
}

class XgEffectsTest : public testing::Test {
 protected:
  test::Studio studio;
  XgEffects xg{studio.song, studio.flags, studio.port};
};

TEST_F(XgEffectsTest, ChoosingPhaser2SendsItsType) {
  xg.variation_click(16);
  EXPECT_EQ(
      studio.output.sysexes(),
      (std::vector<SysExBytes>{{0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x40, 0x48, 0x08, 0xF7}}));
  EXPECT_EQ(studio.song.variation, 16);
  EXPECT_TRUE(studio.flags.modified);
}

TEST_F(XgEffectsTest, ChoosingBasementSendsItsType) {
  xg.reverb_click(10);
  EXPECT_EQ(
      studio.output.sysexes(),
      (std::vector<SysExBytes>{{0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x00, 0x13, 0x00, 0xF7}}));
  EXPECT_EQ(studio.song.reverb, 10);
}

TEST_F(XgEffectsTest, ChoosingAChorusSendsItsType) {
  xg.chorus_click(3);
  EXPECT_EQ(
      studio.output.sysexes(),
      (std::vector<SysExBytes>{{0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x20, 0x41, 0x08, 0xF7}}));
  EXPECT_EQ(studio.song.chorus, 3);
}

TEST_F(XgEffectsTest, ChoosingTheSameEntryAgainSendsItAgain) {
  xg.chorus_click(3);
  xg.chorus_click(3);
  EXPECT_EQ(studio.output.sysexes().size(), 2U);
}

TEST_F(XgEffectsTest, WithoutAValidEntryTheBareMessageIsSent) {
  const SysExBytes bare = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0xF7};
  xg.reverb_click(-1);
  xg.chorus_click(11);
  xg.variation_click(23);
  EXPECT_EQ(studio.output.sysexes(), (std::vector<SysExBytes>{bare, bare, bare}));
}

TEST_F(XgEffectsTest, AFailureToSendIsTold) {
  studio.output.long_result = 1;
  xg.reverb_click(2);
  EXPECT_EQ(studio.dialogs.messages.back().text,
            "Error in sending long message\r\nThe device is busy.");
  EXPECT_EQ(studio.song.reverb, 2) << "the choice stands";
  EXPECT_TRUE(studio.flags.modified);
}

}  // namespace
}  // namespace lunavox

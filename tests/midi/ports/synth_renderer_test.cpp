#include "midi/ports/synth_renderer.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

float peak(const std::vector<float>& sound) {
  float highest = 0;
  for (const float sample : sound) highest = std::max(highest, std::abs(sample));
  return highest;
}

TEST(SynthRenderer, IsSilentBeforeItIsOpened) {
  SynthRenderer renderer;
  const std::vector<float> sound = renderer.render(100);
  EXPECT_EQ(sound.size(), 200u);
  EXPECT_EQ(peak(sound), 0.0F);
}

TEST(SynthRenderer, AMillisecondIsAsManyFramesAsTheRateSays) {
  SynthRenderer renderer({}, 48000);
  EXPECT_EQ(renderer.render_until(1).size(), 2u * 48u);
  EXPECT_EQ(renderer.render_until(125).size(), 2u * 5952u);
}

TEST(SynthRenderer, FramesAddUpHoweverTimeIsCut) {
  SynthRenderer renderer;
  std::size_t frames = 0;
  for (int ms = 1; ms <= 1000; ++ms) frames += renderer.render_until(ms).size() / 2;
  EXPECT_EQ(frames, 44100u);
}

TEST(SynthRenderer, ATimePassedAlreadyRendersNothing) {
  SynthRenderer renderer;
  renderer.render_until(10);
  EXPECT_TRUE(renderer.render_until(10).empty());
  EXPECT_TRUE(renderer.render_until(5).empty());
}

TEST(SynthRenderer, ANoteSentThroughItsDeviceIsInTheSound) {
  SynthRenderer renderer;
  const auto device = renderer.open(kDefaultOutput);
  ASSERT_TRUE(device) << renderer.open_error();
  EXPECT_LT(peak(renderer.render(4410)), 1e-4F);
  device->short_message(0x643C90);
  EXPECT_GT(peak(renderer.render(4410)), 0.01F);
  EXPECT_EQ(device->status(), "");
}

TEST(SynthRenderer, ADrumSoundsOnChannelTen) {
  SynthRenderer renderer;
  const auto device = renderer.open(0);
  ASSERT_TRUE(device) << renderer.open_error();
  device->short_message(0x642699);
  EXPECT_GT(peak(renderer.render(4410)), 0.01F);
}

TEST(SynthRenderer, ASoundFontThatIsMissingIsToldWhenItIsOpened) {
  SynthRenderer renderer("/no/such.sf2");
  EXPECT_EQ(renderer.names(), std::vector<std::string>{"Built-in synthesiser"});
  EXPECT_EQ(renderer.open(0), nullptr);
  EXPECT_EQ(renderer.open_error(), "The SoundFont \"/no/such.sf2\" does not exist.");
}

}  // namespace
}  // namespace lunavox

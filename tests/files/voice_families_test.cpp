#include "files/voice_families.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(VoiceFamilies, AreSixteenOfEightPrograms) {
  EXPECT_EQ(voice_family(0), "Piano");
  EXPECT_EQ(voice_family(7), "Piano");
  EXPECT_EQ(voice_family(8), "Chromatic Percussion");
  EXPECT_EQ(voice_family(32), "Bass");
  EXPECT_EQ(voice_family(56), "Brass");
  EXPECT_EQ(voice_family(80), "Synth Lead");
  EXPECT_EQ(voice_family(119), "Percussive");
  EXPECT_EQ(voice_family(120), "Sound Effects");
  EXPECT_EQ(voice_family(127), "Sound Effects");
}

}  // namespace
}  // namespace lunavox

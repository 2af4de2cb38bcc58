#include "grid/effect.h"

#include "grid/runtime_error.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(Effect, ElevenCurvesHaveNames) {
  const char* expected[] = {"Instrument", "Volume",  "Pan",    "Modulation",
                            "Brightness", "Reverb",  "Chorus", "Variation",
                            "Attack",     "Release", "Pitch"};
  for (int e = 1; e <= 11; ++e) EXPECT_EQ(effect_name(e), expected[e - 1]);
  EXPECT_THROW(effect_name(0), RuntimeError);
  EXPECT_THROW(effect_name(12), RuntimeError);
}

}  // namespace
}  // namespace lunavox

#include "shortest_script.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Action;
using test::Deed;
using test::Outcome;
using test::Script;

Script waits(int count) {
  Script script;
  for (int i = 0; i < count; ++i) script.push_back({Deed::kWait, i, 0});
  return script;
}

TEST(ShortestScript, KeepsOnlyTheActionsThatItTakesToFail) {
  // Fails once 17 and later 60 have been waited.
  const auto replay = [](const Script& script) -> Outcome {
    bool ready = false;
    for (std::size_t i = 0; i < script.size(); ++i) {
      if (script[i].a == 17) ready = true;
      if (ready && script[i].a == 60) return {"wrong", i + 1};
    }
    return {};
  };
  EXPECT_EQ(as_text(shortest_script(waits(100), replay)),
            "  {Deed::kWait, 17, 0},\n  {Deed::kWait, 60, 0},\n");
}

TEST(ShortestScript, LeavesOutPairsThatOnlyGoTogether) {
  // Fails at the end of every script of 90 in which 3 and 70 are both there or both missing.
  const auto replay = [](const Script& script) -> Outcome {
    const auto has = [&](int a) {
      return std::any_of(script.begin(), script.end(), [&](const Action& x) { return x.a == a; });
    };
    if (has(3) == has(70) && has(90)) return {"wrong", script.size()};
    return {};
  };
  EXPECT_EQ(as_text(shortest_script(waits(100), replay)), "  {Deed::kWait, 90, 0},\n");
}

}  // namespace
}  // namespace lunavox

#include "shortest_script.h"

#include "waits.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Action;
using test::Deed;
using test::Outcome;
using test::Script;
using test::waits;

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

TEST(ShortestScript, IsWhatWasFoundWhenTheTimeIsOver) {
  const auto replay = [](const Script& script) -> Outcome { return {"wrong", script.size()}; };
  const auto never = test::for_a_while(replay, std::chrono::milliseconds(0));
  EXPECT_EQ(shortest_script(waits(10), never).size(), 10U);
  const auto long_enough = test::for_a_while(replay, std::chrono::hours(1));
  EXPECT_LT(shortest_script(waits(10), long_enough).size(), 10U);
}

/// Ten rounds of a wait and a tidy-up, the last without its end.
Script rounds() {
  Script script;
  for (int i = 0; i < 10; ++i) {
    script.push_back({Deed::kWait, i, 0});
    script.push_back({Deed::kTidyUp, 0, 0});
  }
  script.pop_back();
  return script;
}

/// Fails at the end of a script in which a number has been waited.
test::Replay fails_with(int a) {
  return [a](const Script& script) -> Outcome {
    const bool fails =
        std::any_of(script.begin(), script.end(), [a](const Action& x) { return x.a == a; });
    return fails ? Outcome{"wrong", script.size()} : Outcome{};
  };
}

TEST(FailingEnd, IsOfTheLastRoundsAsFewAsFail) {
  EXPECT_EQ(as_text(failing_end(rounds(), fails_with(9), 100)), "  {Deed::kWait, 9, 0},\n");
  EXPECT_EQ(as_text(failing_end(rounds(), fails_with(8), 100)),
            "  {Deed::kWait, 8, 0},\n  {Deed::kTidyUp, 0, 0},\n  {Deed::kWait, 9, 0},\n");
  EXPECT_EQ(failing_end(rounds(), fails_with(7), 100).size(), 7U);
  EXPECT_EQ(failing_end(rounds(), fails_with(1), 100).size(), 19U);
}

TEST(FailingEnd, IsEmptyWhereTheRoundsAloneDoNotFail) {
  EXPECT_TRUE(failing_end(rounds(), fails_with(99), 100).empty());
}

TEST(FailingEnd, IsSoughtUpToABoundOfActions) {
  EXPECT_EQ(failing_end(rounds(), fails_with(6), 7).size(), 7U);
  EXPECT_TRUE(failing_end(rounds(), fails_with(5), 7).empty());
}

}  // namespace
}  // namespace lunavox

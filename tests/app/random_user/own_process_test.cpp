#include "own_process.h"

#include "waits.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include <gtest/gtest.h>
#include <unistd.h>

namespace lunavox {
namespace {

using test::Outcome;
using test::Script;
using test::waits;

/// A replay with a fault that shows once 17 and later 60 have been waited.
test::ToldReplay with_fault(const std::function<void()>& fault) {
  return [fault](const Script& script, const std::function<void()>& begin_action) -> Outcome {
    bool ready = false;
    for (const test::Action& action : script) {
      begin_action();
      if (action.a == 17) ready = true;
      if (ready && action.a == 60) fault();
    }
    return {};
  };
}

TEST(OwnProcess, TellsWhatIsWrongAndAfterHowManyActions) {
  const auto replay = [](const Script&, const std::function<void()>& begin_action) -> Outcome {
    begin_action();
    begin_action();
    return {"two\nlines", 2};
  };
  const Outcome outcome = in_own_process(waits(9), replay);
  EXPECT_EQ(outcome.wrong, "two\nlines");
  EXPECT_EQ(outcome.actions, 2U);
}

TEST(OwnProcess, TellsNothingWhereNothingIsWrong) {
  EXPECT_EQ(in_own_process(waits(9), with_fault([] { std::abort(); })).wrong, "");
}

TEST(OwnProcess, TellsInWhichActionTheProgramDies) {
  const Outcome outcome = in_own_process(waits(100), with_fault([] { ::raise(SIGKILL); }));
  EXPECT_EQ(outcome.wrong, "the program is ended by signal 9");
  EXPECT_EQ(outcome.actions, 61U);
  EXPECT_EQ(in_own_process(waits(100), with_fault([] { std::_Exit(3); })).wrong,
            "the program ends with status 3");
}

TEST(OwnProcess, AnExceptionThatNobodyCatchesEndsTheProgram) {
  const test::QuietErrors quiet;
  const auto fault = [] { throw std::out_of_range("far out"); };
  EXPECT_EQ(in_own_process(waits(100), with_fault(fault)).wrong,
            "the program is ended by signal 6");
}

TEST(OwnProcess, TellsInWhichActionTheProgramHangs) {
  const auto hang = [] {
    while (true) ::pause();
  };
  const Outcome outcome =
      in_own_process(waits(100), with_fault(hang), std::chrono::milliseconds(200));
  EXPECT_EQ(outcome.wrong, "the program hangs");
  EXPECT_EQ(outcome.actions, 61U);
}

TEST(OwnProcess, AScriptThatKillsTheProgramIsShortened) {
  const auto replay = [](const Script& script) {
    return in_own_process(script, with_fault([] { ::raise(SIGKILL); }));
  };
  EXPECT_EQ(as_text(shortest_script(waits(100), replay)),
            "  {Deed::kWait, 17, 0},\n  {Deed::kWait, 60, 0},\n");
}

}  // namespace
}  // namespace lunavox

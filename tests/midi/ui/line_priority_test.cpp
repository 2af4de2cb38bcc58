#include "midi/ui/line_priority.h"

#include <thread>

#include <gtest/gtest.h>
#include <sched.h>

namespace lunavox {
namespace {

/// How the system schedules the thread that asks.
int policy() {
  return sched_getscheduler(0) & ~SCHED_RESET_ON_FORK;
}

/// Whether the system lets this user's threads run before others.
bool permitted() {
  bool granted = false;
  std::thread([&granted] {
    sched_param parameters{};
    parameters.sched_priority = sched_get_priority_min(SCHED_RR);
    granted = sched_setscheduler(0, SCHED_RR, &parameters) == 0;
  }).join();
  return granted;
}

TEST(LinePriority, AThreadRunsBeforeOthersWhereItMayAndUntilItIsTakenBack) {
  run_before_others(true);
  EXPECT_EQ(policy(), permitted() ? SCHED_RR : SCHED_OTHER);
  run_before_others(false);
  EXPECT_EQ(policy(), SCHED_OTHER);
}

TEST(LinePriority, AThreadThatIsStartedMeanwhileRunsLikeOthers) {
  run_before_others(true);
  int started = SCHED_RR;
  std::thread([&started] { started = policy(); }).join();
  run_before_others(false);
  EXPECT_EQ(started, SCHED_OTHER);
}

}  // namespace
}  // namespace lunavox

#include "app/ui/loop_driver.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
#include <thread>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// Counts its passes, is due as often as it is told, and does what it is told in a pass.
class CountingLoop : public Loop {
 public:
  void pass(std::uint32_t now) override {
    ++passes;
    if (due) {
      *due += 10;
      if (lines_left > 0 && --lines_left == 0) due.reset();
    }
    last = now;
    if (in_pass) in_pass();
  }
  std::optional<std::uint32_t> next_due() const override { return due; }

  int passes = 0;
  int lines_left = 0;
  std::uint32_t last = 0;
  std::optional<std::uint32_t> due;
  std::function<void()> in_pass;
};

struct LoopDriverTest : testing::Test {
  static void settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  ManualClock clock;
  CurrentLoop current;
  CountingLoop loop;
  LoopDriver driver{current, clock};
};

TEST_F(LoopDriverTest, AWaitingLoopIsNotPassedWithoutCause) {
  current.set(&loop);
  settle();
  const int passes = loop.passes;
  settle();
  EXPECT_EQ(loop.passes, passes);
}

TEST_F(LoopDriverTest, ManyWakesFromAnyThreadMakeOnePass) {
  current.set(&loop);
  settle();
  loop.passes = 0;
  std::thread([this] {
    for (int i = 0; i < 100; ++i) driver.wake();
  }).join();
  settle();
  EXPECT_EQ(loop.passes, 1);
}

TEST_F(LoopDriverTest, OverdueLinesAreCaughtUpOneAPassWithWindowEventsBetween) {
  loop.due = 0;
  loop.lines_left = 4;
  clock.set(100);
  int events = 0;
  loop.in_pass = [&] {
    QMetaObject::invokeMethod(
        &driver, [&] { ++events; }, Qt::QueuedConnection);
  };
  std::vector<int> events_at_pass;
  auto count = loop.in_pass;
  loop.in_pass = [&] {
    events_at_pass.push_back(events);
    count();
  };
  current.set(&loop);
  for (int i = 0; i < 20; ++i) settle();
  EXPECT_EQ(loop.passes, 4);
  EXPECT_EQ(events_at_pass, (std::vector<int>{0, 1, 2, 3}));
}

TEST_F(LoopDriverTest, NoPassBeginsInsideAnother) {
  int depth = 0;
  int deepest = 0;
  bool first = true;
  loop.in_pass = [&] {
    deepest = std::max(deepest, ++depth);
    if (first) {
      first = false;
      // As a message box does: events are handled inside the pass.
      driver.wake();
      settle();
    }
    --depth;
  };
  current.set(&loop);
  settle();
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(loop.passes, 2) << "what came meanwhile is dealt with afterwards";
}

TEST_F(LoopDriverTest, WithoutALoopNothingIsDriven) {
  current.set(&loop);
  current.set(nullptr);
  settle();
  EXPECT_EQ(loop.passes, 0);
}

}  // namespace
}  // namespace lunavox

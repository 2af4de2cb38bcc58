#include "midi/ui/loop_driver.h"

#include "counting_loop.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QTimer>
#include <thread>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::CountingLoop;
using test::TickingClock;

struct LoopDriverTest : testing::Test {
  static void settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  /// Begins to play once what is about to open has its own event loop running, and closes that
  /// with the third line, or without lines after a while.
  void play_three_lines_in(const std::function<void()>& close) {
    constexpr int kPatienceMs = 5000;
    loop.due = 0;
    loop.lines_left = 3;
    clock.set(100);
    loop.in_pass = [this, close] {
      if (loop.passes == 3) close();
    };
    QTimer::singleShot(0, &driver, [this] { current.set(&loop); });
    QTimer::singleShot(kPatienceMs, &driver, close);
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

TEST_F(LoopDriverTest, LinesGoOnWhileABoxStandsOpen) {
  QDialog box;
  play_three_lines_in([&box] { box.close(); });
  box.exec();
  EXPECT_EQ(loop.passes, 3);
}

TEST_F(LoopDriverTest, LinesGoOnWhileAMenuIsOpen) {
  QMenu menu;
  menu.addAction(QStringLiteral("New"));
  play_three_lines_in([&menu] { menu.close(); });
  menu.exec(QPoint(0, 0));
  EXPECT_EQ(loop.passes, 3);
}

TEST_F(LoopDriverTest, WorkThatEndsBeforeTheNextLineBeginsAtOnce) {
  current.set(&loop);
  settle();
  loop.passes = 0;
  loop.due = 21;
  driver.make_room(20);
  EXPECT_EQ(loop.passes, 0);
}

TEST_F(LoopDriverTest, WorkWithoutALineToComeBeginsAtOnce) {
  current.set(&loop);
  settle();
  loop.passes = 0;
  driver.make_room(20);
  EXPECT_EQ(loop.passes, 0);
}

TEST_F(LoopDriverTest, NoPassBeginsInsideAnotherForWorkThatTakesLong) {
  loop.in_pass = [&] { driver.make_room(20); };
  loop.due = 0;
  loop.lines_left = 1;
  current.set(&loop);
  settle();
  EXPECT_EQ(loop.passes, 1);
}

TEST_F(LoopDriverTest, HurryIsAskedForWhileLinesComeDue) {
  std::string asked;
  {
    LoopDriver hurried(current, clock, [&asked](bool lines) { asked += lines ? "on " : "off "; });
    current.set(&loop);
    settle();
    EXPECT_EQ(asked, "") << "a loop that only waits for what arrives";
    loop.due = 1000;
    current.set(&loop);
    settle();
    hurried.wake();
    settle();
    EXPECT_EQ(asked, "on ");
    loop.due.reset();
    current.set(&loop);
    settle();
    EXPECT_EQ(asked, "on off ");
    loop.due = 1000;
    current.set(&loop);
    settle();
  }
  EXPECT_EQ(asked, "on off on off ") << "and taken back at the end";
}

/// With a clock that goes on by itself.
struct RunningLoopDriverTest : LoopDriverTest {
  TickingClock ticking{100};
  LoopDriver running{current, ticking};
};

TEST_F(RunningLoopDriverTest, ALineThatComesDueDuringLongWorkIsPlayedBeforeIt) {
  current.set(&loop);
  settle();
  loop.passes = 0;
  loop.due = ticking.timeGetTime() + 8;
  loop.lines_left = 1;
  const std::uint32_t due = *loop.due;
  running.make_room(20);
  EXPECT_EQ(loop.passes, 1);
  EXPECT_GE(loop.last, due);
}

TEST_F(RunningLoopDriverTest, WhatArrivesWhileALineIsWaitedForIsDealtWith) {
  current.set(&loop);
  settle();
  loop.passes = 0;
  loop.due = ticking.timeGetTime() + 18;
  running.wake();
  running.make_room(20);
  EXPECT_EQ(loop.passes, 2) << "one for what has arrived, one for the line";
}

}  // namespace
}  // namespace lunavox

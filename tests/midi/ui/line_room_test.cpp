#include "midi/ui/line_room.h"

#include "counting_loop.h"
#include "midi/ui/loop_driver.h"

#include <QMenu>
#include <QResizeEvent>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// What is shown, written down, and how long that takes.
struct Paint {
  void operator()(const char* what) {
    story += what;
    clock.advance(takes_ms);
  }

  ManualClock& clock;
  std::string& story;
  std::uint32_t takes_ms = 0;
};

/// A window in which something has changed.
class ChangedWindow : public QWidget {
 public:
  explicit ChangedWindow(Paint& paint) : paint_(paint) {}

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::UpdateRequest) paint_("paint ");
    return QWidget::event(event);
  }

 private:
  Paint& paint_;
};

/// A window that the window system has resized.
class ResizedWindow : public QWindow {
 public:
  explicit ResizedWindow(Paint& paint) : paint_(paint) {}

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override { paint_("resize "); }

 private:
  Paint& paint_;
};

struct LineRoomTest : testing::Test {
  LineRoomTest() {
    current.set(&loop);
    QCoreApplication::processEvents();
    loop.in_pass = [this] { story += "line "; };
  }

  /// A line is due in so many milliseconds.
  void line_in(int ms) { loop.due = clock.timeGetTime() + static_cast<std::uint32_t>(ms); }
  void resize() {
    QResizeEvent event({200, 100}, {100, 100});
    QCoreApplication::sendEvent(&resized, &event);
  }
  void repaint() {
    QEvent event(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&changed, &event);
  }
  void choose_in_menu() {
    QMenu menu;
    QObject::connect(menu.addAction(QStringLiteral("Save as")), &QAction::triggered, &menu,
                     [this] { story += "command "; });
    menu.popup({});
    menu.setActiveAction(menu.actions().first());
    QTest::keyClick(&menu, Qt::Key_Return);
  }
  /// Lets the editor learn what painting takes.
  void paint_often(std::uint32_t takes_ms, int times = 30) {
    loop.due.reset();
    paint.takes_ms = takes_ms;
    for (int i = 0; i < times; ++i) {
      resize();
      repaint();
    }
    story.clear();
  }

  ManualClock clock{1000};
  CurrentLoop current;
  test::CountingLoop loop;
  LoopDriver driver{current, clock};
  LineRoom room{driver, clock};
  std::string story;
  Paint paint{clock, story};
  ChangedWindow changed{paint};
  ResizedWindow resized{paint};
};

TEST_F(LineRoomTest, AResizeThatWouldNotEndBeforeTheNextLineComesAfterIt) {
  paint_often(12);
  line_in(12);
  resize();
  EXPECT_EQ(story, "line resize ");
}

TEST_F(LineRoomTest, AResizeThatEndsBeforeTheNextLineDoesNotWaitForIt) {
  paint_often(12);
  line_in(14);
  resize();
  EXPECT_EQ(story, "resize ");
}

TEST_F(LineRoomTest, ARepaintThatWouldNotEndBeforeTheNextLineIsHeldBackUntilAfterIt) {
  paint_often(12);
  line_in(12);
  repaint();
  EXPECT_EQ(story, "") << "no line either: a handler that asks to paint is not done yet";
  clock.advance(12);
  loop.lines_left = 1;
  driver.wake();
  ASSERT_TRUE(QTest::qWaitFor([this] { return story.size() > 5; }));
  EXPECT_EQ(story, "line paint ");
}

TEST_F(LineRoomTest, ARepaintThatEndsBeforeTheNextLineIsDoneAtOnce) {
  paint_often(12);
  line_in(14);
  repaint();
  EXPECT_EQ(story, "paint ");
}

TEST_F(LineRoomTest, ALineThatIsLateAlreadyComesBeforeARepaint) {
  paint_often(12);
  line_in(-1);
  repaint();
  EXPECT_EQ(story, "");
  ASSERT_TRUE(QTest::qWaitFor([this] { return story.size() > 5; }));
  EXPECT_EQ(story, "line paint ");
}

/// Resizes that follow each other fill all the room between lines.
TEST_F(LineRoomTest, ARepaintThatWasHeldBackComesBeforeTheNextResize) {
  paint_often(12);
  line_in(5);
  repaint();
  line_in(25);
  resize();
  EXPECT_EQ(story, "paint line resize ");
  bool later = false;
  QTimer::singleShot(5, [&later] { later = true; });
  ASSERT_TRUE(QTest::qWaitFor([&later] { return later; }));
  EXPECT_EQ(story, "paint line resize ") << "once";
}

TEST_F(LineRoomTest, ARepaintThatWasHeldBackDoesNotDelayTheLineAfterThatEither) {
  paint_often(12);
  line_in(5);
  repaint();
  line_in(12);
  ASSERT_TRUE(QTest::qWaitFor([this] { return story.size() > 5; }));
  EXPECT_EQ(story, "line paint ");
}

TEST_F(LineRoomTest, AWindowThatIsGoneIsNotRepainted) {
  paint_often(12);
  line_in(5);
  {
    ChangedWindow gone(paint);
    QEvent event(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&gone, &event);
  }
  line_in(25);
  resize();
  EXPECT_EQ(story, "resize ");
}

TEST_F(LineRoomTest, PaintingThatHasBecomeQuickerWaitsForLess) {
  paint_often(12);
  paint_often(1, 200);
  line_in(3);
  resize();
  line_in(3);
  repaint();
  EXPECT_EQ(story, "resize paint ");
}

TEST_F(LineRoomTest, ARepaintThatWasFarSlowerThanTheOthersIsReckonedWithForAWhile) {
  paint_often(2, 200);
  paint_often(12, 1);
  paint_often(2);
  line_in(10);
  resize();
  EXPECT_EQ(story, "line resize ");
}

TEST_F(LineRoomTest, NoRepaintWaitsLongerThanThirtyMilliseconds) {
  paint_often(100);
  line_in(31);
  resize();
  line_in(31);
  repaint();
  EXPECT_EQ(story, "resize paint ");
}

TEST_F(LineRoomTest, WithoutLinesEverythingIsPaintedOnceAndAtOnce) {
  resize();
  repaint();
  EXPECT_EQ(story, "resize paint ");
}

TEST_F(LineRoomTest, WhatAMenuBeginsComesAfterALineThatIsDueSoon) {
  line_in(20);
  choose_in_menu();
  EXPECT_EQ(story, "line command ");
}

TEST_F(LineRoomTest, WhatAMenuBeginsWaitsForNoLineThatIsFurtherAway) {
  line_in(21);
  choose_in_menu();
  EXPECT_EQ(story, "command ");
}

}  // namespace
}  // namespace lunavox

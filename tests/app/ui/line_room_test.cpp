#include "app/ui/line_room.h"

#include "app/ui/loop_driver.h"
#include "counting_loop.h"

#include <QMenu>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// A window that writes down when it is repainted, which takes as long as it is told.
class SlowWindow : public QWindow {
 public:
  SlowWindow(ManualClock& clock, std::string& story) : clock_(clock), story_(story) {}

  std::uint32_t takes_ms = 0;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::UpdateRequest) {
      story_ += "repaint ";
      clock_.advance(takes_ms);
    }
    return QWindow::event(event);
  }

 private:
  ManualClock& clock_;
  std::string& story_;
};

struct LineRoomTest : testing::Test {
  LineRoomTest() {
    current.set(&loop);
    QCoreApplication::processEvents();
    loop.in_pass = [this] { story += "line "; };
  }

  /// A line is due in so many milliseconds.
  void line_in(std::uint32_t ms) { loop.due = clock.timeGetTime() + ms; }
  void repaint() {
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &request);
  }
  /// Lets the editor know what a repaint takes.
  void repaint_often() {
    loop.due.reset();
    for (int i = 0; i < 30; ++i) repaint();
    story.clear();
  }

  ManualClock clock{1000};
  CurrentLoop current;
  test::CountingLoop loop;
  LoopDriver driver{current, clock};
  LineRoom room{driver, clock};
  std::string story;
  SlowWindow window{clock, story};
};

TEST_F(LineRoomTest, ARepaintThatWouldNotEndBeforeTheNextLineComesAfterIt) {
  window.takes_ms = 12;
  repaint_often();
  line_in(12);
  repaint();
  EXPECT_EQ(story, "line repaint ");
}

TEST_F(LineRoomTest, ARepaintThatEndsBeforeTheNextLineDoesNotWaitForIt) {
  window.takes_ms = 12;
  repaint_often();
  line_in(14);
  repaint();
  EXPECT_EQ(story, "repaint ");
}

TEST_F(LineRoomTest, ShorterRepaintsWaitForLessAfterAWhile) {
  window.takes_ms = 12;
  repaint_often();
  window.takes_ms = 1;
  repaint_often();
  line_in(3);
  repaint();
  EXPECT_EQ(story, "repaint ");
}

TEST_F(LineRoomTest, NoRepaintWaitsForMoreThanTwentyMilliseconds) {
  window.takes_ms = 100;
  repaint_often();
  line_in(21);
  repaint();
  EXPECT_EQ(story, "repaint ");
}

TEST_F(LineRoomTest, EachRepaintIsDoneOnce) {
  for (int i = 0; i < 3; ++i) repaint();
  EXPECT_EQ(story, "repaint repaint repaint ");
}

TEST_F(LineRoomTest, WhatAMenuBeginsComesAfterALineThatIsDueSoon) {
  QMenu menu;
  QObject::connect(menu.addAction(QStringLiteral("Save as")), &QAction::triggered, &menu,
                   [this] { story += "command "; });
  menu.popup({});
  menu.setActiveAction(menu.actions().first());
  line_in(20);
  QTest::keyClick(&menu, Qt::Key_Return);
  EXPECT_EQ(story, "line command ");
}

}  // namespace
}  // namespace lunavox

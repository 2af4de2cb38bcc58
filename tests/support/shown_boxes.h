#pragma once

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

#include <gtest/gtest.h>

namespace lunavox::test {

/// Sits before the screen: does what was arranged with each box that comes up, in order. A box that
/// nobody expects, and one that does not come, fail the test.
class ShownBoxes : public QObject {
 public:
  ShownBoxes() { look_again(); }
  ~ShownBoxes() override { EXPECT_TRUE(steps_.empty()) << steps_.size() << " boxes did not come"; }

  /// Arranges what is to be done with the next box.
  template <class Box>
  void next(std::function<void(Box&)> act) {
    steps_.push_back([act](QWidget& shown) {
      auto* box = qobject_cast<Box*>(&shown);
      ASSERT_NE(box, nullptr) << "another box: " << shown.windowTitle().toStdString();
      act(*box);
    });
  }

 private:
  static constexpr int kLookMs = 2;
  static constexpr int kLooksBefore = 10;

  // One shot each: a box may bring up another one while it is being answered.
  void look_again() {
    QTimer::singleShot(kLookMs, this, [this] { look(); });
  }

  void look() {
    look_again();
    QWidget* shown = QApplication::activeModalWidget();
    if (shown == seen_) return;
    // Not before it waits for its answer: a box that is just being shown does not end.
    const bool waits = shown == nullptr || (shown == coming_ && ++looks_ > kLooksBefore);
    if (shown != coming_) looks_ = 0;
    coming_ = shown;
    if (!waits) return;
    seen_ = shown;
    if (shown == nullptr) return;
    if (steps_.empty()) {
      ADD_FAILURE() << "unexpected box: " << shown->windowTitle().toStdString();
      shown->close();
      return;
    }
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    step(*shown);
    if (testing::Test::HasFatalFailure()) shown->close();
  }

  std::deque<std::function<void(QWidget&)>> steps_;
  QPointer<QWidget> coming_;
  int looks_ = 0;
  QPointer<QWidget> seen_;
};

}  // namespace lunavox::test

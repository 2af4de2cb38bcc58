#include "grid/ui/qt_progress_box.h"

#include "grid/ui/theme.h"

#include <QApplication>
#include <QTest>
#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

struct QtProgressBoxTest : testing::Test {
  QtProgressBoxTest() {
    window.resize(600, 400);
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    box.set_window(&window);
  }
  QWidget& card() { return *window.findChild<QWidget*>(QStringLiteral("Form3")); }

  QWidget window;
  QtProgressBox box;
};

TEST_F(QtProgressBoxTest, AShortOperationDoesNotFlash) {
  box.set_patience(std::numeric_limits<int>::max());
  box.show("numeroting lines...", 10);
  box.set_value(5);
  EXPECT_FALSE(card().isVisible());
  box.hide();
}

TEST_F(QtProgressBoxTest, ALongOperationShowsTheBoxUntilItsEnd) {
  box.set_patience(0);
  box.show("numeroting lines...", 10);
  box.set_value(5);
  EXPECT_TRUE(card().isVisible());
  EXPECT_EQ(card().windowTitle().toStdString(), "PLEASE WAIT...");
  box.hide();
  QCoreApplication::processEvents();
  EXPECT_FALSE(card().isVisible());
}

TEST_F(QtProgressBoxTest, TheBoxTellsWhatIsDoneAndHowFarItHasCome) {
  const auto filled_pixels = [this] {
    const QImage image = card().grab().toImage();
    int filled = 0;
    for (int y = 0; y < image.height(); ++y) {
      int along = 0;
      for (int x = 1; x < image.width() - 1; ++x) along += image.pixelColor(x, y) == theme::kAccent;
      if (y > 0 && y < image.height() - 1) filled = std::max(filled, along);
    }
    return filled;
  };
  box.set_patience(0);
  box.show("numeroting lines...", 10);
  EXPECT_EQ(card().accessibleDescription().toStdString(), "numeroting lines...");
  box.set_value(0);
  EXPECT_EQ(filled_pixels(), 0);
  box.set_value(10);
  const int whole = filled_pixels();
  EXPECT_GT(whole, 100);
  box.set_value(5);
  EXPECT_NEAR(2 * filled_pixels(), whole, 2);
  box.set_caption("preparing beats...");
  EXPECT_EQ(card().accessibleDescription().toStdString(), "preparing beats...");
  box.hide();
}

TEST_F(QtProgressBoxTest, WhatTheUserDoesMeanwhileWaits) {
  struct Pressed : QObject {
    bool event(QEvent* event) override {
      came = came || event->type() == QEvent::User;
      return QObject::event(event);
    }
    bool came = false;
  } pressed;
  box.set_patience(0);
  box.show("adding instrument track...", 2);
  QCoreApplication::postEvent(&pressed, new QEvent(QEvent::User));
  box.set_value(1);
  box.set_caption("showing effect...");
  box.set_value(2);
  box.hide();
  EXPECT_FALSE(pressed.came);
  QCoreApplication::processEvents();
  EXPECT_TRUE(pressed.came);
}

TEST_F(QtProgressBoxTest, WorkBeforeThereIsAWindowShowsNothing) {
  QtProgressBox early;
  early.show("adding drum track...", 1);
  early.set_value(1);
  early.hide();
}

}  // namespace
}  // namespace lunavox

#pragma once

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace lunavox::test {

/// A control by its name.
template <class Widget>
Widget& control(const QWidget& window, const char* name) {
  auto* widget = window.findChild<Widget*>(QLatin1String(name));
  if (widget == nullptr) throw std::runtime_error(std::string("There is no control ") + name);
  return *widget;
}

/// Waits until a window is shown and has the keys.
inline void wait_until_active(QWidget& window) {
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// A key pressed and released by who looks at a window: it goes to the control that has the keys.
inline void press_key(QWidget& window, Qt::Key key) {
  QWidget* focus = window.focusWidget();
  QTest::keyClick(focus != nullptr ? focus : &window, key);
}

inline void type(QWidget& window, const QString& text) {
  QTest::keyClicks(window.focusWidget(), text);
}

}  // namespace lunavox::test

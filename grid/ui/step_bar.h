#pragma once

#include "grid/ui/wheel_notches.h"

#include <QScrollBar>

namespace lunavox {

/// A vertical scroll bar without a thumb, as stands beside a number: its upper half makes the
/// number larger, its lower half smaller.
class StepBar : public QScrollBar {
 public:
  explicit StepBar(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void paint_half(QPainter& painter, const QRect& half, bool up) const;

  WheelNotches wheel_;
  int pressed_ = 0;  // +1 while the upper half is held, -1 for the lower, else 0
};

}  // namespace lunavox

#include "grid/ui/step_bar.h"

#include "grid/ui/theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>

namespace lunavox {
namespace {

constexpr int kWidth = 14;
constexpr int kRepeatDelayMs = 350;
constexpr int kRepeatMs = 60;

}  // namespace

StepBar::StepBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
  setFocusPolicy(Qt::NoFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  setFixedWidth(theme::scaled(kWidth));
}

QSize StepBar::sizeHint() const {
  return {theme::scaled(kWidth), theme::scaled(20)};
}

void StepBar::paint_half(QPainter& painter, const QRect& half, bool up) const {
  const bool held = pressed_ == (up ? 1 : -1);
  const bool at_end = value() == (up ? maximum() : minimum());
  const qreal size = theme::scaled(3);
  const QPointF tip = QRectF(half).center() + QPointF(0, up ? -size / 2 : size / 2);
  QPainterPath arrow;
  arrow.moveTo(tip + QPointF(-size, up ? size : -size));
  arrow.lineTo(tip);
  arrow.lineTo(tip + QPointF(size, up ? size : -size));
  QPen pen(!isEnabled() || at_end ? theme::kFaintText : held ? theme::kAccent : theme::kDimText);
  pen.setWidthF(1.4);
  painter.setPen(pen);
  painter.drawPath(arrow);
}

void StepBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect upper(0, 0, width(), height() / 2);
  const QRect lower(0, height() - height() / 2, width(), height() / 2);
  paint_half(painter, upper, true);
  paint_half(painter, lower, false);
}

void StepBar::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() != Qt::LeftButton) return;
  pressed_ = event->pos().y() < height() / 2 ? 1 : -1;
  const SliderAction step = pressed_ > 0 ? SliderSingleStepAdd : SliderSingleStepSub;
  update();
  setRepeatAction(step, kRepeatDelayMs, kRepeatMs);
  triggerAction(step);
}

void StepBar::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void StepBar::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  pressed_ = 0;
  setRepeatAction(SliderNoAction);
  update();
}

void StepBar::wheelEvent(QWheelEvent* event) {
  event->accept();
  setValue(value() + wheel_.take(*event));
}

}  // namespace lunavox

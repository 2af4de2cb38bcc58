// What the user does to a grid view with keys and mouse.
#include "grid/ui/grid_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace lunavox {
namespace {

constexpr int kWheelRows = 3;

}  // namespace

void GridView::move_to(CellPosition position, bool extend) {
  if (extend && selects()) {
    grid_.set_selection_end(position.row, position.column);
    bring_into_view(position);
  } else {
    grid_.set_cursor(position.row, position.column);
    bring_into_view(grid_.cursor());
  }
}

bool GridView::navigate(const QKeyEvent& event) {
  const bool extend = event.modifiers().testFlag(Qt::ShiftModifier);
  CellPosition to = extend ? grid_.selection_end() : grid_.cursor();
  if (!step(event.key(), to)) return false;
  if (grid_.columns() < 2) return true;
  to.row = std::clamp(to.row, model_->first_row(), grid_.rows() - 1);
  to.column = std::clamp(to.column, 1, grid_.columns() - 1);
  move_to(to, extend);
  return true;
}

bool GridView::step(int key, CellPosition& position) const {
  switch (key) {
    case Qt::Key_Up:
      position.row -= 1;
      return true;
    case Qt::Key_Down:
      position.row += 1;
      return true;
    case Qt::Key_Left:
      position.column -= 1;
      return true;
    case Qt::Key_Right:
      position.column += 1;
      return true;
    case Qt::Key_PageUp:
      position.row -= visible_rows();
      return true;
    case Qt::Key_PageDown:
      position.row += visible_rows();
      return true;
    case Qt::Key_Home:
      position.row = 0;
      return true;
    case Qt::Key_End:
      position.row = grid_.rows() - 1;
      return true;
    default:
      return false;
  }
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (navigate(*event)) {
    event->accept();
    return;
  }
  event->ignore();
}

void GridView::keyReleaseEvent(QKeyEvent* event) {
  event->ignore();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() != Qt::LeftButton || grid_.columns() < 2) return;
  if (rowAt(event->pos().y()) < 0 || columnAt(event->pos().x()) < 0) return;
  dragging_ = selects();
  move_to(nearest_position(event->pos()), event->modifiers().testFlag(Qt::ShiftModifier));
  cell_pressed();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  if (!dragging_ || !event->buttons().testFlag(Qt::LeftButton)) return;
  drag_point_ = event->pos();
  drag_on();
  const bool outside = !viewport()->rect().contains(event->pos());
  if (outside && !drag_timer_.isActive()) drag_timer_.start();
  if (!outside) drag_timer_.stop();
}

void GridView::drag_on() {
  const CellPosition to = nearest_position(drag_point_);
  if (to != grid_.selection_end()) grid_.set_selection_end(to.row, to.column);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  dragging_ = false;
  drag_timer_.stop();
}

void GridView::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int rows = wheel_.take(*event) * kWheelRows;
  verticalScrollBar()->setValue(verticalScrollBar()->value() - rows);
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  refresh_cursor();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  refresh_cursor();
}

}  // namespace lunavox

#include "app/ui/panel_strip.h"

#include "grid/ui/theme.h"

#include <algorithm>

namespace lunavox {
namespace {

constexpr int kGap = 4;

}  // namespace

PanelStrip::PanelStrip(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PanelStrip::add(QWidget* panel) {
  panel->setParent(this);
  panels_.push_back(panel);
}

int PanelStrip::panel_height() const {
  int height = 0;
  for (const QWidget* panel : panels_) height = std::max(height, panel->sizeHint().height());
  return height;
}

std::vector<QRect> PanelStrip::places(int width) const {
  std::vector<QRect> narrowest = rows_within(width);
  // Where one row does not do, the rows are made as even as they get: they look set, not broken,
  // and the panels keep their places over a range of widths.
  const auto rows = [](const std::vector<QRect>& places) {
    return places.empty() ? 0 : places.back().top();
  };
  constexpr int kStep = 8;
  for (int less = width - kStep; less > 0; less -= kStep) {
    std::vector<QRect> tried = rows_within(less);
    if (rows(tried) > rows(narrowest)) break;
    narrowest = std::move(tried);
  }
  return narrowest;
}

std::vector<QRect> PanelStrip::rows_within(int width) const {
  const int gap = theme::scaled(kGap);
  const int height = panel_height();
  std::vector<QRect> places;
  QPoint at(gap, gap);
  for (const QWidget* panel : panels_) {
    const int panel_width = panel->sizeHint().width();
    if (at.x() > gap && at.x() + panel_width + gap > width) at = QPoint(gap, at.y() + height + gap);
    places.emplace_back(at, QSize(panel_width, height));
    at.rx() += panel_width + gap;
  }
  return places;
}

int PanelStrip::height_for(const std::vector<QRect>& places) const {
  return places.empty() ? 0 : places.back().bottom() + 1 + theme::scaled(kGap);
}

QSize PanelStrip::minimumSizeHint() const {
  int widest = 0;
  for (const QWidget* panel : panels_) widest = std::max(widest, panel->sizeHint().width());
  return {widest + 2 * theme::scaled(kGap), panel_height()};
}

void PanelStrip::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const std::vector<QRect> all = places(width());
  for (std::size_t i = 0; i < panels_.size(); ++i) panels_[i]->setGeometry(all[i]);
  // The grids below make room.
  setFixedHeight(height_for(all));
}

}  // namespace lunavox

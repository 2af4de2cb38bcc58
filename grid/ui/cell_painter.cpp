#include "grid/ui/cell_painter.h"

#include "grid/track_columns.h"
#include "grid/ui/file_text.h"
#include "grid/ui/theme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace lunavox {
namespace {

// More different texts than a song shows at once; a file with odd texts must not fill the memory.
constexpr std::size_t kLayoutsKept = 1024;
constexpr qreal kSideMargin = 2.5;
constexpr int kNarrowest = 70;  // per cent of the face's own width
// How much of the accent there is in a ground.
constexpr qreal kCursorLineShare = 0.1;
constexpr qreal kSelectionShare = 0.19;
constexpr qreal kLightCursorShare = 0.3;

QColor blend(const QColor& ground, const QColor& over, qreal share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return {mix(ground.red(), over.red()), mix(ground.green(), over.green()),
          mix(ground.blue(), over.blue())};
}

/// Cells that were given no colour of their own stand on the grid's ground, which is not quite
/// black.
QColor own_ground_of(const Cell& cell, const CellSurroundings& around) {
  if (cell.background != kBlack) return theme::colour(cell.background);
  return around.beat_line ? theme::kBeatLine : theme::kGrid;
}

/// The grounds of lines and blocks that are marked stay dark, for the reds and blues of the notes
/// to be read on them.
QColor ground_of(const Cell& cell, const CellSurroundings& around) {
  const QColor ground = own_ground_of(cell, around);
  // A frame stands around the cursor's cell, which a light cell hides.
  if (around.cursor) {
    const bool light = cell.background != kBlack && around.focused;
    return light ? blend(ground, theme::kAccent, kLightCursorShare) : ground;
  }
  if (around.selected) return blend(ground, theme::kAccent, kSelectionShare);
  return around.cursor_line ? blend(ground, theme::kAccent, kCursorLineShare) : ground;
}

QColor text_colour_of(const Cell& cell, const CellSurroundings& around) {
  const bool own_colours = cell.text_colour != kWhite || cell.background != kBlack;
  if (own_colours) return theme::colour(cell.text_colour);
  if (around.switch_cell) return cell.text == kYes ? theme::kAccent : theme::kFaintText;
  return theme::kText;
}

}  // namespace

void CellPainter::set_size(int row_height, int text_pixels) {
  text_pixels_ = std::min(text_pixels, row_height - 2);
  font_ = theme::cell_font(text_pixels_);
  layouts_.clear();
}

void CellPainter::fit_width(int column_width) {
  QFont font = theme::cell_font(text_pixels_);
  const qreal natural = QFontMetricsF(font).horizontalAdvance(QStringLiteral("0000"));
  const qreal room = column_width - 1 - 2 * kSideMargin;
  if (natural > room) {
    const int stretch = static_cast<int>(std::floor(100 * room / natural));
    font.setStretch(std::clamp(stretch, kNarrowest, 100));
  }
  if (font == font_) return;
  font_ = font;
  layouts_.clear();
}

const QStaticText& CellPainter::layout(const std::string& text) {
  const auto known = layouts_.find(text);
  if (known != layouts_.end()) return known->second;
  if (layouts_.size() >= kLayoutsKept) layouts_.clear();
  QStaticText layout(file_text(text));
  layout.setTextFormat(Qt::PlainText);
  layout.setPerformanceHint(QStaticText::AggressiveCaching);
  layout.prepare({}, font_);
  return layouts_.emplace(text, std::move(layout)).first->second;
}

void CellPainter::paint(QPainter& painter, const QRect& rect, const Cell& cell,
                        const CellSurroundings& around) {
  painter.fillRect(rect, ground_of(cell, around));
  painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), theme::kLine);
  painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()),
                   around.track_end ? theme::kTrackLine : theme::kLine);
  if (!cell.text.empty()) paint_text(painter, rect.adjusted(0, 0, -1, -1), cell, around);
  if (!around.cursor) return;
  painter.setPen(around.focused ? theme::kAccent : blend(theme::kGrid, theme::kAccent, 0.6));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -2, -2));
}

void CellPainter::paint_text(QPainter& painter, const QRect& rect, const Cell& cell,
                             const CellSurroundings& around) {
  const QStaticText& text = layout(cell.text);
  const QSizeF size = text.size();
  qreal x = rect.left() + kSideMargin;
  if (cell.alignment == Alignment::kRight) x = rect.right() - kSideMargin - size.width();
  if (cell.alignment == Alignment::kCentre) x = rect.left() + (rect.width() - size.width()) / 2;
  const bool too_wide = size.width() > rect.width();
  if (too_wide) {
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    x = rect.left() + kSideMargin;
  }
  painter.setFont(font_);
  painter.setPen(text_colour_of(cell, around));
  painter.drawStaticText(QPointF(x, rect.top() + (rect.height() - size.height()) / 2), text);
  if (too_wide) painter.restore();
}

}  // namespace lunavox

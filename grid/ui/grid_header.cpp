#include "grid/ui/grid_header.h"

#include "grid/ui/theme.h"

#include <QPaintEvent>
#include <QPainter>

namespace lunavox {
namespace {

constexpr int kTextMargin = 7;
constexpr int kChipMargin = 2;
constexpr int kChipWidth = 36;
constexpr Colour kNoBackground = kBlack;

QColor text_colour_of(const Cell& cell, bool marked) {
  if (cell.background != kNoBackground) return theme::colour(cell.text_colour);
  return marked ? theme::kAccent : theme::kDimText;
}

}  // namespace

void paint_fixed_cell(QPainter& painter, const QRect& rect, const Cell& cell, int text_pixels,
                      const FixedCellLook& look) {
  painter.fillRect(rect, look.marked ? theme::kAccentDeep : look.ground);
  painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), theme::kLine);
  painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()),
                   look.track_end ? theme::kTrackLine : theme::kLine);
  if (cell.background != kNoBackground) {
    // A cell with a colour of its own, such as a beat's, shows it on a chip around its text: a
    // whole column of it would outshine the notes.
    const QRect chip(rect.left() + kChipMargin, rect.top() + kChipMargin - 1,
                     theme::scaled(kChipWidth), rect.height() - 2 * kChipMargin + 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::colour(cell.background));
    painter.drawRoundedRect(chip, 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }
  QFont font = theme::caption_font();
  font.setPixelSize(text_pixels);
  font.setBold(look.marked || cell.background != kNoBackground);
  painter.setFont(font);
  painter.setPen(text_colour_of(cell, look.marked));
  const QString text = QString::fromStdString(cell.text);
  const QRect room = rect.adjusted(0, 0, -1, -1);
  if (cell.alignment == Alignment::kCentre) {
    painter.drawText(room, Qt::AlignCenter, text);
  } else {
    painter.drawText(room.adjusted(kTextMargin, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
  }
}

GridHeader::GridHeader(const CellGridModel& model, Qt::Orientation orientation,
                       int columns_per_track, QWidget* parent)
    : QHeaderView(orientation, parent), model_(model), columns_per_track_(columns_per_track) {
  setSectionsClickable(false);
  setHighlightSections(false);
  setMinimumSectionSize(1);
  setSectionResizeMode(QHeaderView::Fixed);
}

const Cell& GridHeader::cell_of(int section) const {
  return orientation() == Qt::Horizontal ? model_.grid().cell(0, section + 1)
                                         : model_.grid().cell(section + model_.first_row(), 0);
}

void GridHeader::set_marked_row(int row) {
  if (row == marked_row_) return;
  const int former = marked_row_;
  marked_row_ = row;
  for (const int changed : {former, row}) {
    if (changed >= model_.first_row()) update_section(changed - model_.first_row());
  }
}

void GridHeader::update_section(int section) {
  if (section < 0 || section >= count()) return;
  const int at = sectionViewportPosition(section);
  const int size = sectionSize(section);
  viewport()->update(orientation() == Qt::Horizontal ? QRect(at, 0, size, height())
                                                     : QRect(0, at, width(), size));
}

void GridHeader::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  // Beyond the last section there is nothing but the grid's ground.
  QPainter painter(viewport());
  const int end = length() - offset();
  painter.fillRect(orientation() == Qt::Horizontal ? viewport()->rect().adjusted(end, 0, 0, 0)
                                                   : viewport()->rect().adjusted(0, end, 0, 0),
                   theme::kGrid);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  const bool horizontal = orientation() == Qt::Horizontal;
  const int line = horizontal ? section + 1 : section + model_.first_row();
  if (line >= (horizontal ? model_.grid().columns() : model_.grid().rows())) return;
  Cell cell = cell_of(section);
  if (horizontal) cell.alignment = Alignment::kCentre;
  FixedCellLook look;
  // Line numbers are black.
  look.ground = horizontal || line == 0 ? theme::kPanel : theme::colour(kBlack);
  look.marked = !horizontal && line == marked_row_;
  look.track_end = !horizontal || line % columns_per_track_ == 0;
  paint_fixed_cell(*painter, rect, cell, text_pixels_, look);
}

}  // namespace lunavox

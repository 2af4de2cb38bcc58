#include "files/ui/family_header.h"

#include "files/ui/voice_delegate.h"
#include "files/voice_families.h"
#include "grid/ui/theme.h"

#include <QPainter>
#include <algorithm>

namespace lunavox {
namespace {

constexpr int kFamilyWidth = 78;
constexpr int kNumberWidth = 30;
constexpr int kPadding = 6;

}  // namespace

FamilyHeader::FamilyHeader(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
  setSectionsClickable(false);
  setHighlightSections(false);
  setSectionResizeMode(QHeaderView::Fixed);
}

QSize FamilyHeader::sizeHint() const {
  return {theme::scaled(kFamilyWidth + kNumberWidth), 0};
}

void FamilyHeader::paint_number(QPainter& painter, int program) const {
  const int top = sectionViewportPosition(program);
  const int height = sectionSize(program);
  const int left = theme::scaled(kFamilyWidth);
  painter.fillRect(0, top, width(), height, voice_row_ground(program));
  painter.fillRect(left, top + height - 1, width() - left, 1, voice_row_line(program));
  painter.setFont(theme::cell_font(theme::scaled(11)));
  painter.setPen(theme::kFaintText);
  painter.drawText(left, top, width() - left - theme::scaled(kPadding), height - 1,
                   Qt::AlignRight | Qt::AlignVCenter, QString::number(program));
}

void FamilyHeader::paint_family(QPainter& painter, int first_program) const {
  const int last_program = first_program + kFamilySize - 1;
  const int bottom = sectionViewportPosition(last_program) + sectionSize(last_program);
  const int padding = theme::scaled(kPadding);
  painter.fillRect(0, bottom - 1, width(), 1, voice_row_line(last_program));
  painter.setFont(theme::caption_font());
  painter.setPen(theme::kDimText);
  const QString name = QString::fromUtf8(voice_family(first_program));
  const int wrap = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
  QRect place(padding, 0, theme::scaled(kFamilyWidth) - padding, height());
  place.setHeight(painter.fontMetrics().boundingRect(place, wrap, name).height());
  const int highest = std::max(sectionViewportPosition(first_program), 0) + padding / 2;
  place.moveTop(std::min(highest, bottom - padding / 2 - place.height()));
  painter.drawText(place, wrap, name);
}

void FamilyHeader::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), theme::kGrid);
  if (count() == 0) return;
  const int first = std::max(visualIndexAt(0), 0);
  const int below = visualIndexAt(viewport()->height() - 1);
  const int last = below < 0 ? count() - 1 : below;
  for (int program = first; program <= last; ++program) paint_number(painter, program);
  for (int program = first - first % kFamilySize; program <= last; program += kFamilySize) {
    paint_family(painter, program);
  }
}

}  // namespace lunavox

#include "files/ui/voice_delegate.h"

#include "files/ui/voice_table_model.h"
#include "files/voice_families.h"
#include "grid/ui/theme.h"

#include <QPainter>

namespace lunavox {
namespace {

constexpr int kPadding = 5;
constexpr QColor kHover{0x26, 0x2a, 0x34};
constexpr QColor kVariation{0xb4, 0xba, 0xc6};

QColor text_colour(const QModelIndex& index, bool selected) {
  if (!index.data(VoiceTableModel::kHasVoice).toBool()) return theme::kFaintText;
  if (selected) return Qt::black;
  return index.column() == 0 ? theme::kText : kVariation;
}

void paint_ground(QPainter& painter, const QRect& cell, QStyle::State state,
                  const QModelIndex& index) {
  const bool selected = state.testFlag(QStyle::State_Selected);
  const bool has_voice = index.data(VoiceTableModel::kHasVoice).toBool();
  QColor ground = voice_row_ground(index.row());
  if (has_voice && state.testFlag(QStyle::State_MouseOver)) ground = kHover;
  if (has_voice && selected) ground = theme::kAccent;
  painter.fillRect(cell, ground);
  painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1, voice_row_line(index.row()));
  if (index.column() == 0) {
    painter.fillRect(cell.right(), cell.top(), 1, cell.height(), theme::kTrackLine);
  }
  // The cursor is seen there too, but does not promise a voice.
  if (!has_voice && selected) {
    painter.setPen(theme::kAccent);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
  }
}

}  // namespace

QColor voice_row_ground(int program) {
  return program / kFamilySize % 2 == 0 ? theme::kGrid : theme::kBeatLine;
}

QColor voice_row_line(int program) {
  return program % kFamilySize == kFamilySize - 1 ? theme::kTrackLine : theme::kLine;
}

void VoiceDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  painter->save();
  paint_ground(*painter, option.rect, option.state, index);
  const int padding = theme::scaled(kPadding);
  const QRect inside = option.rect.adjusted(padding, 0, -padding, -1);
  painter->setFont(option.font);
  painter->setPen(text_colour(index, option.state.testFlag(QStyle::State_Selected)));
  const QString name = index.data().toString();
  painter->drawText(inside, Qt::AlignLeft | Qt::AlignVCenter,
                    option.fontMetrics.elidedText(name, Qt::ElideRight, inside.width()));
  painter->restore();
}

}  // namespace lunavox

#pragma once

#include <QStyledItemDelegate>

namespace lunavox {

/// Paints the cells of the voice grid: the families set off from one another, the basic voice of a
/// program from its variations, and places without a voice kept in the background.
class VoiceDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

/// Ground of a program's row: every other family is a shade lighter.
QColor voice_row_ground(int program);
/// The line below a program's row: a stronger one below the last of a family.
QColor voice_row_line(int program);

}  // namespace lunavox

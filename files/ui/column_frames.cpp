#include "files/ui/column_frames.h"

#include "grid/ui/theme.h"

#include <QEvent>
#include <QLabel>
#include <QTableView>

namespace lunavox {
namespace {

constexpr int kHeight = 22;
constexpr int kGap = 3;

}  // namespace

ColumnFrames::ColumnFrames(QTableView& table, QWidget* parent)
    : QWidget(parent),
      table_(table),
      basic_(add_frame(QStringLiteral("Frame1"), QStringLiteral("Basic Midi"))),
      xg_(add_frame(QStringLiteral("Frame2"), QStringLiteral("XG Midi"))) {
  setFixedHeight(theme::scaled(kHeight));
  table_.viewport()->installEventFilter(this);
}

QLabel* ColumnFrames::add_frame(const QString& name, const QString& caption) {
  auto* frame = new QLabel(caption, this);
  frame->setObjectName(name);
  frame->setProperty("panel", true);
  frame->setAlignment(Qt::AlignCenter);
  return frame;
}

// The columns take their new widths only after the grid has taken its own.
bool ColumnFrames::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    QMetaObject::invokeMethod(
        this, [this] { place_frames(); }, Qt::QueuedConnection);
  }
  return QWidget::eventFilter(watched, event);
}

void ColumnFrames::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  place_frames();
}

void ColumnFrames::place_frames() {
  const int left = mapFromGlobal(table_.viewport()->mapToGlobal(QPoint())).x();
  const int right = left + table_.viewport()->width();
  const int middle = left + table_.columnWidth(0);
  const int gap = theme::scaled(kGap);
  basic_->setGeometry(left, 0, middle - left - gap, height() - gap);
  xg_->setGeometry(middle, 0, right - middle, height() - gap);
}

}  // namespace lunavox

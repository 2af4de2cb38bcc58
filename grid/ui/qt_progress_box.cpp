#include "grid/ui/qt_progress_box.h"

#include "grid/ui/theme.h"

#include <QPainter>
#include <QTimer>
#include <algorithm>

namespace lunavox {
namespace {

constexpr int kFrameMs = 33;
// Operations come in rows, such as resizing, numbering and marking: one box for all of them.
constexpr int kSameRowMs = 100;
constexpr int kMargin = 18;

}  // namespace

class QtProgressBox::Card : public QWidget {
 public:
  explicit Card(QWidget* window) : QWidget(window) {
    setObjectName(QStringLiteral("Form3"));
    setWindowTitle(QStringLiteral("PLEASE WAIT..."));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(theme::scaled(340), theme::scaled(96));
    QWidget::hide();
  }

  QString caption;
  int maximum = 1;
  int value = 0;

  void bring_up() {
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    show();
    raise();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(theme::kAccent);
    painter.setBrush(theme::kPanel);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int margin = theme::scaled(kMargin);
    const QRect inside = rect().adjusted(margin, margin - 4, -margin, -margin);
    QFont title = theme::caption_font(1);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(theme::kText);
    painter.drawText(inside, Qt::AlignTop | Qt::AlignLeft, windowTitle());
    painter.setFont(theme::caption_font());
    painter.setPen(theme::kDimText);
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft, caption);
    const int thickness = theme::scaled(6);
    const QRect bar(inside.left(), inside.bottom() - thickness, inside.width(), thickness);
    painter.fillRect(bar, theme::kField);
    const qint64 done = std::clamp(value, 0, maximum);
    painter.fillRect(
        QRect(bar.left(), bar.top(), static_cast<int>(bar.width() * done / maximum), thickness),
        theme::kAccent);
  }
};

QtProgressBox::~QtProgressBox() {
  delete card_;
}

void QtProgressBox::set_window(QWidget* window) {
  delete card_;
  window_ = window;
  if (window != nullptr) card_ = new Card(window);
}

void QtProgressBox::show(const std::string& caption, int maximum) {
  const bool same_row = since_hide_.isValid() && since_hide_.elapsed() < kSameRowMs;
  if (!working_ && !same_row) since_start_.start();
  working_ = true;
  if (!card_) return;
  card_->maximum = std::max(maximum, 1);
  card_->value = 0;
  set_caption(caption);
}

void QtProgressBox::set_caption(const std::string& caption) {
  if (!card_) return;
  card_->caption = QString::fromStdString(caption);
  card_->setAccessibleDescription(card_->caption);
  if (card_->isVisible()) card_->repaint();
}

void QtProgressBox::set_value(int value) {
  if (!card_) return;
  card_->value = value;
  refresh();
}

void QtProgressBox::refresh() {
  if (!working_ || !window_ || !window_->isVisible()) return;
  if (!card_->isVisible()) {
    if (since_start_.elapsed() < patience_ms_) return;
    card_->bring_up();
  } else if (since_paint_.elapsed() < kFrameMs) {
    return;
  }
  card_->repaint();
  since_paint_.start();
}

void QtProgressBox::hide() {
  working_ = false;
  since_hide_.start();
  if (!card_ || !card_->isVisible()) return;
  // Not at once: the next operation of the row would bring it up again.
  QTimer::singleShot(0, card_, [this] {
    if (!working_ && card_) card_->hide();
  });
}

}  // namespace lunavox

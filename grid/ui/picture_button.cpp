#include "grid/ui/picture_button.h"

#include "grid/ui/follow.h"
#include "grid/ui/skin_pictures.h"
#include "grid/ui/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace lunavox {

PictureButton::PictureButton(const QString& name, SkinPictures& skin,
                             Property<std::string>& picture, Handlers handlers, QSize size,
                             QWidget* parent)
    : QAbstractButton(parent),
      skin_(skin),
      picture_(picture),
      handlers_(std::move(handlers)),
      size_(theme::scaled(size.width()), theme::scaled(size.height())) {
  setObjectName(name);
  setAccessibleName(name);
  setFixedSize(size_);
  // A click must not take the keys away from the note grid.
  setFocusPolicy(Qt::TabFocus);
  follow(picture, this, [this](const std::string&) { update(); });
  // Mouse and keys are handled below; what remains are clicks by assistive programs.
  connect(this, &QAbstractButton::clicked, this, [this] {
    handlers_.down();
    handlers_.up();
  });
}

QSize PictureButton::sizeHint() const {
  return size_;
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QIcon& icon = skin_.picture(QString::fromStdString(picture_.get()));
  if (!icon.isNull()) {
    icon.paint(&painter, rect());
  } else {
    painter.fillRect(rect(), theme::kField);
    painter.setFont(theme::caption_font(-2));
    painter.setPen(theme::kText);
    painter.drawText(rect(), Qt::AlignCenter, objectName());
  }
  if (!hasFocus()) return;
  painter.setPen(theme::kAccent);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureButton::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) handlers_.down();
}

void PictureButton::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void PictureButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) handlers_.up();
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return;
  if (presses && !event->isAutoRepeat()) handlers_.down();
  event->setAccepted(presses);
}

void PictureButton::keyReleaseEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return;
  if (presses && !event->isAutoRepeat()) handlers_.up();
  event->setAccepted(presses);
}

}  // namespace lunavox

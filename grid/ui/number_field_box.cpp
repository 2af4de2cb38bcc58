#include "grid/ui/number_field_box.h"

#include "grid/ui/file_text.h"
#include "grid/ui/step_bar.h"
#include "grid/ui/theme.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

namespace lunavox {

NumberFieldBox::NumberFieldBox(const QString& name, NumberField& field, int digits, Enter enter,
                               QWidget* parent)
    : NumberFieldBox(name, name + QLatin1Char('s'), field, digits, std::move(enter), parent) {}

NumberFieldBox::NumberFieldBox(const QString& name, const QString& bar_name, NumberField& field,
                               int digits, Enter enter, QWidget* parent)
    : QWidget(parent),
      field_(field),
      enter_(std::move(enter)),
      text_(new QLineEdit(this)),
      bar_(new StepBar(this)) {
  text_->setObjectName(name);
  text_->setAccessibleName(name);
  text_->setFont(theme::cell_font(theme::scaled(13)));
  text_->setMaxLength(20);
  const int digit = QFontMetrics(text_->font()).horizontalAdvance(QLatin1Char('0'));
  text_->setFixedWidth(digit * digits + theme::scaled(13));
  bar_->setObjectName(bar_name);
  bar_->setRange(field.minimum(), field.maximum());
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(text_);
  row->addWidget(bar_);
  show_field();
  field_.on_change([box = QPointer<NumberFieldBox>(this)](const std::string&) {
    if (box) box->show_field();
  });
  connect(text_, &QLineEdit::editingFinished, this, [this] { commit(); });
  connect(text_, &QLineEdit::returnPressed, this, [this] {
    if (done_) done_();
  });
  connect(bar_, &QScrollBar::valueChanged, this, [this](int value) { step_to(value); });
}

void NumberFieldBox::set_enabled(bool enabled) {
  text_->setEnabled(enabled);
  bar_->setEnabled(enabled);
}

void NumberFieldBox::set_text_colour(const QColor& colour) {
  text_->setStyleSheet(QStringLiteral("QLineEdit { color: %1; }").arg(colour.name()));
}

void NumberFieldBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return;
  if (event->key() == Qt::Key_Escape) show_field();
  QWidget::keyPressEvent(event);
}

void NumberFieldBox::commit() {
  const std::string typed = text_->text().toStdString();
  if (entering_ || typed == field_.text()) return;
  entering_ = true;
  enter_(typed);
  entering_ = false;
  show_field();
}

void NumberFieldBox::step_to(int value) {
  if (entering_) return;
  entering_ = true;
  enter_(std::to_string(value));
  entering_ = false;
  show_field();
}

void NumberFieldBox::show_field() {
  if (entering_) return;
  text_->setText(file_text(field_.text()));
  const QSignalBlocker quiet(bar_);
  bar_->setValue(field_.value());
}

}  // namespace lunavox

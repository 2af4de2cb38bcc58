#include "midi/ui/count_in_dialog.h"

#include "grid/ui/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lunavox {

CountInDialog::CountInDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                          Qt::WindowStaysOnTopHint),
      recordstartin_(new QLabel(QStringLiteral("Record start in"), this)) {
  setObjectName(QStringLiteral("Form9"));
  setWindowTitle(QStringLiteral("Realtime record"));
  setModal(false);
  recordstartin_->setObjectName(QStringLiteral("recordstartin"));
  QFont large = theme::caption_font(11);
  large.setBold(true);
  recordstartin_->setFont(large);
  recordstartin_->setAlignment(Qt::AlignCenter);
  auto* cancel = new QPushButton(QStringLiteral("CANCEL"), this);
  cancel->setObjectName(QStringLiteral("Command1"));
  connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  auto* column = new QVBoxLayout(this);
  column->addStretch();
  column->addWidget(recordstartin_);
  column->addStretch();
  column->addWidget(cancel, 0, Qt::AlignCenter);
  column->setContentsMargins(theme::scaled(24), theme::scaled(12), theme::scaled(24),
                             theme::scaled(18));
  setFixedSize(theme::scaled(300), theme::scaled(136));
}

void CountInDialog::set_hooks(std::function<void()> cancel, std::function<void()> hidden) {
  cancel_ = std::move(cancel);
  hidden_ = std::move(hidden);
}

void CountInDialog::show(const std::string& caption) {
  set_caption(caption);
  QDialog::show();
  raise();
  activateWindow();
}

void CountInDialog::set_caption(const std::string& caption) {
  recordstartin_->setText(QString::fromStdString(caption));
}

void CountInDialog::hide() {
  // Not every desktop gives the keys back to the window behind a dialog.
  if (isActiveWindow() && parentWidget() != nullptr) parentWidget()->activateWindow();
  QDialog::hide();
  if (hidden_) hidden_();
}

void CountInDialog::reject() {
  if (cancel_) cancel_();
  if (isVisible()) hide();
}

}  // namespace lunavox

#include "files/ui/drum_kit_dialog.h"

#include "app/ui/widgets/theme.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace lunavox {

DrumKitDialog::DrumKitDialog(DrumChoice& choice, QWidget* parent)
    : QDialog(parent),
      choice_(choice),
      drumlist_(new QListWidget(this)),
      drumok_(new QPushButton(QStringLiteral("OK"), this)) {
  setObjectName(QStringLiteral("Form4"));
  setWindowTitle(QStringLiteral("Drum kit"));
  drumlist_->setObjectName(QStringLiteral("drumlist"));
  drumlist_->setFont(theme::caption_font(2));
  drumok_->setObjectName(QStringLiteral("drumok"));
  drumok_->setDefault(true);
  auto* drumcancel = new QPushButton(QStringLiteral("Cancel"), this);
  drumcancel->setObjectName(QStringLiteral("drumcancel"));
  connect(drumok_, &QPushButton::clicked, this, [this] { drumok_click(); });
  connect(drumcancel, &QPushButton::clicked, this, [this] { reject(); });
  connect(drumlist_, &QListWidget::itemDoubleClicked, this, [this] { drumlist_dblclick(); });

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(drumcancel);
  buttons->addWidget(drumok_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(drumlist_);
  column->addLayout(buttons);
}

void DrumKitDialog::open() {
  drumlist_->clear();
  for (const DrumKit& kit : choice_.kits().kits()) {
    auto* item = new QListWidgetItem(QString::fromStdString(kit.name), drumlist_);
    item->setData(Qt::UserRole, kit.program);
  }
  const int kit = choice_.current_kit();
  if (kit >= 0) {
    drumlist_->setCurrentRow(kit);
  } else {
    drumlist_->setCurrentIndex({});
  }
  drumlist_->setFocus();
  QDialog::open();
}

void DrumKitDialog::drumok_click() {
  if (choice_.drumok_click(drumlist_->currentRow())) accept();
}

void DrumKitDialog::drumlist_dblclick() {
  if (choice_.drumlist_dblclick(drumlist_->currentRow())) accept();
}

}  // namespace lunavox

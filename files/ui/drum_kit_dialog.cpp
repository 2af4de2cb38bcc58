#include "files/ui/drum_kit_dialog.h"

#include "grid/ui/file_text.h"
#include "grid/ui/theme.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

namespace lunavox {
namespace {

constexpr int kMargin = 14;
constexpr int kRowHeight = 26;

}  // namespace

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
  connect(drumlist_, &QListWidget::itemSelectionChanged, this,
          [this] { drumok_->setEnabled(selected() >= 0); });
  connect(drumlist_, &QListWidget::itemDoubleClicked, this, [this] { drumlist_dblclick(); });

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(drumcancel);
  buttons->addWidget(drumok_);
  auto* column = new QVBoxLayout(this);
  const int margin = theme::scaled(kMargin);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(theme::scaled(12));
  column->addWidget(drumlist_);
  column->addLayout(buttons);
  // All kits in sight, with the room of half a row below.
  drumlist_->setMinimumHeight(theme::scaled(kRowHeight * DrumKits::kKits + kRowHeight / 2));
  setMinimumWidth(theme::scaled(280));
}

void DrumKitDialog::fill() {
  drumlist_->clear();
  for (const DrumKit& kit : choice_.kits().kits()) {
    auto* item = new QListWidgetItem(file_text(kit.name), drumlist_);
    item->setData(Qt::UserRole, kit.program);
    item->setSizeHint({0, theme::scaled(kRowHeight)});
  }
}

void DrumKitDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  fill();
  // An invalid index leaves no entry the current one, so that an arrow key begins with the first.
  drumlist_->setCurrentIndex(drumlist_->model()->index(choice_.current_kit(), 0));
  drumok_->setEnabled(selected() >= 0);
  drumlist_->setFocus();
}

int DrumKitDialog::selected() const {
  return drumlist_->selectedItems().isEmpty() ? -1 : drumlist_->currentRow();
}

void DrumKitDialog::drumok_click() {
  if (choice_.drumok_click(selected())) accept();
}

void DrumKitDialog::drumlist_dblclick() {
  if (choice_.drumlist_dblclick(selected())) accept();
}

}  // namespace lunavox

#include "midi/ui/input_device_dialog.h"

#include "grid/ui/theme.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace lunavox {
namespace {

constexpr int kRowHeight = 26;

}  // namespace

InputDeviceDialog::InputDeviceDialog(const std::vector<std::string>& devices, Dialogs& dialogs,
                                     QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), list1_(new QListWidget(this)) {
  setObjectName(QStringLiteral("Form2"));
  setWindowTitle(QStringLiteral("Midi input"));
  list1_->setObjectName(QStringLiteral("List1"));
  list1_->setFont(theme::caption_font(2));
  for (const std::string& name : devices) {
    auto* item = new QListWidgetItem(QString::fromStdString(name), list1_);
    item->setSizeHint({0, theme::scaled(kRowHeight)});
  }
  // No entry is the current one either, else the first press of an arrow key would pass the first.
  list1_->setCurrentIndex({});
  connect(list1_, &QListWidget::itemActivated, this, [this] { command1_click(); });

  auto* confirm = new QPushButton(QStringLiteral("OK"), this);
  confirm->setObjectName(QStringLiteral("Command1"));
  confirm->setDefault(true);
  connect(confirm, &QPushButton::clicked, this, [this] { command1_click(); });
  auto* quit = new QPushButton(QStringLiteral("Quit Lunavox"), this);
  quit->setObjectName(QStringLiteral("Command2"));
  connect(quit, &QPushButton::clicked, this, [this] { reject(); });

  auto* frame = new QGroupBox(QStringLiteral("Select an Midi input device"), this);
  frame->setObjectName(QStringLiteral("Frame1"));
  auto* inside = new QVBoxLayout(frame);
  inside->addWidget(list1_);
  auto* note = new QLabel(QStringLiteral("(even if you don't have midi keyboard)"), frame);
  note->setProperty("caption", true);
  inside->addWidget(note);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(quit);
  buttons->addStretch();
  buttons->addWidget(confirm);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(theme::scaled(16), theme::scaled(14), theme::scaled(16),
                             theme::scaled(14));
  column->setSpacing(theme::scaled(12));
  column->addWidget(frame);
  column->addLayout(buttons);
  resize(theme::scaled(380), theme::scaled(300));
}

int InputDeviceDialog::device() const {
  return list1_->selectedItems().isEmpty() ? -1 : list1_->currentRow();
}

void InputDeviceDialog::command1_click() {
  if (device() < 0) {
    dialogs_.error("You must select an input device");
    return;
  }
  accept();
}

}  // namespace lunavox

#include "midi/ui/record_options_dialog.h"

#include "grid/ui/follow.h"
#include "grid/ui/number_field_box.h"
#include "grid/ui/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lunavox {

RecordOptionsDialog::RecordOptionsDialog(RecordOptions& options, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("Form8"));
  setWindowTitle(QStringLiteral("Realtime record"));
  setModal(false);

  auto* metronome = new QCheckBox(QStringLiteral("Metronome while recording"), this);
  metronome->setObjectName(QStringLiteral("metronome"));
  follow(options.metronome, metronome, [metronome](bool on) { metronome->setChecked(on); });
  connect(metronome, &QCheckBox::toggled, this, [&options](bool on) { options.metronome = on; });

  auto* before = new NumberFieldBox(
      QStringLiteral("before"), options.before, 2,
      [&options, &dialogs](const std::string& text) {
        return options.before_change(text, dialogs);
      },
      this);
  auto* close = new QPushButton(QStringLiteral("Close"), this);
  close->setObjectName(QStringLiteral("Command2"));
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, [this] { hide(); });

  auto* beats = new QHBoxLayout;
  beats->addWidget(new QLabel(QStringLiteral("Number of beats before record start :"), this));
  beats->addStretch();
  beats->addWidget(before);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(theme::scaled(20), theme::scaled(18), theme::scaled(20),
                             theme::scaled(16));
  column->setSpacing(theme::scaled(14));
  column->addWidget(metronome);
  column->addLayout(beats);
  column->addWidget(close, 0, Qt::AlignRight);
}

}  // namespace lunavox

#include "files/ui/instrument_dialog.h"

#include "app/ui/widgets/follow.h"
#include "app/ui/widgets/number_field_box.h"
#include "app/ui/widgets/theme.h"
#include "files/ui/voice_table_model.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace lunavox {

InstrumentDialog::InstrumentDialog(VoiceChoice& choice, QWidget* parent)
    : QDialog(parent), choice_(choice), instrulist_(new QTableView(this)) {
  setObjectName(QStringLiteral("Form5"));
  setWindowTitle(QStringLiteral("Instrument"));
  instrulist_->setObjectName(QStringLiteral("instrulist"));
  instrulist_->setModel(new VoiceTableModel(choice.banks(), this));
  instrulist_->setSelectionMode(QAbstractItemView::SingleSelection);
  connect(instrulist_, &QTableView::pressed, this, [this](const QModelIndex& index) {
    choice_.instrulist_mousedown({index.row(), index.column()});
  });
  connect(instrulist_, &QTableView::clicked, this, [this] { choice_.instrulist_mouseup(); });

  auto* preview =
      new QCheckBox(QStringLiteral("Preview (play a note when an instrument is clicked)"), this);
  preview->setObjectName(QStringLiteral("preview"));
  auto* octave = new NumberFieldBox(
      QStringLiteral("Text1"), QStringLiteral("oct"), choice.octave, 1,
      [&choice](const std::string& text) { return choice.text1_change(text); }, this);
  follow(choice.preview, this, [preview, octave](bool on) {
    preview->setChecked(on);
    octave->set_enabled(on);
  });
  connect(preview, &QCheckBox::toggled, this, [&choice](bool on) { choice.preview = on; });
  auto* instruok = new QPushButton(QStringLiteral("OK"), this);
  instruok->setObjectName(QStringLiteral("instruok"));
  instruok->setDefault(true);
  auto* instrucancel = new QPushButton(QStringLiteral("Cancel"), this);
  instrucancel->setObjectName(QStringLiteral("instrucancel"));
  connect(instruok, &QPushButton::clicked, this, [this] { instruok_click(); });
  connect(instrucancel, &QPushButton::clicked, this, [this] { reject(); });

  auto* bottom = new QHBoxLayout;
  bottom->addWidget(preview);
  bottom->addWidget(new QLabel(QStringLiteral("Octave:"), this));
  bottom->addWidget(octave);
  bottom->addStretch();
  bottom->addWidget(instrucancel);
  bottom->addWidget(instruok);
  auto* column = new QVBoxLayout(this);
  column->addWidget(instrulist_);
  column->addLayout(bottom);
  resize(theme::scaled(780), theme::scaled(540));
}

void InstrumentDialog::open() {
  const VoiceCell voice = choice_.current_voice();
  const QModelIndex index = instrulist_->model()->index(voice.program, voice.column);
  instrulist_->setCurrentIndex(index);
  instrulist_->setFocus();
  QDialog::open();
  instrulist_->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void InstrumentDialog::done(int result) {
  choice_.instrulist_mouseup();
  QDialog::done(result);
}

VoiceCell InstrumentDialog::selected() const {
  const QModelIndex index = instrulist_->currentIndex();
  return {index.row(), index.column()};
}

void InstrumentDialog::instruok_click() {
  if (choice_.instruok_click(selected())) accept();
}

}  // namespace lunavox

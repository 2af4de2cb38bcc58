#include "files/ui/instrument_dialog.h"

#include "files/ui/column_frames.h"
#include "files/ui/voice_table.h"
#include "files/voice_families.h"
#include "grid/ui/file_text.h"
#include "grid/ui/follow.h"
#include "grid/ui/number_field_box.h"
#include "grid/ui/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>

namespace lunavox {
namespace {

constexpr int kMargin = 14;
constexpr int kColumnPixels = VoiceBanks::kColumnWidth / 15;  // of the grid, at its full width
constexpr int kHeight = 640;
// What a window's frame and the desktop's bars take of the screen.
constexpr int kDesktop = 50;

/// "GrandPno - program 0, bank 0, Piano"
QString details_of(const VoiceBanks& banks, VoiceCell cell) {
  if (!banks.has_voice(cell.program, cell.column)) return QStringLiteral("No voice");
  return QStringLiteral("%1 \u2014 program %2, bank %3, %4")
      .arg(file_text(banks.name(cell.program, cell.column)))
      .arg(cell.program)
      .arg(banks.bank(cell.column, cell.program))
      .arg(QString::fromUtf8(voice_family(cell.program)));
}

QPushButton* make_button(const char* name, const char* caption, QWidget* parent) {
  auto* button = new QPushButton(QLatin1String(caption), parent);
  button->setObjectName(QLatin1String(name));
  return button;
}

}  // namespace

InstrumentDialog::InstrumentDialog(VoiceChoice& choice, QWidget* parent)
    : QDialog(parent),
      choice_(choice),
      instrulist_(new VoiceTable(choice.banks(), this)),
      details_(new QLabel(this)) {
  setObjectName(QStringLiteral("Form5"));
  setWindowTitle(QStringLiteral("Instrument"));
  instrulist_->set_handlers({[this](VoiceCell cell) { choice_.instrulist_mousedown(cell); },
                             [this] { choice_.instrulist_mouseup(); },
                             [this] { show_selected(); }});
  details_->setObjectName(QStringLiteral("details"));
  details_->setTextFormat(Qt::PlainText);
  auto* hint =
      new QLabel(QStringLiteral("Type a name to find a voice, hold Space to hear it"), this);
  hint->setProperty("caption", true);

  auto* below = new QHBoxLayout;
  below->addWidget(details_, 1);
  below->addWidget(hint);
  auto* bottom = new QHBoxLayout;
  bottom->addLayout(make_preview_row());
  bottom->addStretch();
  bottom->addLayout(make_buttons());
  auto* column = new QVBoxLayout(this);
  const int margin = theme::scaled(kMargin);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(0);
  column->addWidget(new ColumnFrames(*instrulist_, this));
  column->addWidget(instrulist_, 1);
  column->addSpacing(theme::scaled(8));
  column->addLayout(below);
  column->addSpacing(theme::scaled(12));
  column->addLayout(bottom);
  resize_to_screen();
}

// A note that is held ends while there still is who can end it.
InstrumentDialog::~InstrumentDialog() {
  hide();
}

QBoxLayout* InstrumentDialog::make_preview_row() {
  auto* preview =
      new QCheckBox(QStringLiteral("Preview (play a note when an instrument is clicked)"), this);
  preview->setObjectName(QStringLiteral("preview"));
  auto* octave = new NumberFieldBox(
      QStringLiteral("Text1"), QStringLiteral("oct"), choice_.octave, 1,
      [this](const std::string& text) { return choice_.text1_change(text); }, this);
  octave->on_done([this] { instrulist_->setFocus(); });
  follow(choice_.preview, octave, [this, preview, octave](bool on) {
    preview->setChecked(on);
    octave->set_enabled(on);
    octave->set_text_colour(theme::colour(choice_.octave_colour()));
  });
  connect(preview, &QCheckBox::toggled, this, [this](bool on) { choice_.preview = on; });

  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  row->addWidget(preview);
  row->addSpacing(theme::scaled(14));
  row->addWidget(new QLabel(QStringLiteral("Octave:"), this));
  row->addSpacing(theme::scaled(6));
  row->addWidget(octave);
  return row;
}

QBoxLayout* InstrumentDialog::make_buttons() {
  QPushButton* instrucancel = make_button("instrucancel", "Cancel", this);
  QPushButton* instruok = make_button("instruok", "OK", this);
  instruok->setDefault(true);
  connect(instrucancel, &QPushButton::clicked, this, [this] { reject(); });
  connect(instruok, &QPushButton::clicked, this, [this] { instruok_click(); });
  auto* row = new QHBoxLayout;
  row->setSpacing(theme::scaled(8));
  row->addWidget(instrucancel);
  row->addWidget(instruok);
  return row;
}

void InstrumentDialog::resize_to_screen() {
  const int columns = VoiceBanks::kColumns * theme::scaled(kColumnPixels);
  const int edges = instrulist_->verticalHeader()->sizeHint().width() + theme::scaled(14);
  const QSize wish(columns + edges + 2 * theme::scaled(kMargin), theme::scaled(kHeight));
  const QSize room = screen()->availableSize();
  resize(std::min(wish.width(), room.width() - kDesktop / 2),
         std::min(wish.height(), room.height() - kDesktop));
}

void InstrumentDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  instrulist_->select(choice_.current_voice());
  instrulist_->setFocus();
}

void InstrumentDialog::show_selected() {
  const QString sought = QString::fromStdString(instrulist_->sought());
  const QString details = details_of(choice_.banks(), instrulist_->selected());
  if (sought.isEmpty()) {
    details_->setText(details);
  } else if (instrulist_->found()) {
    details_->setText(QStringLiteral("Find \u201c%1\u201d: %2").arg(sought, details));
  } else {
    details_->setText(QStringLiteral("Find \u201c%1\u201d: no such voice").arg(sought));
  }
}

void InstrumentDialog::instruok_click() {
  if (choice_.instruok_click(instrulist_->selected())) accept();
}

}  // namespace lunavox

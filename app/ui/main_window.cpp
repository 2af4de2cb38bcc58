#include "app/ui/main_window.h"

#include "app/ui/panel_strip.h"
#include "app/ui/song_views.h"
#include "edit/ui/note_keyboard.h"
#include "grid/status_text.h"
#include "grid/ui/follow.h"
#include "grid/ui/theme.h"
#include "grid/version.h"
#include "midi/transport.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace lunavox {
namespace {

constexpr int kStatusMs = 1000;
constexpr const char* kPlaceSetting = "window/place";

constexpr NumberPanel::Field kLength{"Frame2", "Length", "length", "Lines of the song", 4};
constexpr NumberPanel::Field kBpm{"Frame1", "BPM", "bpm", "Tempo in beats a minute", 3};
constexpr NumberPanel::Field kNumber{"Frame3", "LPB", "number", "Lines a beat", 1};
constexpr NumberPanel::Field kStep{"Frame5", "Rec step", "step",
                                   "Lines that the cursor moves down after an entry", 2};

/// The file that is dragged, empty where it is none or where a box waits for its answer.
QString dragged_song(const QMimeData& data) {
  const QList<QUrl> files = data.urls();
  if (files.isEmpty() || QApplication::activeModalWidget() != nullptr) return {};
  return files.first().toLocalFile();
}

}  // namespace

MainWindow::MainWindow(const WindowModel& model, const WindowCommands& commands)
    : model_(model),
      commands_(commands),
      grids_(new SongGrids({model.song, model.flags, model.screen, model.options.curs},
                           model.keyboard, commands.effects_click)),
      status_(new StatusLine) {
  setObjectName(QStringLiteral("Form1"));
  setWindowTitle(QString::fromStdString(version_text()));
  setAcceptDrops(true);
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* strip = new PanelStrip(centre);
  add_panels(*strip);
  column->addWidget(strip);
  column->addWidget(grids_, 1);
  column->addWidget(status_);
  setCentralWidget(centre);

  grids_->tracks().on_popup(
      build_menus(*menuBar(), commands.menu, model.outputdev.items, model.recent));
  const auto show_octave = [this] {
    status_->show_text(StatusLine::kOctave,
                       QString::fromStdString(octave_text(model_.keyboard.octaveshift())));
  };
  model_.keyboard.on_key(show_octave);
  show_octave();
  model_.song.tracks.add_observer(this);
  follow(model_.outputdev.items, this, [this](const std::vector<OutputItem>&) { show_devices(); });
  follow(model_.flags.song_loading, this, [this](bool) { show_cursor(); });
  follow(model_.flags.modified, this, [this](bool) { refresh_status(); });
  follow(model_.file_name, this, [this](const std::string&) { refresh_status(); });
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [this] {
    if (commands_.look_after_devices) commands_.look_after_devices();
    refresh_status();
  });
  timer->start(kStatusMs);
  qApp->installEventFilter(this);
  restore_place();
  show_cursor();
  focus_tracks();
}

MainWindow::~MainWindow() {
  qApp->removeEventFilter(this);
  model_.song.tracks.remove_observer(this);
  model_.keyboard.on_key({});
}

void MainWindow::add_panels(PanelStrip& strip) {
  const auto done = [this] { focus_tracks(); };
  strip.add(new ControlsPanel(model_.skin, model_.pictures, model_.transport, model_.recorder));
  strip.add(new DurationPanel(model_.song_length.timemin));
  add_number_panels(strip);
  strip.add(new XgPanel(model_.song, model_.xg_effects, done));
  strip.add(new VoicePanel(model_.voice_name));
  strip.add(new BookmarkPanel(model_.skin, model_.pictures, model_.song, model_.bookmarks, done));
  const MiscPanel::Handlers misc = {
      [this](bool checked) { model_.screen.area_click(checked); }, commands_.realtime_checked,
      [this](const std::string& text) { return model_.song_length.strength_change(text); }, done};
  strip.add(new MiscPanel(model_.song, model_.options, model_.screen.area, misc));
}

void MainWindow::add_number_panels(PanelStrip& strip) {
  SongLength& length = model_.song_length;
  const auto add = [&](const NumberPanel::Field& field, NumberField& number, auto change) {
    strip.add(new NumberPanel(
        field, number,
        [&length, change](const std::string& text) { return (length.*change)(text); },
        [this] { focus_tracks(); }));
  };
  add(kLength, model_.song.length, &SongLength::length_validate);
  add(kBpm, model_.song.bpm, &SongLength::bpm_change);
  add(kNumber, model_.song.number, &SongLength::number_change);
  add(kStep, model_.song.step, &SongLength::step_change);
}

void MainWindow::focus_tracks() {
  grids_->tracks().setFocus();
}

// The window sees keys and clicks before its controls do.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || widget->window() != this) return false;
  if (event->type() == QEvent::WindowBlocked) box_came_ = true;
  if (event->type() == QEvent::KeyPress) preview_key(*static_cast<QKeyEvent*>(event));
  return event->type() == QEvent::MouseButtonPress && leave_field_for(*widget);
}

void MainWindow::preview_key(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Control) model_.transport.key_down(Transport::kControlKey);
}

// A click anywhere else leaves a text box, also where what is clicked takes no keys: the text
// counts before the click does. Where a box refuses the text, the click ends with it: the button's
// release went to the box, and what was pressed would stay so.
bool MainWindow::leave_field_for(const QWidget& pressed) {
  const QWidget* focus = focusWidget();
  const bool in_field = qobject_cast<const QLineEdit*>(focus) != nullptr;
  if (!in_field || focus == &pressed || focus->isAncestorOf(&pressed)) return false;
  box_came_ = false;
  focus_tracks();
  return box_came_;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  QSettings().setValue(QLatin1String(kPlaceSetting), saveGeometry());
  event->setAccepted(commands_.quit());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!dragged_song(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::string song = dragged_song(*event->mimeData()).toStdString();
  event->acceptProposedAction();
  // Not yet: whoever drags waits for the end of the drop, and opening may ask a question.
  QTimer::singleShot(0, this, [this, song] { commands_.open_song(song); });
}

void MainWindow::restore_place() {
  const QByteArray place = QSettings().value(QLatin1String(kPlaceSetting)).toByteArray();
  if (place.isEmpty() || !restoreGeometry(place)) {
    resize(model_.screen.width(), model_.screen.height());
    setWindowState(Qt::WindowMaximized);
  }
}

void MainWindow::cells_changed(const CellRegion& region) {
  const CellPosition cursor = model_.song.tracks.cursor();
  const bool touches = cursor.row >= region.first_row && cursor.row <= region.last_row &&
                       cursor.column >= region.first_column && cursor.column <= region.last_column;
  const bool beats = region.first_column == 0;
  if (touches || beats) show_cursor();
}

void MainWindow::show_cursor() {
  if (model_.flags.song_loading) return;
  status_->show_text(StatusLine::kLine, QString::fromStdString(cursor_line_text(model_.song)));
  status_->show_text(StatusLine::kCell, QString::fromStdString(cursor_cell_text(model_.song)));
}

void MainWindow::refresh_status() {
  const QString file = QString::fromStdString(model_.file_name.get());
  const QString name = file.isEmpty() ? QStringLiteral("new song") : QFileInfo(file).fileName();
  const QString mark = model_.flags.modified ? QStringLiteral(" \u2022") : QString();
  status_->show_text(StatusLine::kFile, name + mark);
  show_devices();
}

void MainWindow::show_devices() {
  const std::string input = commands_.input_status ? commands_.input_status() : std::string();
  const std::string output =
      model_.output.device() != nullptr ? model_.output.device()->status() : std::string();
  QString name;
  for (const OutputItem& item : model_.outputdev.items.get()) {
    if (item.checked) name = QString::fromStdString(item.caption);
  }
  const std::string unkept =
      commands_.keeping_problem ? commands_.keeping_problem() : std::string();
  if (!unkept.empty()) {
    status_->show_warning(
        StatusLine::kOutput,
        QStringLiteral("Unsaved work is not kept: %1").arg(QString::fromStdString(unkept)));
  } else if (!input.empty()) {
    status_->show_warning(StatusLine::kOutput, QString::fromStdString(input));
  } else if (!output.empty()) {
    status_->show_warning(StatusLine::kOutput,
                          QStringLiteral("%1: %2").arg(name, QString::fromStdString(output)));
  } else {
    status_->show_text(StatusLine::kOutput, name);
  }
}

}  // namespace lunavox

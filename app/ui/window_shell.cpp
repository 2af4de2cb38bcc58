#include "app/ui/window_shell.h"

#include "edit/block_selection.h"
#include "files/ui/drum_kit_dialog.h"
#include "files/ui/instrument_dialog.h"
#include "midi/ui/input_device_dialog.h"
#include "midi/ui/record_options_dialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QIcon>
#include <QScreen>
#include <QUrl>
#include <algorithm>

namespace lunavox {
namespace {

Screen primary_screen() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {size.width(), size.height()};
}

/// The installed icon, or the one in the data folder of a build tree.
QIcon program_icon(const std::filesystem::path& data) {
  const QIcon built(QString::fromStdString((data / "icon" / "lunavox-128.png").string()));
  return QIcon::fromTheme(QStringLiteral("lunavox"), built);
}

}  // namespace

WindowShell::WindowShell(const Machine& machine, const StartUp::Wishes& wishes, Dialogs* dialogs)
    : folders_(machine.folders),
      clock_(machine.clock),
      dialogs_(dialogs != nullptr ? *dialogs : screen_dialogs_),
      count_in_(std::make_unique<CountInDialog>()),
      editor_(std::make_unique<Editor>(
          World{machine.outputs, machine.inputs, machine.clock, dialogs_, progress_, *count_in_},
          primary_screen())),
      config_(folders_.config_file()),
      start_up_(*editor_, config_, folders_, wishes),
      recent_(folders_.config / "recent"),
      file_commands_({editor_->song, editor_->flags, editor_->tracks, editor_->song_length,
                      editor_->song_file, editor_->midi_export, recent_, dialogs_},
                     folders_.readme()),
      recovery_(editor_->song, editor_->flags, editor_->song_file, machine.clock, folders_.state),
      keyboard_(editor_->note_keys, editor_->typing_mode, wishes.keyboard),
      skin_(folders_.skin),
      driver_(editor_->current_loop, machine.clock, machine.hurry),
      line_room_(driver_, machine.clock) {
  Editor& e = *editor_;
  const WindowModel model = {
      e.song,      e.flags,     e.screen,          e.song_length, e.options,
      e.pictures,  e.transport, e.recorder,        e.xg_effects,  e.bookmarks,
      e.outputdev, e.output,    e.voice_name.text, recent_.names, e.song_file.current_name,
      keyboard_,   skin_};
  window_ = std::make_unique<MainWindow>(model, window_commands());
  record_options_ = std::make_unique<RecordOptionsDialog>(e.options, dialogs_, window_.get());
  instrument_ = std::make_unique<InstrumentDialog>(e.voice_choice, window_.get());
  drum_kit_ = std::make_unique<DrumKitDialog>(e.drum_choice, window_.get());
  count_in_->setParent(window_.get(), count_in_->windowFlags());
  window_->setWindowIcon(program_icon(folders_.data));
  tie();
}

WindowShell::~WindowShell() {
  // However the program has come to its end: a message that arrives wakes the driver, which goes
  // before the editor does.
  editor_->close_ports();
  progress_.set_window(nullptr);
  count_in_->setParent(nullptr);
}

void WindowShell::tie() {
  Editor& e = *editor_;
  screen_dialogs_.set_window(window_.get());
  screen_dialogs_.on_long_work([this] { line_room_.before_long_work(); });
  progress_.set_window(window_.get());
  e.notequeue.set_wake([this] { driver_.wake(); });
  const auto end_early = [this](int status) {
    recovery_.write_now();
    end(status);
  };
  e.shell = {end_early, [this] { drum_kit_->open(); }, [this] { instrument_->open(); },
             [this] { window_->focus_tracks(); }};
  count_in_->set_hooks([&e] { e.realtime_loop.cancel(); }, [this] { window_->focus_tracks(); });
  start_up_.set_hooks({[this](const std::vector<std::string>& names) { choose_input(names); },
                       [this] { window_->refresh_status(); }});
  tie_files();
}

MenuCommands WindowShell::menu_commands() {
  Editor& e = *editor_;
  MenuCommands commands;
  add_file_commands(commands);
  commands.menucut = [&e] { e.clipboard.cutproc(); };
  commands.menucopy = [&e] { e.clipboard.copyproc(); };
  commands.menupaste = [&e] { e.clipboard.pasteproc(); };
  commands.menuvelval = [&e] { e.block_tools.velovalue(); };
  commands.menuvelper = [&e] { e.block_tools.velopercent(); };
  commands.menutrans = [&e] { e.block_tools.transproc(); };
  commands.menuask = [this] { config_.menuask_click(); };
  commands.outputdev = [&e](int index) { e.outputdev.click(index); };
  commands.menuaddinstru = [&e] { e.tracks.addinstrutrack(); };
  commands.menudeltrack = [&e] { e.tracks.menudeltrack_click(); };
  commands.can_paste = [&e] { return e.clipboard.can_paste(); };
  commands.can_change_notes = [&e] { return !selected_block(e.song) || block_has_notes(e.song); };
  commands.list_outputs = [&e] { e.outputdev.fill(); };
  return commands;
}

WindowCommands WindowShell::window_commands() {
  Editor& e = *editor_;
  return {menu_commands(),
          [&e](int column, int row) { e.curves.effects_click(column, row); },
          [this] { show_record_options(); },
          [this] { return quit(); },
          [this](const std::string& name) { file_commands_.open_path(name); },
          [&e] { return e.input.status(); },
          [this] { return recovery_.problem(); },
          [&e] {
            e.input.look_after();
            if (e.output.device() != nullptr) e.output.device()->look_after();
          }};
}

void WindowShell::add_file_commands(MenuCommands& commands) {
  FileCommands& files = file_commands_;
  commands.menunew = [&files] { files.menunew_click(); };
  commands.menuopen = [&files] { files.menuopen_click(); };
  commands.menusave = [&files] { files.menusave_click(); };
  commands.menusaveas = [&files] { files.menusaveas_click(); };
  commands.menuexport = [&files] { files.menuexport_click(); };
  commands.menuquit = [this] { window_->close(); };
  commands.open_recent = [&files](const std::string& name) { files.open_path(name); };
  commands.menuhelp = [&files] { files.menuhelp_click(); };
  commands.menuauthor = [&files] { files.menuauthor_click(); };
}

void WindowShell::tie_files() {
  Editor& e = *editor_;
  const auto stop_playing = [&e] {
    if (e.flags.playing) e.transport.playnotes_mouseup();
  };
  const auto quit_program = [this] {
    editor_->close_ports();
    recovery_.end();
    end(0);
  };
  const auto open_document = [this](const std::filesystem::path& document) {
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(document.string()));
    if (!QDesktopServices::openUrl(url)) {
      dialogs_.error("No program on this desktop opens " + document.string(), "Error");
    }
  };
  const auto song_changed = [this] {
    editor_->voice_name.refresh();
    window_->refresh_status();
  };
  file_commands_.set_hooks({stop_playing, quit_program, open_document, song_changed});
  screen_dialogs_.set_folder([this] { return recent_.last_folder(); });
  recovery_timer_.setSingleShot(true);
  QObject::connect(&recovery_timer_, &QTimer::timeout, [this] { keep_song(); });
  recovery_.on_due([this] { keep_song(); });
}

// Writes the recovery file when it is due, and comes back when it will be.
void WindowShell::keep_song() {
  recovery_.pass(clock_.timeGetTime());
  const auto due = recovery_.next_due();
  if (!due) return;
  const auto left = remaining_ms(clock_.timeGetTime(), *due);
  recovery_timer_.start(std::max(left, 1));
}

// Also where it is open already, behind another window.
void WindowShell::show_record_options() {
  record_options_->show();
  record_options_->raise();
  record_options_->activateWindow();
}

bool WindowShell::quit() {
  if (!ended_) file_commands_.menuquit_click();
  return ended_.has_value();
}

void WindowShell::choose_input(const std::vector<std::string>& names) {
  InputDeviceDialog dialog(names, dialogs_, window_.get());
  if (dialog.exec() == QDialog::Accepted) {
    start_up_.getinputid(dialog.device());
  } else {
    end(0);
  }
}

void WindowShell::start(const std::string& song) {
  recent_.load();
  window_->show();
  start_up_.load();
  if (ended_) return;
  recovery_.offer_orphans(dialogs_);
  if (!song.empty()) file_commands_.open_path(song);
  window_->focus_tracks();
}

void WindowShell::end_at_once() {
  // A box that tells why the program ends may still be waiting for its answer.
  if (ended_) return QCoreApplication::exit(*ended_);
  recovery_.write_now();
  editor_->close_ports();
  end(0);
}

void WindowShell::end_on_fault(const std::string& text) {
  if (ended_) return;
  ended_ = 1;
  // First: whatever may still go wrong with the ports, the song is safe.
  const std::string kept = kept_song();
  // Nothing sounds on while the message stands, nor after the end.
  editor_->close_ports();
  dialogs_.error(text + "\n\nLunavox has to end." + kept);
  // Last: no box can be shown any more after it.
  end(1);
}

// Keeps the song for the next start, and says what has become of it.
std::string WindowShell::kept_song() {
  if (!editor_->flags.modified) return {};
  if (recovery_.write_now()) return " The song as it stands is kept and offered at the next start.";
  return " The song as it stands could not be kept: " + recovery_.problem();
}

void WindowShell::end(int status) {
  ended_ = status;
  QCoreApplication::exit(status);
}

}  // namespace lunavox

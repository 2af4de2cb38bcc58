#include "app/ui/window_shell.h"

#include "edit/block_selection.h"
#include "files/ui/drum_kit_dialog.h"
#include "files/ui/instrument_dialog.h"
#include "midi/ui/input_device_dialog.h"
#include "midi/ui/record_options_dialog.h"

#include <QApplication>
#include <QScreen>

namespace lunavox {
namespace {

Screen primary_screen() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {size.width(), size.height()};
}

}  // namespace

WindowShell::WindowShell(const Machine& machine, const StartUp::Wishes& wishes, Dialogs* dialogs)
    : folders_(machine.folders),
      dialogs_(dialogs != nullptr ? *dialogs : screen_dialogs_),
      count_in_(std::make_unique<CountInDialog>()),
      editor_(std::make_unique<Editor>(
          World{machine.outputs, machine.inputs, machine.clock, dialogs_, progress_, *count_in_},
          primary_screen())),
      config_(folders_.config_file()),
      start_up_(*editor_, config_, folders_, wishes),
      keyboard_(editor_->note_keys, editor_->typing_mode, wishes.keyboard),
      skin_(folders_.skin),
      driver_(editor_->current_loop, machine.clock) {
  Editor& e = *editor_;
  const WindowModel model = {e.song,
                             e.flags,
                             e.screen,
                             e.song_length,
                             e.options,
                             e.pictures,
                             e.transport,
                             e.recorder,
                             e.xg_effects,
                             e.bookmarks,
                             e.outputdev,
                             e.output,
                             e.voice_name.text,
                             e.song_file.current_name,
                             keyboard_,
                             skin_};
  window_ = std::make_unique<MainWindow>(model, window_commands());
  record_options_ = std::make_unique<RecordOptionsDialog>(e.options, dialogs_, window_.get());
  instrument_ = std::make_unique<InstrumentDialog>(e.voice_choice, window_.get());
  drum_kit_ = std::make_unique<DrumKitDialog>(e.drum_choice, window_.get());
  count_in_->setParent(window_.get(), Qt::Dialog);
  tie();
}

WindowShell::~WindowShell() {
  progress_.set_window(nullptr);
  count_in_->setParent(nullptr);
}

void WindowShell::tie() {
  Editor& e = *editor_;
  screen_dialogs_.set_window(window_.get());
  progress_.set_window(window_.get());
  e.notequeue.set_wake([this] { driver_.wake(); });
  e.shell = {[this](int status) { end(status); }, [this] { drum_kit_->open(); },
             [this] { instrument_->open(); }, [this] { window_->focus_tracks(); }};
  count_in_->set_hooks([&e] { e.realtime_loop.cancel(); }, [this] { window_->focus_tracks(); });
  start_up_.set_hooks({[this](const std::vector<std::string>& names) { choose_input(names); },
                       [this] { window_->refresh_status(); }});
}

MenuCommands WindowShell::menu_commands() {
  Editor& e = *editor_;
  MenuCommands commands;
  commands.menuquit = [this] { window_->close(); };
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
  return {menu_commands(), [&e](int column, int row) { e.curves.effects_click(column, row); },
          [this] { record_options_->show(); }, [this] { return may_close(); },
          [&e] { return e.input.status(); }};
}

bool WindowShell::may_close() {
  editor_->close_ports();
  return true;
}

void WindowShell::choose_input(const std::vector<std::string>& names) {
  InputDeviceDialog dialog(names, dialogs_, window_.get());
  if (dialog.exec() == QDialog::Accepted) {
    start_up_.getinputid(dialog.device());
  } else {
    end(0);
  }
}

void WindowShell::start() {
  window_->show();
  start_up_.load();
  window_->focus_tracks();
}

void WindowShell::end(int status) {
  ended_ = status;
  QCoreApplication::exit(status);
}

}  // namespace lunavox

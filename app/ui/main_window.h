#pragma once

#include "app/ui/menus.h"
#include "app/ui/panels.h"
#include "app/ui/song_grids.h"
#include "app/ui/status_line.h"
#include "grid/song_length.h"
#include "midi/output_port.h"

#include <QMainWindow>
#include <functional>
#include <string>

namespace lunavox {

class NoteKeyboard;
class PanelStrip;
class SkinPictures;

/// What the main window shows and lets the user change.
struct WindowModel {
  Song& song;
  Flags& flags;
  Screen& screen;
  SongLength& song_length;
  RecordOptions& options;
  ButtonPictures& pictures;
  Transport& transport;
  Recorder& recorder;
  XgEffects& xg_effects;
  Bookmarks& bookmarks;
  OutputChoice& outputdev;
  OutputPort& output;
  Property<std::string>& voice_name;
  Property<std::vector<std::string>>& recent;  ///< the latest songs' names
  Property<std::string>& file_name;  ///< the current song file's name, empty for a new song
  NoteKeyboard& keyboard;
  SkinPictures& skin;
};

/// What the main window's menus and buttons end in outside of it.
struct WindowCommands {
  MenuCommands menu;
  std::function<void(int column, int row)> effects_click;
  std::function<void()> realtime_checked;  ///< shows the realtime record options
  /// Closes the ports and ends the program after asking about unsaved work; false where the user
  /// wants to go on.
  std::function<bool()> quit;
  std::function<void(const std::string& name)> open_song;  ///< a file was dropped on the window
  std::function<std::string()> input_status;
  /// Why unsaved work would be lost if the program ended now; empty when it would not.
  std::function<std::string()> keeping_problem;
  /// Takes MIDI devices up again that have come back. Called once a second.
  std::function<void()> look_after_devices;
};

/// The main window `Form1`: composes the menus, the panels, the three grids and the status line.
class MainWindow : public QMainWindow, private CellGridObserver {
 public:
  MainWindow(const WindowModel& model, const WindowCommands& commands);
  ~MainWindow() override;

  /// Gives the keys to the note grid.
  void focus_tracks();
  /// Shows anew what nobody reports: the file's name, the devices' states.
  void refresh_status();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void add_panels(PanelStrip& strip);
  void add_number_panels(PanelStrip& strip);
  void preview_key(const QKeyEvent& event);
  /// @return true where a box came up and went meanwhile
  bool leave_field_for(const QWidget& pressed);
  void show_cursor();
  void show_devices();
  void restore_place();

  // The status line follows the cursor, the cell under it and the song around it.
  void cells_changed(const CellRegion& region) override;
  void shape_changed() override { show_cursor(); }
  void selection_changed() override { show_cursor(); }

  WindowModel model_;
  WindowCommands commands_;
  SongGrids* grids_;
  StatusLine* status_;
  bool box_came_ = false;
};

}  // namespace lunavox

#pragma once

#include "grid/flags.h"
#include "grid/song.h"
#include "grid/ui/grid_view.h"

#include <functional>

namespace lunavox {

class NoteKeyboard;

/// The grid `tracks`: notes and effect values, played and typed with the keys.
class TracksView : public GridView {
 public:
  /// @param curs  the check box "Follow the cursor"
  TracksView(Song& song, const Flags& flags, const Property<bool>& curs, NoteKeyboard& keyboard);

  /// Opens the grid's popup menu at a point of the screen.
  void on_popup(std::function<void(QPoint)> popup) { popup_ = std::move(popup); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool follows_cursor() const override;
  bool is_beat_line(int row) const override;

 private:
  void popup_for(const QMouseEvent& released);

  const Flags& flags_;
  const Property<bool>& curs_;
  NoteKeyboard& keyboard_;
  std::function<void(QPoint)> popup_;
};

/// The grid `effects`: each track's settings of its voice and its ten curves.
class EffectsView : public GridView {
 public:
  /// @param click  a cell was clicked: column and row of the grid
  EffectsView(Song& song, std::function<void(int column, int row)> click);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void cell_pressed() override;
  bool shows_cursor() const override { return hasFocus(); }
  bool selects() const override { return false; }
  bool is_switch_column(int column) const override;

 private:
  std::function<void(int, int)> click_;
};

/// The grid `channels`: one header cell a track.
class ChannelsView : public GridView {
 public:
  explicit ChannelsView(Song& song);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  bool shows_cursor() const override { return false; }
};

}  // namespace lunavox

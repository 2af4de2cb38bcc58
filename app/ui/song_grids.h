#pragma once

#include "grid/flags.h"
#include "grid/screen.h"
#include "grid/song.h"

#include <QWidget>
#include <functional>

class QScrollBar;

namespace lunavox {

class ChannelsView;
class EffectsView;
class NoteKeyboard;
class TracksView;

/// The song's three grids, one above the other: a track's header, its three settings columns and
/// its nine note columns stand in line and are scrolled together by the bar `defilchan`, whole
/// tracks at a time.
class SongGrids : public QWidget, private CellGridObserver {
 public:
  struct Model {
    Song& song;
    const Flags& flags;
    Screen& screen;
    const Property<bool>& curs;
  };

  SongGrids(const Model& model, NoteKeyboard& keyboard,
            std::function<void(int column, int row)> effects_click);

  ~SongGrids() override;

  TracksView& tracks() { return *tracks_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A cursor that comes to a track out of view brings the track into view.
  void cursor_moved(CellPosition from) override;
  void lay_out();
  void fit_scroll_bar();
  int tracks_shown() const;

  Model model_;
  ChannelsView* channels_;
  EffectsView* effects_;
  TracksView* tracks_;
  QScrollBar* defilchan_;
};

}  // namespace lunavox

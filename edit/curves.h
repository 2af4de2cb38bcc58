#pragma once

#include "edit/interpolation.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/progress.h"
#include "grid/song.h"

#include <functional>

namespace lunavox {

/// The controller curves: the `effects` grid's clicks, the interpolation between key values, and
/// the effect columns of `tracks`.
///
/// The procedures that go through an effect column leave the cursor of `tracks` where the walk
/// ends. They write the cells first and move the cursor once, so that whoever observes the cursor
/// is not led through thousands of cells.
class Curves {
 public:
  struct Hooks {
    std::function<void()> choose_drum_kit;    ///< opens the drum kit dialog
    std::function<void()> choose_instrument;  ///< opens the instrument dialog
    /// Takes what is being typed into an effect cell: it belongs to the curve that is shown now.
    std::function<void()> finish_typing;
  };

  Curves(Song& song, Flags& flags, Dialogs& dialogs, ProgressBox& progress);

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }

  /// A cell of the `effects` grid was clicked. Header cells do nothing.
  void effects_click(int column, int row);

  /// Recomputes the shown curve of the current track around the cursor row of `tracks`, in the
  /// table and in the effect column.
  void refreshfxs();
  /// Recomputes the curve whose row is current in `effects`, in the table only: the column shows
  /// another one.
  void refreshfxs2();

  /// Redraws the effect column of the current track.
  void showeffect();
  /// Redraws the effect columns of all tracks from a row to the last.
  void addfxs(int first_row);

 private:
  void switch_active(int track, int column, int row);
  void start_value_click(int track, int column, int row);
  void choose_voice(int track);
  void set_start_value(int track, int column, int row, double value);
  void show_curve(int track, int column, int row);
  void interpolate(int effect, bool shown);
  void fill(const Segment& segment, int effect, bool shown);
  void show_value(int track, int row);

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  ProgressBox& progress_;
  Hooks hooks_;
};

}  // namespace lunavox

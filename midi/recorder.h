#pragma once

#include "grid/dialogs.h"
#include "midi/realtime_record_loop.h"
#include "midi/stage.h"

#include <functional>

namespace lunavox {

/// The button `recordnotes` and the space bar, which start and stop recording.
class Recorder {
 public:
  Recorder(const Stage& stage, Dialogs& dialogs, RealtimeRecordLoop& realtime);

  /// Gives the keyboard focus to the `tracks` grid.
  void set_focus_tracks(std::function<void()> focus) { focus_tracks_ = std::move(focus); }

  void recordnotes_mousedown();
  /// Starts step or realtime recording at the cursor, as the check box `realtime` says, or stops
  /// it.
  void recordnotes_click();
  /// The space bar in the `tracks` grid: starts step recording at the cursor, or stops any.
  void space_bar();

 private:
  bool cursor_in_note_column() const;
  void engage();
  void stop_playback();
  void stop_recording();
  void refuse();

  Stage stage_;
  Dialogs& dialogs_;
  RealtimeRecordLoop& realtime_;
  std::function<void()> focus_tracks_;
};

}  // namespace lunavox

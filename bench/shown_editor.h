#pragma once

#include "app/ui/window_shell.h"
#include "bench/quiet_editor.h"
#include "bench/scratch_folder.h"

class QWidget;

namespace lunavox::bench {

/// Where the editor asks and tells.
enum class Boxes {
  kAnswered,  ///< nothing is shown
  kOnScreen,
};

/// The editor in its window, 1600 by 1200, with the largest song.
class ShownEditor {
 public:
  /// @param outputs  where it plays to
  /// @param lines    of the song
  /// @param boxes    who answers its questions
  explicit ShownEditor(OutputDevices& outputs, int lines = kMostLines,
                       Boxes boxes = Boxes::kAnswered);

  Editor& editor() { return shell_.editor(); }
  QWidget& window() { return shell_.window(); }
  OneAnswer& dialogs() { return dialogs_; }

  /// Handles window events until the note grid has been painted and the display has taken it.
  void show_changes();
  /// Handles window events until no more come.
  void settle();

 private:
  OneAnswer dialogs_;
  NullInputDevices inputs_;
  SystemClock clock_;
  ScratchFolder folder_;
  WindowShell shell_;
  QWidget* notes_;
};

}  // namespace lunavox::bench

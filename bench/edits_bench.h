#pragma once

#include "bench/figures.h"
#include "bench/quiet_editor.h"

namespace lunavox::bench {

/// What is between an edit and its being seen. By itself: nothing, in a run without a window.
struct Display {
  std::string where = ", without the window";  ///< ends the figures' names
  std::function<void()> settle = [] {};  ///< gets over with what the preparations have changed
  std::function<void()> show = [] {};    ///< returns when the edit is on the screen
  Now now = processor_seconds;
};

/// The edits that the user is to take for immediate, on the longest song: bending a curve over all
/// its lines, drawing all ten effect columns, transposing and pasting 8 columns.
void add_edit_figures(Figures& figures, Editor& editor, OneAnswer& dialogs,
                      const Display& display = {});

}  // namespace lunavox::bench

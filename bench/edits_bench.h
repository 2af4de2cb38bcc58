#pragma once

#include "bench/figures.h"
#include "bench/quiet_editor.h"

namespace lunavox::bench {

/// The edits that the user is to take for immediate, on the longest song: bending a curve over all
/// its lines, drawing all ten effect columns, transposing and pasting 8 columns.
/// @param where  ends the figures' names
/// @param show   brings what has changed to the screen, within the time that counts
void add_edit_figures(Figures& figures, Editor& editor, OneAnswer& dialogs,
                      const std::string& where, const std::function<void()>& show);

}  // namespace lunavox::bench

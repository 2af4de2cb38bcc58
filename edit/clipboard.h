#pragma once

#include "edit/block_selection.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"

#include <string>
#include <vector>

namespace lunavox {

/// Copy, cut and paste of a block of note cells. The clipboard is the program's own and is kept
/// until the next copy or cut. Cursor and selection stay where the user left them.
class Clipboard {
 public:
  Clipboard(Song& song, Flags& flags, Dialogs& dialogs);

  /// Copies the selected block.
  void copyproc();
  /// Copies the selected block and empties it.
  void cutproc();
  /// Pastes at the cursor, which is the block's first cell; the notes go over to the channels of
  /// the tracks that they come to. Does nothing before the first copy or cut.
  void pasteproc();

  /// Whether there is something to paste.
  bool can_paste() const { return !cells_.empty(); }

 private:
  struct Copied {
    std::string text;
    Colour text_colour;
    std::string entry;
  };

  void copy(const CellRegion& block);
  void clear(const CellRegion& block);
  void paste_cell(CellPosition cell, const Copied& copied);
  bool fits(const CellRegion& target) const;

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  int row_span_ = 0;           ///< rows minus one
  int column_span_ = 0;        ///< columns minus one
  std::vector<Copied> cells_;  ///< column after column
};

}  // namespace lunavox

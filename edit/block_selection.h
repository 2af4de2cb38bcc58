#pragma once

#include "grid/cell_grid.h"
#include "grid/dialogs.h"
#include "grid/song.h"

#include <optional>

namespace lunavox {

/// The selection of `tracks` where it is a block of note cells: within one track and with neither
/// corner in an effect column. None otherwise.
std::optional<CellRegion> selected_block(const Song& song);

/// As above; a selection that is no such block is refused with a message.
std::optional<CellRegion> selected_block(const Song& song, Dialogs& dialogs);

/// Whether the selection is a block of note cells with at least one note.
bool block_has_notes(const Song& song);

/// Calls a function with the place of each cell of a block: column after column, each from its
/// first row.
template <class Visit>
void visit_block(const CellRegion& block, Visit visit) {
  for (int column = block.first_column; column <= block.last_column; ++column) {
    for (int row = block.first_row; row <= block.last_row; ++row) {
      visit(CellPosition{row, column});
    }
  }
}

/// The note store's entry behind a cell of `tracks`.
inline const std::string& entry_of(const Song& song, CellPosition cell) {
  return song.notes.at(track_of_column(cell.column), sub_column_of(cell.column), cell.row);
}

/// Writes an entry of the note store behind a cell of `tracks`. The cell is not touched.
inline void write_entry_of(Song& song, CellPosition cell, const std::string& entry) {
  song.write_entry(track_of_column(cell.column), sub_column_of(cell.column), cell.row, entry);
}

}  // namespace lunavox

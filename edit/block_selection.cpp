#include "edit/block_selection.h"

#include "grid/note_text.h"

namespace lunavox {

std::optional<CellRegion> selected_block(const Song& song) {
  const int cursor = song.tracks.cursor().column;
  const int end = song.tracks.selection_end().column;
  const bool one_track = track_of_column(cursor) == track_of_column(end);
  if (!one_track || sub_column_of(cursor) == 0 || sub_column_of(end) == 0) return std::nullopt;
  return song.tracks.selection();
}

std::optional<CellRegion> selected_block(const Song& song, Dialogs& dialogs) {
  const auto block = selected_block(song);
  if (!block) {
    dialogs.error("You must select only in the same track, without the effects !", "Error");
  }
  return block;
}

bool block_has_notes(const Song& song) {
  const auto block = selected_block(song);
  bool found = false;
  if (block) {
    visit_block(*block, [&](CellPosition cell) { found = found || is_note(entry_of(song, cell)); });
  }
  return found;
}

}  // namespace lunavox

#include "edit/clipboard.h"

#include "grid/redraw_pause.h"
#include "grid/runtime_numbers.h"

#include <utility>

namespace lunavox {
namespace {

/// The last digit of a channel number's decimal text: the channel digit of channels 0..9.
char last_digit(std::int16_t channel) {
  return plain_number(channel).back();
}

}  // namespace

Clipboard::Clipboard(Song& song, Flags& flags, Dialogs& dialogs)
    : song_(song), flags_(flags), dialogs_(dialogs) {}

void Clipboard::copyproc() {
  if (const auto block = selected_block(song_, dialogs_)) copy(*block);
}

void Clipboard::cutproc() {
  const auto block = selected_block(song_, dialogs_);
  if (!block) return;
  copy(*block);
  clear(*block);
  flags_.modified = true;
}

void Clipboard::copy(const CellRegion& block) {
  row_span_ = block.last_row - block.first_row;
  column_span_ = block.last_column - block.first_column;
  // Afresh, so that a few cells do not keep the memory of a whole track that was copied before.
  std::vector<Copied> cells;
  cells.reserve(static_cast<std::size_t>(row_span_ + 1) *
                static_cast<std::size_t>(column_span_ + 1));
  visit_block(block, [&](CellPosition cell) {
    const Cell& shown = song_.tracks.cell(cell.row, cell.column);
    cells.push_back({shown.text, shown.text_colour, entry_of(song_, cell)});
  });
  cells_ = std::move(cells);
}

void Clipboard::clear(const CellRegion& block) {
  const RedrawPause pause(song_.tracks);
  visit_block(block, [&](CellPosition cell) {
    song_.tracks.set_text(cell.row, cell.column, {});
    write_entry_of(song_, cell, {});
  });
}

void Clipboard::pasteproc() {
  if (!can_paste()) return;
  const CellPosition at = song_.tracks.cursor();
  const CellRegion target{at.row, at.column, at.row + row_span_, at.column + column_span_};
  if (!fits(target)) {
    dialogs_.error("Not enough space to paste selection", "Error");
    return;
  }
  const RedrawPause pause(song_.tracks);
  auto copied = cells_.cbegin();
  visit_block(target, [&](CellPosition cell) { paste_cell(cell, *copied++); });
  flags_.modified = true;
}

bool Clipboard::fits(const CellRegion& target) const {
  // A block may run over an effect column into the next track; only its first and its last column
  // are looked at.
  if (sub_column_of(target.first_column) == 0 || sub_column_of(target.last_column) == 0) {
    return false;
  }
  return target.last_row <= song_.last_row() && target.last_column < song_.tracks.columns();
}

void Clipboard::paste_cell(CellPosition cell, const Copied& copied) {
  song_.tracks.set_text(cell.row, cell.column, copied.text);
  song_.tracks.set_text_colour(cell.row, cell.column, copied.text_colour);
  std::string entry = copied.entry;
  // Note-off markers end in "p".
  if (!entry.empty() && entry.back() != 'p') {
    entry.back() = last_digit(song_.channel.at(track_of_column(cell.column)));
  }
  write_entry_of(song_, cell, entry);
}

}  // namespace lunavox

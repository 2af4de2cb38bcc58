#include "cell_texts.h"

#include "edit/block_selection.h"
#include "grid/note_text.h"

namespace lunavox::test {
namespace {

constexpr std::size_t kTail = 4;  // of an entry, behind its velocity

/// How a note is shown while its velocity has one digit: what is read as its number then is not.
std::string misread(const std::string& entry) {
  return shown_note("0" + entry.substr(entry.size() - kTail)).text();
}

/// Octave 10 reads as 10 where a note is shown, and as 0 where it is transposed.
bool reads_as(const std::string& text, int note) {
  const std::string name(note_name(note % 12));
  const int octave = note / 12;
  return text == name + std::to_string(octave) || text == name + std::to_string(octave % 10);
}

bool note_cell_agrees(const std::string& text, const std::string& entry) {
  if (!is_note(entry)) return text == entry;
  const bool soft = entry.size() == kTail + 1;
  return reads_as(text, note_of(entry)) || (soft && text == misread(entry));
}

bool effect_cell_agrees(const std::string& text, int value) {
  // With a blank before it where the column was shown by opening a file.
  return text == std::to_string(value) || text == " " + std::to_string(value);
}

bool agrees(const Song& song, CellPosition cell) {
  const std::string& text = song.tracks.text(cell.row, cell.column);
  if (sub_column_of(cell.column) != 0) return note_cell_agrees(text, entry_of(song, cell));
  const int track = track_of_column(cell.column);
  return effect_cell_agrees(text, song.values.at(track, song.shown_effect.at(track), cell.row));
}

bool contains(const CellRegion& region, CellPosition cell) {
  return region.first_row <= cell.row && cell.row <= region.last_row &&
         region.first_column <= cell.column && cell.column <= region.last_column;
}

}  // namespace

void CellTexts::remember(const Editor& editor, const Action& action) {
  deed_ = action.deed;
  cursor_ = editor.song.tracks.cursor();
  typing_ = editor.typing_mode.typing();
  block_ = selected_block(editor.song);
  // Tidying up ends with a copy of one cell.
  if (deed_ == Deed::kTidyUp) copied_rows_ = copied_columns_ = 1;
  if (!block_ || (deed_ != Deed::kCopy && deed_ != Deed::kCut)) return;
  copied_rows_ = block_->last_row - block_->first_row + 1;
  copied_columns_ = block_->last_column - block_->first_column + 1;
}

std::string CellTexts::check(const Editor& editor) {
  const Song& song = editor.song;
  Texts odd = odd_cells(song);
  // While it is typed into, a cell is what the user makes it, and afterwards what it was.
  if (editor.typing_mode.typing()) {
    odd.erase(song.tracks.cursor());
    const auto before = odd_.find(song.tracks.cursor());
    if (before != odd_.end()) odd.insert(*before);
  }
  std::string wrong;
  for (const auto& [cell, text] : odd) {
    const auto before = odd_.find(cell);
    if (before != odd_.end() && before->second == text) continue;
    if (!wrong.empty() || may_become_odd(song, cell)) continue;
    wrong = "cell in row " + std::to_string(cell.row) + ", column " + std::to_string(cell.column) +
            " reads \"" + text + "\"";
  }
  odd_ = std::move(odd);
  return wrong;
}

CellTexts::Texts CellTexts::odd_cells(const Song& song) {
  Texts odd;
  for (int column = 1; column < song.tracks.columns(); ++column) {
    for (int row = 1; row <= song.last_row(); ++row) {
      if (!agrees(song, {row, column})) odd[{row, column}] = song.tracks.text(row, column);
    }
  }
  return odd;
}

bool CellTexts::may_become_odd(const Song& song, CellPosition cell) const {
  const std::string& text = song.tracks.text(cell.row, cell.column);
  const bool effect_cell = sub_column_of(cell.column) == 0;
  switch (deed_) {
    case Deed::kPressKey:
      // The keys that empty or end a note do so in an effect column too once its typing has ended:
      // the value behind the cell stays.
      return effect_cell && !typing_ && cell == cursor_ && (text.empty() || text == kStop);
    case Deed::kPaste:
      // A block that runs over an effect column covers its values, and cells that read otherwise
      // are copied as they are.
      return contains({cursor_.row, cursor_.column, cursor_.row + copied_rows_ - 1,
                       cursor_.column + copied_columns_ - 1},
                      cell);
    case Deed::kVelocityValue:
    case Deed::kVelocityPercent:
      // A misread note that is made louder goes on reading as it did.
      return !effect_cell && block_ && contains(*block_, cell) && is_note(entry_of(song, cell)) &&
             text == misread(entry_of(song, cell));
    default:
      return false;
  }
}

}  // namespace lunavox::test

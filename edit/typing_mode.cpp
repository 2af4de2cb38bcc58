#include "edit/typing_mode.h"

#include "grid/runtime_numbers.h"

#include <cmath>

namespace lunavox {
namespace {

constexpr int kMinimumValue = 0;
constexpr int kMaximumValue = 127;

constexpr char kBackspace = 8;
constexpr char kEnter = 13;

bool is_control(std::string_view character) {
  const auto c = static_cast<unsigned char>(character.front());
  return c < 32 || c == 127;
}

/// Takes off the last UTF-8 character: its continuation bytes and the byte that leads them.
std::string_view without_last_character(std::string_view text) {
  while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) {
    text.remove_suffix(1);
  }
  if (!text.empty()) text.remove_suffix(1);
  return text;
}

}  // namespace

TypingMode::TypingMode(Song& song, Flags& flags, Dialogs& dialogs, Curves& curves)
    : song_(song), flags_(flags), dialogs_(dialogs), curves_(curves) {
  song_.tracks.add_observer(this);
}

TypingMode::~TypingMode() {
  song_.tracks.remove_observer(this);
}

void TypingMode::key_press(std::string_view character) {
  if (!typing() || character.empty()) return;
  const char first = character.front();
  if (is_control(character) && first != kBackspace && first != kEnter) return;
  editmode_ = EditMode::kTyped;
  if (first == kEnter) {
    commit();
  } else if (first == kBackspace) {
    set_cell_text(without_last_character(std::string(cell_text())));
  } else {
    set_cell_text(cell_text() + std::string(character));
  }
}

void TypingMode::finish() {
  if (editmode_ == EditMode::kTyped) commit();
}

void TypingMode::leaving_cell() {
  if (editmode_ == EditMode::kCommitting) return;
  if (typing() && !building()) commit();
}

void TypingMode::cursor_moved(CellPosition /*from*/) {
  // A commit redraws the curve through the cursor's cells; that is not the user entering them.
  if (editmode_ == EditMode::kCommitting) return;
  // Still typing here means that the cell is gone, cut off with its row or column.
  editmode_ = EditMode::kNotes;
  const CellPosition here = song_.tracks.cursor();
  if (building() || here.row == 0 || here.column == 0 || sub_column_of(here.column) != 0) return;
  editmode_ = EditMode::kEntered;
  savedcell_ = cell_text();
  if (entered_) entered_();
}

void TypingMode::commit() {
  flags_.modified = true;
  const bool typed = editmode_ == EditMode::kTyped;
  editmode_ = EditMode::kCommitting;
  if (typed) {
    song_.actualtrack();
    take_text();
    curves_.refreshfxs();
  }
  editmode_ = EditMode::kNotes;
}

void TypingMode::take_text() {
  if (cell_text().empty()) {
    clear_key();
    return;
  }
  const double value = std::nearbyint(leading_number(cell_text()));  // halves to even
  if (value >= kMinimumValue && value <= kMaximumValue) {
    set_key(static_cast<int>(value));
  } else {
    refuse("Invalid value (0-127)");
  }
}

void TypingMode::clear_key() {
  const int row = song_.tracks.row();
  if (row == 1) {
    refuse("you can't delete key attribute for the first line !");
    return;
  }
  const int track = song_.current_track;
  song_.key_attributes.at(track, song_.shown_effect.at(track), row) = 0;
  song_.tracks.set_text_colour(row, song_.tracks.column(), kBlack);
}

void TypingMode::set_key(int value) {
  const int row = song_.tracks.row();
  const int track = song_.current_track;
  const int effect = song_.shown_effect.at(track);
  song_.values.at(track, effect, row) = static_cast<std::int16_t>(value);
  song_.key_attributes.at(track, effect, row) = 1;
  song_.tracks.set_text_colour(row, song_.tracks.column(), kKeyValue);
  if (row == 1) {
    song_.effects.set_text(effect, effects_column(track, Setting::kStartValue),
                           plain_number(value));
  }
}

void TypingMode::refuse(const std::string& reason) {
  // The cell first: while the message stands, a song that plays may carry the cursor on.
  set_cell_text(savedcell_);
  dialogs_.error(reason, "error");
}

const std::string& TypingMode::cell_text() const {
  return song_.tracks.text(song_.tracks.row(), song_.tracks.column());
}

void TypingMode::set_cell_text(std::string_view text) {
  song_.tracks.set_text(song_.tracks.row(), song_.tracks.column(), text);
}

}  // namespace lunavox

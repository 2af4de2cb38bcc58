#pragma once

#include "edit/curves.h"
#include "grid/cell_grid.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"

#include <functional>
#include <string>
#include <string_view>

namespace lunavox {

/// What the keys do in the `tracks` grid.
enum class EditMode {
  kNotes = 0,       ///< they play notes
  kEntered = 1,     ///< the cursor has come to an effect cell, nothing is typed yet
  kTyped = 2,       ///< text has been typed into the cell
  kCommitting = 3,  ///< the text is being taken
};

/// Typing into the effect columns. The text of an effect cell becomes a key value of the curve that
/// its track shows, once Enter is pressed or the cursor leaves the cell.
///
/// Observes the cursor of `tracks` for its lifetime. While a song is built or loaded the cursor's
/// moves are not the user's: they are passed over, and what was being typed is dropped.
class TypingMode : public CellGridObserver {
 public:
  TypingMode(Song& song, Flags& flags, Dialogs& dialogs, Curves& curves);
  ~TypingMode() override;
  TypingMode(const TypingMode&) = delete;
  TypingMode& operator=(const TypingMode&) = delete;

  EditMode editmode() const { return editmode_; }
  /// True while keys are text and not notes.
  bool typing() const { return editmode_ != EditMode::kNotes; }
  /// The text that the effect cell held when the cursor entered it.
  const std::string& savedcell() const { return savedcell_; }

  /// Told when the cursor enters an effect cell: from now on no key release is a note's.
  void on_enter(std::function<void()> entered) { entered_ = std::move(entered); }

  /// A key that makes a character was pressed in the grid. Backspace (8) takes off the cell's last
  /// character, Enter (13) commits, any other character is appended. Control characters that nobody
  /// can see are passed over. Does nothing in note columns.
  /// @param character one character in UTF-8
  void key_press(std::string_view character);

  /// Commits what has been typed, if anything has.
  void finish();

  void leaving_cell() override;
  void cursor_moved(CellPosition from) override;

 private:
  void commit();
  void take_text();
  void clear_key();
  void set_key(int value);
  void refuse(const std::string& reason);
  const std::string& cell_text() const;
  void set_cell_text(std::string_view text);
  bool building() const { return flags_.song_building || flags_.song_loading; }

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  Curves& curves_;
  EditMode editmode_ = EditMode::kNotes;
  std::string savedcell_;
  std::function<void()> entered_;
};

}  // namespace lunavox

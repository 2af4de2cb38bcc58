#pragma once

#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"

#include <optional>
#include <string>

namespace lunavox {

/// Velocity and transpose tools on the notes of the selected block. Each asks for a number first.
/// Cursor and selection stay where the user left them.
class BlockTools {
 public:
  BlockTools(Song& song, Flags& flags, Dialogs& dialogs);

  /// Gives every note one velocity, 0..127.
  void velovalue();
  /// Brings every note's velocity to 0..400 percent of itself, at most 127. Velocity times percent
  /// is reckoned in 16 bits: an overflow is told and ends the work where it stands.
  void velopercent();
  /// Moves every note by a number of semitones, within 16..127.
  void transproc();

 private:
  /// Calls `rewrite` with each note's cell and entry until it returns false. The block is the one
  /// that was selected before the question: a song that plays goes on while the box stands.
  template <class Rewrite>
  void rewrite_notes(const CellRegion& block, Rewrite rewrite);
  std::optional<int> ask_number(const Question& question, int maximum);
  void set_velocity(CellPosition cell, const std::string& entry, int velocity);
  void set_note(CellPosition cell, const std::string& entry, int note);

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
};

}  // namespace lunavox

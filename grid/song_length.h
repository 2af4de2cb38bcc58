#pragma once

#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/progress.h"
#include "grid/property.h"
#include "grid/song.h"

#include <cstdint>
#include <functional>
#include <string>

namespace lunavox {

/// The song's length, tempo, lines per beat and what follows from them: line numbers, beat marks
/// and the duration label.
class SongLength {
 public:
  SongLength(Song& song, Flags& flags, Dialogs& dialogs, ProgressBox& progress);

  /// Redraws every track's effect column from a row to the last; lies in a higher room. The row is
  /// past the last where the song became shorter.
  void set_addfxs(std::function<void(int first_row)> addfxs) { addfxs_ = std::move(addfxs); }

  // The user's entries. Each is true when accepted; otherwise the field's message has been shown
  // and the text box is to show the last valid text again.
  bool bpm_change(const std::string& text);
  bool length_validate(const std::string& text);
  bool number_change(const std::string& text);
  bool step_change(const std::string& text);
  bool strength_change(const std::string& text);

  /// Gives the grid and the stores `length` lines: new lines continue every curve at its last
  /// value, and hold no notes. While a song is being built or loaded every line after the first is
  /// filled from the first.
  void lengthchange();
  /// Writes the line numbers, hexadecimal from the second line on.
  void numero();
  /// Marks the lines that are a multiple of the lines per beat.
  void numberchange();
  /// Writes the song's duration into the label `timemin`, such as " 0:08".
  void calcultime();

  /// The label `timemin`.
  Property<std::string> timemin;

 private:
  /// Enters a text into a field that belongs to the song.
  bool enter(NumberField& field, const std::string& text);
  void continue_curves(int old_row_count);

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  ProgressBox& progress_;
  std::function<void(int)> addfxs_;
};

/// "minutes:seconds" of a number of lines: the minutes with the number printing's leading blank,
/// the seconds as two digits, rounded half to even before the minutes are taken off.
/// @throws RuntimeError (Division by zero)
std::string duration_text(double lines, double lines_per_beat, double beats_per_minute);

/// Milliseconds of one line, 60 / (bpm * lines per beat) * 1000, rounded half to even.
/// @throws RuntimeError (Division by zero)
std::int32_t line_period_ms(double beats_per_minute, double lines_per_beat);

}  // namespace lunavox

#pragma once

#include <cstdint>
#include <vector>

namespace lunavox {

/// A straight stretch of a curve between two rows, both included.
struct Segment {
  int first_row = 1;
  int last_row = 1;
  int first_value = 0;
  int last_value = 0;

  bool operator==(const Segment&) const = default;
};

/// What an edit of one row makes of the curve around it: nothing outside these two stretches
/// changes. A stretch of a single row stands for none.
struct CurveChange {
  Segment before;  ///< from the previous key to the edited row
  Segment after;   ///< from there to the next key, or to the end of the song

  /// Rows from the first to the last changed one, the first not counted.
  int length() const { return after.last_row - before.first_row; }
};

/// Finds the stretches around an edited row.
/// @param values, keys  one entry a row, indexed by row; row 0 is not used
/// @param row           the edited row, 1..last_row; it is a key unless it has just been cleared
/// @param last_row      the row of the song's last line
CurveChange curve_change(const std::vector<std::int16_t>& values,
                         const std::vector<std::uint8_t>& keys, int row, int last_row);

/// The value of a segment of at least two rows on one of them. The slope is formed first, then
/// multiplied, then the first value added, each in double precision; halves go to the even
/// neighbour.
/// @throws RuntimeError (Overflow)
std::int16_t value_on(const Segment& segment, int row);

}  // namespace lunavox

#pragma once

#include <string>

namespace lunavox {

/// The delta times of a track's note events, for lines whose time no controller event has advanced
/// yet. Such lines do not come up: a track without active curves writes its volume on each line.
/// The files would be wrong without this rule if one did.
class NoteDeltas {
 public:
  void begin_track() { last_event_line_ = 0; }
  void begin_line() { written_ = false; }

  /// The delta of the next note event as digit pairs: for the first of a line the time since the
  /// line of the last event, 0 for the others.
  /// @param row  grid row of the line
  std::string next(int row);

 private:
  int last_event_line_ = 0;  ///< its row; 0 at the start of the track
  bool written_ = false;     ///< on this line
};

}  // namespace lunavox

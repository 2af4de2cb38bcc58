#include "files/note_deltas.h"

#include "files/event_text.h"

namespace lunavox {

std::string NoteDeltas::next(int row) {
  if (written_) return "00";
  written_ = true;
  const int lines = row - last_event_line_;
  last_event_line_ = row;
  return computed_delta(lines);
}

}  // namespace lunavox

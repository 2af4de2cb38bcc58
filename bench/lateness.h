#pragma once

#include "bench/shown_editor.h"
#include "bench/stamped_output.h"

#include <vector>

namespace lunavox::bench {

/// Milliseconds by which lines were late, and beside them what the machine itself made of waits in
/// the same seconds.
struct Lateness {
  std::vector<double> lines;  ///< in the order of play
  std::vector<double> bare;

  /// Lines that did not come at all; one may be under way when the time is over.
  std::size_t missing() const {
    return bare.size() > lines.size() + 1 ? bare.size() - lines.size() : 0;
  }
};

/// Plays the full song from its first line at 300 beats a minute and 8 lines a beat, the window
/// following, and times the first message of each line against a grid that is laid out from the
/// first line. Meanwhile a thread that does nothing else waits for the middle of each line, the way
/// the editor waits for its beginning, and with the priority that the editor asks for.
/// @param seconds  1..70
Lateness time_lines(ShownEditor& shown, StampedOutputs& outputs, int seconds);

/// Short messages that the full song sends in some seconds, and a little more.
std::size_t messages_in(int seconds);

/// What a share of some numbers does not exceed. 0 where there is none.
/// @param share  0..1, 1 for all of them
double share_of(std::vector<double> numbers, double share);

}  // namespace lunavox::bench

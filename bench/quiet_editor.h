#pragma once

#include "app/console.h"
#include "app/editor.h"
#include "midi/ports/null_device.h"

#include <string>

namespace lunavox::bench {

inline constexpr int kMostLines = 3000;

/// Gives every input box the same answer.
class OneAnswer : public NoDialogs {
 public:
  std::string input(const Question&) override { return answer; }

  std::string answer;
};

/// Makes a song the largest that there can be: ten tracks, a number of lines, a note in every cell
/// of all 80 note columns, every curve active and changing on each line.
/// @param lines  2..3000
void fill_song(Editor& editor, int lines = kMostLines);

/// The editor with a new song, without a window and without devices.
struct QuietEditor {
  QuietEditor();

  OneAnswer dialogs;
  NoProgress progress;
  NoCountIn count_in;
  NullInputDevices inputs;
  NullOutputDevices outputs;
  ManualClock clock;
  Editor editor{{outputs, inputs, clock, dialogs, progress, count_in}, Screen(1600, 1200)};
};

}  // namespace lunavox::bench

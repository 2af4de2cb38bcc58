#pragma once

#include "midi/line_clock.h"
#include "midi/stage.h"

#include <string_view>

namespace lunavox {

/// Plays the song line by line from the cursor of `tracks`, which moves along.
class PlayLoop : public Loop {
 public:
  explicit PlayLoop(const Stage& stage) : stage_(stage) {}

  /// Takes the tempo from the fields, sets `playing` and becomes the current loop. The first line
  /// sounds one line period later.
  void start();

  /// Plays the cursor's line if it is due, and goes on to the next or ends the song. Where
  /// `playing` has been cleared the input loop takes over.
  void pass(std::uint32_t now) override;
  std::optional<std::uint32_t> next_due() const override;

 private:
  void play_line(int row);
  void play_effects(int track, int row);
  void play_note(int track, int column, std::string_view cell);
  void end_song();

  Stage stage_;
  LineClock line_clock_;
  bool in_pass_ = false;
};

}  // namespace lunavox

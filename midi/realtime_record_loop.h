#pragma once

#include "midi/count_in_window.h"
#include "midi/line_clock.h"
#include "midi/received_notes.h"
#include "midi/stage.h"

namespace lunavox {

/// Realtime recording: a count-in, then the cursor moves down one line per line period and what
/// arrives is written on the line that it has reached, with clicks on the beats if the metronome is
/// on.
class RealtimeRecordLoop : public Loop {
 public:
  RealtimeRecordLoop(const Stage& stage, ReceivedNotes& received, CountInWindow& window);

  /// Begins the count-in at the cursor's line, sets `playing` and becomes the current loop.
  /// `recording` is set already.
  void start();
  /// Ends the count-in or the recording: `playing` and `recording` are cleared, the record button
  /// is idle, and the input loop takes over. Nothing happens where this loop does not run.
  void stop();
  /// CANCEL of the count-in window.
  void cancel() { stop(); }

  bool running() const { return state_ != State::kIdle; }
  bool counting_in() const { return state_ == State::kCountIn; }

  void pass(std::uint32_t now) override;
  std::optional<std::uint32_t> next_due() const override;

 private:
  enum class State { kIdle, kCountIn, kRecording };

  std::string caption() const;
  int beats_left() const;
  void count_in_line();
  void begin_recording();
  void record_line();

  Stage stage_;
  ReceivedNotes& received_;
  CountInWindow& window_;
  LineClock line_clock_;
  State state_ = State::kIdle;
  int beat_offset_ = 0;
  int count_in_counter_ = 0;  ///< lines since the count-in began
  bool in_pass_ = false;
};

}  // namespace lunavox

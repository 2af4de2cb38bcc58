#include "midi/realtime_record_loop.h"

#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"
#include "grid/song_length.h"
#include "midi/pass_guard.h"
#include "midi/short_message.h"

#include <cmath>

namespace lunavox {
namespace {

/// Whether a number of lines is a whole number of beats.
/// @throws RuntimeError (Division by zero)
bool on_beat(int lines, const NumberField& lines_per_beat) {
  if (lines_per_beat.value() == 0) throw RuntimeError(RuntimeError::kDivisionByZero);
  return lines % lines_per_beat.value() == 0;
}

/// Lines from the last whole beat before a row to that row, counting beats from row 1.
int lines_into_beat(int row, const NumberField& lines_per_beat) {
  int lines = 0;
  while (!on_beat(row - 1 - lines, lines_per_beat)) ++lines;
  return lines;
}

}  // namespace

RealtimeRecordLoop::RealtimeRecordLoop(const Stage& stage, ReceivedNotes& received,
                                       CountInWindow& window)
    : stage_(stage), received_(received), window_(window) {}

void RealtimeRecordLoop::start() {
  const Song& song = stage_.song;
  beat_offset_ = lines_into_beat(song.tracks.row(), song.number);
  const std::int32_t period = line_period_ms(song.bpm.number(), song.number.number());
  line_clock_.start(stage_.clock.timeGetTime(), period);
  stage_.flags.playing = true;
  count_in_counter_ = 0;
  state_ = State::kCountIn;
  stage_.current.set(this);
  if (beats_left() > 0) {
    window_.show(caption());
  } else {
    begin_recording();
  }
}

void RealtimeRecordLoop::stop() {
  if (!running()) return;
  const bool window_shown = counting_in();
  state_ = State::kIdle;
  if (window_shown) window_.hide();
  stage_.flags.recording = false;
  stage_.pictures.recordnotes = "record1";
  // A key that is still held sounds on until it is released, which the input loop will see: nothing
  // needs to be silenced here.
  stage_.flags.playing = false;
  stage_.current.set(&stage_.listen);
}

void RealtimeRecordLoop::pass(std::uint32_t now) {
  if (in_pass_ || !running()) return;
  const PassGuard guard(in_pass_);
  if (counting_in()) {
    if (line_clock_.take_line(now)) count_in_line();
    return;
  }
  received_.handle_waiting(ReceivedNotes::Move::kStay);
  if (running() && line_clock_.take_line(now)) record_line();
}

std::optional<std::uint32_t> RealtimeRecordLoop::next_due() const {
  if (in_pass_ || !running()) return std::nullopt;
  return line_clock_.next_due();
}

std::string RealtimeRecordLoop::caption() const {
  return "Record start in " + print_number(beats_left());
}

int RealtimeRecordLoop::beats_left() const {
  const double lines_per_beat = stage_.song.number.number();
  if (lines_per_beat == 0) throw RuntimeError(RuntimeError::kDivisionByZero);
  const double beats = std::floor(count_in_counter_ / lines_per_beat);
  return stage_.options.before.value() - round_half_even(beats);
}

void RealtimeRecordLoop::count_in_line() {
  window_.set_caption(caption());
  if (stage_.options.metronome && on_beat(count_in_counter_, stage_.song.number)) {
    stage_.port.send(kMetronomeClick);
  }
  ++count_in_counter_;
  if (beats_left() > 0) return;
  window_.hide();
  begin_recording();
}

void RealtimeRecordLoop::begin_recording() {
  state_ = State::kRecording;
  stage_.flags.modified = true;
}

void RealtimeRecordLoop::record_line() {
  CellGrid& tracks = stage_.song.tracks;
  const int row = tracks.row();
  // Counted from the start line, so that the clicks go on with the count-in's beat.
  if (stage_.options.metronome && on_beat(row - 1 - beat_offset_, stage_.song.number)) {
    stage_.port.send(kMetronomeClick);
  }
  if (row < stage_.song.last_row()) {
    tracks.set_row(row + 1);
  } else {
    stop();
  }
}

}  // namespace lunavox

#include "listener.h"

namespace lunavox::test {

void Listener::listen() {
  take_messages();
  const Editor& e = bench_.editor;
  const std::uint32_t now = bench_.clock.timeGetTime();
  if (e.flags.playing) played_ms_ += elapsed_ms(heard_at_, now);
  heard_at_ = now;
  // Realtime recording leaves what is held sounding until it is released.
  const bool playing_song = e.flags.playing && e.current_loop.is(e.play_loop);
  if (playing_song != playing_song_) {
    const bool taken_over = e.flags.recording && !recording_;
    meet(playing_song ? PlayEvent::kPlays
                      : (taken_over ? PlayEvent::kTakenOver : PlayEvent::kStops));
  }
  playing_song_ = playing_song;
  recording_ = e.flags.recording;
}

void Listener::take_messages() {
  using Call = RecordingOutput::Call;
  for (const Call& call : bench_.output.calls) {
    if (call.kind == Call::kShort) ledger_.take_short(call.packed);
    if (call.kind == Call::kLong) ledger_.take_sysex();
    if (call.kind == Call::kReset) meet(PlayEvent::kDeviceReset);
  }
  bench_.output.calls.clear();
}

void Listener::meet(PlayEvent event) {
  ledger_.meet(event);
  if (bench_.log) marks_.push_back({ledger_.messages(), event});
}

std::vector<LogMark> Listener::take_marks() {
  if (bench_.log) bench_.log->flush();
  std::vector<LogMark> marks;
  marks.swap(marks_);
  return marks;
}

}  // namespace lunavox::test

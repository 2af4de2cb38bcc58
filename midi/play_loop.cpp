#include "midi/play_loop.h"

#include "grid/note_text.h"
#include "grid/runtime_numbers.h"
#include "grid/song_length.h"
#include "midi/pass_guard.h"
#include "midi/short_message.h"

namespace lunavox {

void PlayLoop::start() {
  const Song& song = stage_.song;
  const std::int32_t period = line_period_ms(song.bpm.number(), song.number.number());
  line_clock_.start(stage_.clock.timeGetTime(), period);
  stage_.flags.playing = true;
  stage_.current.set(this);
}

void PlayLoop::pass(std::uint32_t now) {
  if (in_pass_) return;
  if (!stage_.flags.playing) {
    if (stage_.current.is(*this)) stage_.current.set(&stage_.listen);
    return;
  }
  if (!line_clock_.take_line(now)) return;
  const PassGuard guard(in_pass_);
  // Read afresh on each line: a cursor that was moved takes playback along.
  const int row = stage_.song.tracks.row();
  play_line(row);
  if (row >= stage_.song.last_row()) {
    end_song();
  } else {
    stage_.song.tracks.set_row(row + 1);
  }
}

std::optional<std::uint32_t> PlayLoop::next_due() const {
  if (in_pass_) return std::nullopt;
  return line_clock_.next_due();
}

void PlayLoop::play_line(int row) {
  const Song& song = stage_.song;
  for (int track = 1; track <= song.track_count; ++track) {
    if (!song.active.at(track)[kInstrument]) continue;
    play_effects(track, row);
    for (int column = 1; column <= kNoteColumns; ++column) {
      play_note(track, column, song.notes.at(track, column, row));
    }
  }
}

void PlayLoop::play_effects(int track, int row) {
  const Song& song = stage_.song;
  const auto& active = song.active.at(track);
  const int channel = song.channel.at(track);
  for (int effect = kFirstCurve; effect <= kLastEffect; ++effect) {
    if (!active[static_cast<std::size_t>(effect)]) continue;
    // Sent whether it has changed or not: the module may have been switched on just now.
    stage_.port.send(curve_message(effect, channel, song.values.at(track, effect, row)));
  }
}

void PlayLoop::play_note(int track, int column, std::string_view cell) {
  OutputPort& port = stage_.port;
  if (cell.empty()) return;
  if (cell == kStop) {
    port.send_note_off(track, column);
    port.clear_note_off(track, column);
    return;
  }
  const std::uint32_t message = hex_value(cell);
  if (message == 0) return;
  port.send_note_off(track, column);
  port.send(message);
  port.keep_note_off(track, column, cell);
}

void PlayLoop::end_song() {
  stage_.pictures.playnotes = "play1";
  stage_.flags.playing = false;
  stage_.port.resetchannels();
  stage_.current.set(&stage_.listen);
}

}  // namespace lunavox

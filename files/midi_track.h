#pragma once

#include "files/note_deltas.h"
#include "grid/song.h"
#include "midi/devices.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lunavox {

/// Composes the track chunks of an export as text of hexadecimal digit pairs.
class MidiTrackText {
 public:
  explicit MidiTrackText(const Song& song) : song_(song) {}

  /// The events of a track: tempo, voice and XG set-up, one tick for each line but the song's last,
  /// the end of the notes that still sound, and the end of the track. Valid until the next call.
  /// @throws RuntimeError (Subscript out of range) where the length field exceeds the song,
  ///         (Division by zero) for a tempo of 0
  const std::string& compose(int track);

 private:
  void tempo();
  void voice();
  void xg_setup();
  void sysex(const SysExBytes& message);
  void lines();
  void line(int row);
  void controllers(int row);
  void controller(int effect, int value);
  void notes(int row);
  void note(int column, std::string_view entry, int row);
  void end_note(int column, std::string_view delta);
  void end_sounding_notes();
  std::string note_delta(int row);
  bool has_active_curve() const;
  bool is_active(int effect) const;

  const Song& song_;
  std::string text_;
  /// Set once a track without active curves has put a volume event on a line.
  bool volume_written_ = false;

  // Of the track that is being composed.
  int track_ = 0;
  int channel_ = 0;
  bool active_curve_ = false;
  NoteDeltas note_deltas_;
  /// The note numbers sounding in the note columns 1..8, -1 for none.
  std::array<std::int32_t, kNoteSlots> sounding_{};

  // Of the line that is being composed.
  bool first_controller_ = true;
};

}  // namespace lunavox

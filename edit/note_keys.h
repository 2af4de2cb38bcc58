#pragma once

#include "edit/keyboard_layout.h"
#include "grid/flags.h"
#include "grid/song.h"
#include "midi/note_queue.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace lunavox {

/// The computer keyboard as a piano of two and a half octaves. Its notes go into the note queue, as
/// those of a MIDI keyboard do. To be called while the keys are not text (TypingMode::typing).
///
/// Keys are virtual-key codes.
class NoteKeys {
 public:
  NoteKeys(Song& song, Flags& flags, NoteQueue& notequeue);

  void set_layoutkeys(const LayoutKeys& layoutkeys) { layoutkeys_ = layoutkeys; }
  /// What the space bar does: it starts and stops recording.
  void set_space_bar(std::function<void()> space_bar) { space_bar_ = std::move(space_bar); }

  /// A key went down in the `tracks` grid, or repeats.
  void keystart(int key_code);
  /// A key went up.
  void keystop(int key_code);
  /// Ends every note whose key is held: its release will not be seen.
  void release_all();

  /// Semitones added to every key's base note: -24, -12, 0, 12, 24 or 36.
  int octaveshift() const { return octaveshift_; }
  /// The key last pressed and not yet released, 0 when none.
  int lastkey() const { return lastkey_; }

 private:
  void enter(std::string_view entry);
  void shift_octave(int key_code);
  void strike(int note);
  void end(std::uint32_t message);

  Song& song_;
  Flags& flags_;
  NoteQueue& notequeue_;
  LayoutKeys layoutkeys_;
  std::function<void()> space_bar_;
  int octaveshift_ = 0;
  int lastkey_ = 0;
  std::vector<std::uint32_t> sounding_;  ///< the velocity-0 messages of the notes struck
};

/// The note that a key plays at octave shift 0, if any.
std::optional<int> base_note(int key_code, const LayoutKeys& layoutkeys);

}  // namespace lunavox

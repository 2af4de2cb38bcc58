#pragma once

#include "files/voice_banks.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/number_field.h"
#include "grid/property.h"
#include "grid/song.h"
#include "midi/output_port.h"

#include <functional>
#include <optional>
#include <string>

namespace lunavox {

/// What choosing a voice or a drum kit works on.
struct VoiceDesk {
  Song& song;
  Flags& flags;
  OutputPort& port;
  Dialogs& dialogs;
  /// The main window's voice name field.
  Property<std::string>& voice_name;
};

/// A cell of the voice grid.
struct VoiceCell {
  int program = 0;  ///< its row, 0..127
  int column = 0;   ///< 0..8

  bool operator==(const VoiceCell&) const = default;
};

/// The instrument dialog `Form5`: chooses the voice of the current track, heard on channel 16.
class VoiceChoice {
 public:
  VoiceChoice(const VoiceDesk& desk, const VoiceBanks& banks);

  const VoiceBanks& banks() const { return banks_; }

  /// The cell of the current track's voice, to be selected when the dialog opens. A voice that the
  /// bank file does not list has its program's first cell.
  VoiceCell current_voice() const;

  /// The check box `preview`.
  Property<bool> preview{true};
  /// The octave, 1..6: the text box `Text1` and the scroll bar `oct`, enabled while `preview` is
  /// ticked.
  NumberField octave{"4", 1, 6};
  /// False when the entry was refused and the text box is to show the last octave again.
  bool text1_change(const std::string& text) { return octave.enter(text, desk_.dialogs); }
  /// Colour of the octave's text.
  Colour octave_colour() const;

  /// A cell is pressed: its voice plays a note until release.
  void instrulist_mousedown(VoiceCell cell);
  void instrulist_mouseup();

  /// OK on a cell.
  /// @return true when the voice is taken and the dialog is to hide
  bool instruok_click(VoiceCell cell);

 private:
  int preview_note() const;

  VoiceDesk desk_;
  const VoiceBanks& banks_;
  std::optional<int> sounding_note_;
};

/// The drum kit dialog `Form4`: chooses the kit of the current track, which is the drum track.
class DrumChoice {
 public:
  DrumChoice(const VoiceDesk& desk, const DrumKits& kits) : desk_(desk), kits_(kits) {}

  const DrumKits& kits() const { return kits_; }

  /// The place of the drum track's kit in the list, -1 for one that the list does not have.
  int current_kit() const;

  /// OK with an entry of `drumlist` selected, -1 for none.
  /// @return true when the kit is taken and the dialog is to hide
  bool drumok_click(int index);
  /// As drumok_click, but a kit that is only tried out this way does not count as an edit.
  bool drumlist_dblclick(int index);

 private:
  bool choose(int index);

  VoiceDesk desk_;
  const DrumKits& kits_;
};

}  // namespace lunavox

#pragma once

#include "files/voice_banks.h"
#include "files/voice_desk.h"
#include "grid/colour.h"
#include "grid/number_field.h"
#include "grid/property.h"

#include <optional>
#include <string>

namespace lunavox {

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

}  // namespace lunavox

#pragma once

#include "grid/dialogs.h"
#include "grid/number_field.h"
#include "grid/property.h"

#include <string>

namespace lunavox {

/// How playback and recording go: the check boxes of the "Misc" panel and the realtime record
/// options of `Form8`.
struct RecordOptions {
  Property<bool> realtime;   ///< "Realtime record"
  Property<bool> begin;      ///< "Play from beginning"
  Property<bool> velocity;   ///< "Rec velocity": the played velocity counts, not `strength`
  Property<bool> curs;       ///< "Follow the cursor"
  Property<bool> metronome;  ///< "Metronome while recording"
  /// "Number of beats before record start". A bar of common time until the user says otherwise.
  NumberField before{"4", 0, 8};

  /// The user's entry into `before`. False when it is refused: the message has been shown and the
  /// text box is to show the last valid text again.
  bool before_change(const std::string& text, Dialogs& dialogs);

  /// Whether the `strength` field and its scroll bar can be used.
  bool strength_enabled() const { return !velocity; }
};

}  // namespace lunavox

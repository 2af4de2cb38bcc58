#pragma once

#include "files/drum_kits.h"
#include "files/voice_desk.h"

namespace lunavox {

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

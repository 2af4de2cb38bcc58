#include "files/drum_choice.h"

#include "midi/voice_setup.h"

namespace lunavox {

int DrumChoice::current_kit() const {
  return kits_.index_of(desk_.song.values.at(kDrumTrack, kInstrument, 1));
}

bool DrumChoice::drumok_click(int index) {
  if (!choose(index)) return false;
  desk_.flags.modified = true;
  return true;
}

bool DrumChoice::drumlist_dblclick(int index) {
  return choose(index);
}

bool DrumChoice::choose(int index) {
  if (index < 0 || index >= static_cast<int>(kits_.kits().size())) return false;
  const DrumKit& kit = kits_.kits()[static_cast<std::size_t>(index)];
  take_voice(desk_, kit.name, kit.program);
  starteffect(desk_.song, desk_.port);
  return true;
}

}  // namespace lunavox

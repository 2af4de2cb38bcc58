#include "files/voice_name.h"

namespace lunavox {

std::string voice_name_of(const Song& song, int track, const VoiceBanks& voices,
                          const DrumKits& kits) {
  const int program = song.values.at(track, kInstrument, 1);
  if (track == kDrumTrack) {
    const int kit = kits.index_of(program);
    if (kit >= 0) return kits.kits()[static_cast<std::size_t>(kit)].name;
  } else {
    const int column = voices.column_of(program, song.bank.at(track));
    if (column >= 0) return voices.name(program, column);
  }
  return song.effects.text(kInstrument, effects_column(track, Setting::kStartValue));
}

}  // namespace lunavox

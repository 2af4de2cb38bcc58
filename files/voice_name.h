#pragma once

#include "files/drum_kits.h"
#include "files/voice_banks.h"
#include "grid/song.h"

#include <string>

namespace lunavox {

/// The name of a track's voice or drum kit, by its bank and program. A voice that the bank files do
/// not list has the name that the song gives it.
std::string voice_name_of(const Song& song, int track, const VoiceBanks& voices,
                          const DrumKits& kits);

}  // namespace lunavox

#pragma once

#include "files/drum_kits.h"
#include "files/voice_banks.h"
#include "grid/cell_grid.h"
#include "grid/property.h"
#include "grid/song.h"

#include <string>

namespace lunavox {

/// The main window's voice name field: the voice or drum kit of the track that the cursor is on.
class VoiceNameField : public CellGridObserver {
 public:
  VoiceNameField(Song& song, const VoiceBanks& voices, const DrumKits& kits);
  ~VoiceNameField() override;
  VoiceNameField(const VoiceNameField&) = delete;
  VoiceNameField& operator=(const VoiceNameField&) = delete;

  Property<std::string> text;

  /// Reads the name afresh, as after a voice was chosen or a song opened.
  void refresh();

  void cursor_moved(CellPosition from) override;

 private:
  Song& song_;
  const VoiceBanks& voices_;
  const DrumKits& kits_;
};

}  // namespace lunavox

#include "app/voice_name_field.h"

#include "files/voice_name.h"

namespace lunavox {

VoiceNameField::VoiceNameField(Song& song, const VoiceBanks& voices, const DrumKits& kits)
    : song_(song), voices_(voices), kits_(kits) {
  song_.tracks.add_observer(this);
}

VoiceNameField::~VoiceNameField() {
  song_.tracks.remove_observer(this);
}

void VoiceNameField::refresh() {
  const int track = track_of_column(song_.tracks.column());
  if (track <= song_.track_count) text = voice_name_of(song_, track, voices_, kits_);
}

void VoiceNameField::cursor_moved(CellPosition from) {
  if (track_of_column(from.column) != track_of_column(song_.tracks.column())) refresh();
}

}  // namespace lunavox

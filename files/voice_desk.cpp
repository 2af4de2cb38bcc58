#include "files/voice_desk.h"

namespace lunavox {

void take_voice(VoiceDesk& desk, const std::string& name, std::int16_t program) {
  Song& song = desk.song;
  const int track = song.current_track;
  desk.voice_name = name;
  song.effects.set_text(kInstrument, effects_column(track, Setting::kStartValue), name);
  song.values.at(track, kInstrument, 1) = program;
}

}  // namespace lunavox

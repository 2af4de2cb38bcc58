#include "midi/voice_setup.h"

#include "midi/short_message.h"

namespace lunavox {
namespace {

constexpr int kSilentNote = 48;

void select_voice(const Song& song, int track, OutputPort& port) {
  const int channel = song.channel.at(track);
  port.send(control_change(channel, kBankMsb, track == kDrumTrack ? kDrumBank : 0));
  port.send(control_change(channel, kBankLsb, song.bank.at(track)));
  port.send(program_change(channel, song.values.at(track, kInstrument, 1)));
  port.send(note_on(channel, kSilentNote, 0));
}

}  // namespace

void starteffect(const Song& song, OutputPort& port) {
  for (int track = 1; track <= song.track_count; ++track) select_voice(song, track, port);
}

}  // namespace lunavox

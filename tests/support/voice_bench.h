#pragma once

#include "files/drum_choice.h"
#include "files/voice_choice.h"
#include "tests/support/recording_output.h"
#include "tests/support/song_bench.h"

#include <utility>

#include <gtest/gtest.h>

namespace lunavox::test {

/// A song of a drum track and an instrument track, the latter the current one, with the banks and
/// an output that both voice dialogs work on.
struct VoiceBench : public ::testing::Test {
  /// With the banks that are shipped.
  VoiceBench()
      : VoiceBench(VoiceBanks::read(LUNAVOX_DATA "/instrubank.ini"),
                   DrumKits::read(LUNAVOX_DATA "/drumbank.ini")) {}
  VoiceBench(VoiceBanks voice_banks, DrumKits drum_kits)
      : banks(std::move(voice_banks)), kits(std::move(drum_kits)) {
    bench.tracks.addinstrutrack();
    port.open(0);
    output.calls.clear();
    bench.flags.modified = false;
    bench.song.current_track = 2;
  }

  Song& song() { return bench.song; }
  ScriptedDialogs& dialogs() { return bench.dialogs; }
  bool modified() const { return bench.flags.modified; }

  SongBench bench;
  RecordingOutput output;
  OutputPort port{output, bench.dialogs};
  Property<std::string> voice_name;
  VoiceBanks banks;
  DrumKits kits;
  VoiceDesk desk{bench.song, bench.flags, port, bench.dialogs, voice_name};
  VoiceChoice voices{desk, banks};
  DrumChoice drums{desk, kits};
};

}  // namespace lunavox::test

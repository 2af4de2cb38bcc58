#pragma once

#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/property.h"
#include "grid/song.h"
#include "midi/output_port.h"

#include <cstdint>
#include <string>

namespace lunavox {

/// What choosing a voice or a drum kit works on.
struct VoiceDesk {
  Song& song;
  Flags& flags;
  OutputPort& port;
  Dialogs& dialogs;
  /// The main window's voice name field.
  Property<std::string>& voice_name;
};

/// Gives the current track a voice or drum kit and shows its name. Its bank stays, and nothing is
/// sent yet.
void take_voice(VoiceDesk& desk, const std::string& name, std::int16_t program);

}  // namespace lunavox

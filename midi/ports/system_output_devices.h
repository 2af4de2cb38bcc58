#pragma once

#include "midi/devices.h"

#include <filesystem>

namespace lunavox {

/// The outputs of this machine: device 0 is the built-in synthesiser, then come the ports of the
/// system's MIDI service, then a port of our own that other programs connect to. kDefaultOutput is
/// the first port that is hardware, else the synthesiser.
///
/// The service is ALSA's sequencer, or a JACK server where there is none. It is looked for at each
/// call, so a server that starts later is found; no server is ever started.
class SystemOutputDevices : public OutputDevices {
 public:
  /// @param soundfont the SoundFont to play with; empty for the machine's own
  explicit SystemOutputDevices(std::filesystem::path soundfont = {});

  std::vector<std::string> names() override;
  std::unique_ptr<OutputDevice> open(int device) override;
  std::string open_error() const override { return open_error_; }

 private:
  std::unique_ptr<OutputDevice> open_synth();

  std::filesystem::path soundfont_;
  std::string open_error_;
};

}  // namespace lunavox

#include "midi/ports/synth_device.h"

#include "midi/ports/jack_server.h"

namespace lunavox {

void SynthDevice::DeleteDriver::operator()(fluid_audio_driver_t* driver) const {
  delete_fluid_audio_driver(driver);
}

SynthDevice::SynthDevice(std::shared_ptr<Synthesiser> synthesiser, Sound sound)
    : synthesiser_(std::move(synthesiser)) {
  if (sound == Sound::kSoundCard) open_sound_card();
}

SynthDevice::~SynthDevice() = default;

/// The sound services first that share the card with other programs.
void SynthDevice::open_sound_card() {
  fluid_settings_t* settings = synthesiser_->settings();
  fluid_settings_setint(settings, "audio.jack.autoconnect", 1);
  // The library's usual delay, in fewer pieces: that costs less processor time.
  fluid_settings_setint(settings, "audio.period-size", 256);
  fluid_settings_setint(settings, "audio.periods", 4);
  for (const std::string service : {"pipewire", "pulseaudio", "alsa", "jack"}) {
    // Without a server to connect to, the library asks again for seconds.
    if (service == "jack" && !JackServer::connect()) continue;
    fluid_settings_setstr(settings, "audio.driver", service.c_str());
    driver_.reset(new_fluid_audio_driver(settings, synthesiser_->handle()));
    if (driver_) return;
  }
  status_ = "No sound card was found: the synthesiser plays silently.";
}

MidiResult SynthDevice::short_message(std::uint32_t packed) {
  synthesiser_->play(to_wire(packed));
  return kMidiOk;
}

MidiResult SynthDevice::long_message(const SysExBytes& data) {
  const MidiResult prepared = steps_.check_prepared();
  if (prepared == kMidiOk) synthesiser_->play_sysex(data);
  return prepared;
}

}  // namespace lunavox

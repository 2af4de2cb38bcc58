#include "midi/ports/synth_device.h"

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
  for (const std::string service : {"pipewire", "pulseaudio", "alsa"}) {
    if (open_service(service)) return;
  }
  through_jack_ = open_jack();
  silent_ = !through_jack_;
}

bool SynthDevice::open_service(const std::string& service) {
  fluid_settings_t* settings = synthesiser_->settings();
  fluid_settings_setstr(settings, "audio.driver", service.c_str());
  driver_.reset(new_fluid_audio_driver(settings, synthesiser_->handle()));
  return driver_ != nullptr;
}

/// Without a server to connect to, the library would ask again for seconds.
bool SynthDevice::open_jack() {
  jack_ = JackServer::connect();
  if (jack_ && open_service("jack")) return true;
  jack_.reset();
  return false;
}

/// A JACK server that is started again is only found once all is given up that we have of the old
/// one, here and in the other devices; so it is sought when we are asked the next time.
void SynthDevice::look_after() {
  if (!through_jack_ || heard_through_jack()) return;
  if (driver_) {
    driver_.reset();
    jack_.reset();
  } else {
    open_jack();
  }
}

std::string SynthDevice::status() const {
  if (silent_) return "No sound card was found: the synthesiser plays silently.";
  if (through_jack_ && !heard_through_jack()) return kJackStopped;
  return {};
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

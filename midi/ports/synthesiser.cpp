#include "midi/ports/synthesiser.h"

#include "midi/ports/quiet_libraries.h"
#include "midi/ports/soundfont_search.h"

namespace lunavox {
namespace {

/// XG's System On and parameter changes name the device by this number, 10 hexadecimal.
constexpr int kXgDeviceId = 16;
/// Loud enough beside other programs, with room left for ten tracks.
constexpr double kGain = 0.4;
constexpr int kVoices = 256;
/// Above this many bytes, samples are only read for the presets in use: opening must not take long.
constexpr std::uintmax_t kLargeSoundFont = 32u << 20;

constexpr int kAllGroups = -1;    // of effect units
constexpr int kPercussion = 128;  // the bank in which SoundFonts keep drum kits

bool is_large(const std::filesystem::path& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return !error && size > kLargeSoundFont;
}

}  // namespace

void Synthesiser::DeleteSettings::operator()(fluid_settings_t* settings) const {
  delete_fluid_settings(settings);
}

void Synthesiser::DeleteSynth::operator()(fluid_synth_t* synth) const {
  delete_fluid_synth(synth);
}

std::shared_ptr<Synthesiser> Synthesiser::load(const std::filesystem::path& soundfont,
                                               int sample_rate, std::string& problem) {
  quieten_libraries();
  const SoundFontChoice choice = choose_soundfont(soundfont);
  problem = choice.problem;
  if (choice.path.empty()) return nullptr;
  std::shared_ptr<Synthesiser> synthesiser(new Synthesiser(sample_rate));
  if (synthesiser->load_soundfont(choice.path)) return synthesiser;
  problem = "The SoundFont \"" + choice.path.string() + "\" is broken.";
  return nullptr;
}

Synthesiser::Synthesiser(int sample_rate) : settings_(new_fluid_settings()) {
  fluid_settings_setint(settings_.get(), "synth.device-id", kXgDeviceId);
  fluid_settings_setstr(settings_.get(), "synth.midi-bank-select", "xg");
  fluid_settings_setint(settings_.get(), "synth.reverb.active", 1);
  fluid_settings_setint(settings_.get(), "synth.chorus.active", 1);
  fluid_settings_setint(settings_.get(), "synth.polyphony", kVoices);
  fluid_settings_setnum(settings_.get(), "synth.gain", kGain);
  fluid_settings_setnum(settings_.get(), "synth.sample-rate", sample_rate);
}

Synthesiser::~Synthesiser() = default;

bool Synthesiser::load_soundfont(const std::filesystem::path& path) {
  fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", is_large(path));
  synth_.reset(new_fluid_synth(settings_.get()));
  if (!synth_) return false;
  let_controllers_shape_sounds();
  const QuietGLib quiet;
  return fluid_synth_sfload(synth_.get(), path.c_str(), 1) != FLUID_FAILED;
}

/// SoundFonts leave brightness, attack and release without effect, an XG module does not: 64 is as
/// the voice has it, less and more go as far as is musical.
void Synthesiser::let_controllers_shape_sounds() {
  struct Shape {
    int controller;
    int generator;
    double amount;  // cents of the filter, timecents of the envelope
  };
  for (const Shape& shape : {Shape{74, GEN_FILTERFC, 4800}, Shape{73, GEN_VOLENVATTACK, 7200},
                             Shape{72, GEN_VOLENVRELEASE, 3600}}) {
    const std::unique_ptr<fluid_mod_t, void (*)(fluid_mod_t*)> modulator(new_fluid_mod(),
                                                                         delete_fluid_mod);
    fluid_mod_set_source1(modulator.get(), shape.controller,
                          FLUID_MOD_CC | FLUID_MOD_LINEAR | FLUID_MOD_BIPOLAR);
    fluid_mod_set_source2(modulator.get(), FLUID_MOD_NONE, FLUID_MOD_GC);
    fluid_mod_set_dest(modulator.get(), shape.generator);
    fluid_mod_set_amount(modulator.get(), shape.amount);
    fluid_synth_add_default_mod(synth_.get(), modulator.get(), FLUID_SYNTH_OVERWRITE);
  }
}

void Synthesiser::play(const WireMessage& message) {
  if (message.size == 0) return;
  fluid_synth_t* synth = synth_.get();
  const int channel = message.channel();
  const int data_1 = message.bytes[1];
  const int data_2 = message.bytes[2];
  switch (message.status() & 0xF0) {
    case 0x80:
      fluid_synth_noteoff(synth, channel, data_1);
      break;
    case 0x90:  // at velocity 0 a note-off
      fluid_synth_noteon(synth, channel, data_1, data_2);
      break;
    case 0xA0:
      fluid_synth_key_pressure(synth, channel, data_1, data_2);
      break;
    case 0xB0:
      fluid_synth_cc(synth, channel, data_1, data_2);
      break;
    case 0xC0:
      fluid_synth_program_change(synth, channel, data_1);
      break;
    case 0xD0:
      fluid_synth_channel_pressure(synth, channel, data_1);
      break;
    case 0xE0:
      fluid_synth_pitch_bend(synth, channel, data_1 | data_2 << 7);
      break;
    default:  // system messages have nothing for a synthesiser
      break;
  }
}

void Synthesiser::play_sysex(const SysExBytes& data) {
  if (data.size() < 2) return;
  // The library takes the message without its F0 and F7.
  const char* body = reinterpret_cast<const char*>(data.data() + 1);
  fluid_synth_sysex(synth_.get(), body, static_cast<int>(data.size()) - 2, nullptr, nullptr,
                    nullptr, 0);
  // The library leaves the effect types of XG to us.
  if (const auto reverb = reverb_chosen_by(data)) set_reverb(*reverb);
  if (const auto chorus = chorus_chosen_by(data)) set_chorus(*chorus);
}

void Synthesiser::set_reverb(const ReverbShape& shape) {
  fluid_synth_set_reverb_group_roomsize(synth_.get(), kAllGroups, shape.room_size);
  fluid_synth_set_reverb_group_damp(synth_.get(), kAllGroups, shape.damping);
  fluid_synth_set_reverb_group_width(synth_.get(), kAllGroups, shape.width);
  fluid_synth_set_reverb_group_level(synth_.get(), kAllGroups, shape.level);
}

void Synthesiser::set_chorus(const ChorusShape& shape) {
  fluid_synth_set_chorus_group_nr(synth_.get(), kAllGroups, shape.voices);
  fluid_synth_set_chorus_group_level(synth_.get(), kAllGroups, shape.level);
  fluid_synth_set_chorus_group_speed(synth_.get(), kAllGroups, shape.speed_hz);
  fluid_synth_set_chorus_group_depth(synth_.get(), kAllGroups, shape.depth_ms);
}

void Synthesiser::silence() {
  constexpr int kAllChannels = -1;
  fluid_synth_all_sounds_off(synth_.get(), kAllChannels);
  fluid_synth_all_notes_off(synth_.get(), kAllChannels);
}

void Synthesiser::render(std::span<float> interleaved) {
  const int frames = static_cast<int>(interleaved.size() / 2);
  fluid_synth_write_float(synth_.get(), frames, interleaved.data(), 0, 2, interleaved.data(), 1, 2);
}

std::string Synthesiser::preset_name(int channel) const {
  fluid_preset_t* preset = fluid_synth_get_channel_preset(synth_.get(), channel);
  return preset ? fluid_preset_get_name(preset) : std::string();
}

bool Synthesiser::is_drum_channel(int channel) const {
  fluid_preset_t* preset = fluid_synth_get_channel_preset(synth_.get(), channel);
  return preset && fluid_preset_get_banknum(preset) == kPercussion;
}

}  // namespace lunavox

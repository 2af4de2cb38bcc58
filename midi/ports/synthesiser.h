#pragma once

#include "midi/devices.h"
#include "midi/ports/wire_message.h"
#include "midi/ports/xg_system_effects.h"

#include <filesystem>
#include <memory>
#include <span>
#include <string>

#include <fluidsynth.h>

namespace lunavox {

/// The built-in synthesiser: a General MIDI module that understands XG's System On, bank
/// selects and choices of reverb and chorus. It makes sound for an audio driver or for render();
/// messages may come from another thread than the sound is drawn by.
class Synthesiser {
 public:
  /// Loads a SoundFont, or the machine's own for an empty path.
  /// @param problem one sentence on why null is returned
  static std::shared_ptr<Synthesiser> load(const std::filesystem::path& soundfont, int sample_rate,
                                           std::string& problem);
  ~Synthesiser();
  Synthesiser(const Synthesiser&) = delete;
  Synthesiser& operator=(const Synthesiser&) = delete;

  void play(const WireMessage& message);
  /// Takes a System Exclusive message, F0 ... F7. Those it does not know do nothing.
  void play_sysex(const SysExBytes& data);
  /// Silences everything, settings stay.
  void silence();

  /// Draws the next frames, interleaved left and right.
  void render(std::span<float> interleaved);

  /// Name of the preset that a channel (0..15) plays with, empty when it has none.
  std::string preset_name(int channel) const;
  bool is_drum_channel(int channel) const;

  // For the audio driver.
  fluid_settings_t* settings() const { return settings_.get(); }
  fluid_synth_t* handle() const { return synth_.get(); }

 private:
  struct DeleteSettings {
    void operator()(fluid_settings_t* settings) const;
  };
  struct DeleteSynth {
    void operator()(fluid_synth_t* synth) const;
  };

  explicit Synthesiser(int sample_rate);
  bool load_soundfont(const std::filesystem::path& path);
  void let_controllers_shape_sounds();
  void set_reverb(const ReverbShape& shape);
  void set_chorus(const ChorusShape& shape);

  std::unique_ptr<fluid_settings_t, DeleteSettings> settings_;
  std::unique_ptr<fluid_synth_t, DeleteSynth> synth_;
};

}  // namespace lunavox

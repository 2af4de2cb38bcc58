#pragma once

#include "midi/ports/jack_server.h"
#include "midi/ports/port_result.h"
#include "midi/ports/synthesiser.h"

namespace lunavox {

/// The built-in synthesiser as an output, played through the machine's sound service; silent where
/// there is none.
class SynthDevice : public OutputDevice {
 public:
  enum class Sound {
    kSoundCard,  ///< heard through the first sound service that works
    kRendered,   ///< drawn by someone else
  };

  SynthDevice(std::shared_ptr<Synthesiser> synthesiser, Sound sound);
  ~SynthDevice() override;

  MidiResult short_message(std::uint32_t packed) override;
  MidiResult prepare_header(const SysExBytes& data) override { return steps_.prepare(data); }
  MidiResult long_message(const SysExBytes& data) override;
  MidiResult unprepare_header(const SysExBytes&) override { return steps_.unprepare(); }
  std::string error_text(MidiResult result) const override { return port_result_text(result); }
  void reset() override { synthesiser_->silence(); }
  std::string status() const override;
  void look_after() override;

 private:
  struct DeleteDriver {
    void operator()(fluid_audio_driver_t* driver) const;
  };

  void open_sound_card();
  bool open_service(const std::string& service);
  bool open_jack();
  bool heard_through_jack() const { return driver_ && jack_->alive(); }

  std::shared_ptr<Synthesiser> synthesiser_;
  std::unique_ptr<fluid_audio_driver_t, DeleteDriver> driver_;
  bool through_jack_ = false;
  std::shared_ptr<JackServer> jack_;  // the server that the driver plays to
  SysExSteps steps_;
  bool silent_ = false;  // no sound service was found
};

/// Name of the built-in synthesiser in the list of outputs.
inline constexpr char kSynthName[] = "Built-in synthesiser";

}  // namespace lunavox

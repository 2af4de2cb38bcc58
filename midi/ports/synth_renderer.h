#pragma once

#include "midi/devices.h"

#include <filesystem>

namespace lunavox {

class Synthesiser;

/// The built-in synthesiser without a sound card: as an output list of one device, and as a source
/// of sound. What is sent sounds from the next render() on; the synthesiser starts notes on a
/// raster of 64 frames.
class SynthRenderer : public OutputDevices {
 public:
  /// Loads nothing yet; the device's open() does.
  /// @param soundfont the SoundFont to play with; empty for the machine's own
  /// @param sample_rate frames per second, 44100 or 48000
  explicit SynthRenderer(std::filesystem::path soundfont = {}, int sample_rate = 44100);
  ~SynthRenderer() override;

  std::vector<std::string> names() override;
  /// Opens the synthesiser under any number. The device may outlive this object.
  std::unique_ptr<OutputDevice> open(int device) override;
  std::string open_error() const override { return open_error_; }

  int sample_rate() const { return sample_rate_; }

  /// Renders the next frames, interleaved left and right, -1 .. 1 being full scale (louder sound
  /// goes beyond). Silence as long as no device has been opened.
  std::vector<float> render(std::size_t frames);

  /// Renders what is between the last frame rendered and a time of the song, to the frame: however
  /// the time is cut into pieces, the frames add up.
  /// @param ms milliseconds since the first render
  std::vector<float> render_until(double ms);

 private:
  std::filesystem::path soundfont_;
  int sample_rate_;
  std::size_t frames_done_ = 0;
  std::string open_error_;
  std::shared_ptr<Synthesiser> synth_;
};

}  // namespace lunavox

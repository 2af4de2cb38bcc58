#include "midi/ports/synth_renderer.h"

#include "midi/ports/synth_device.h"

#include <cmath>

namespace lunavox {

SynthRenderer::SynthRenderer(std::filesystem::path soundfont, int sample_rate)
    : soundfont_(std::move(soundfont)), sample_rate_(sample_rate) {}

SynthRenderer::~SynthRenderer() = default;

std::vector<std::string> SynthRenderer::names() {
  return {kSynthName};
}

std::unique_ptr<OutputDevice> SynthRenderer::open(int) {
  synth_ = Synthesiser::load(soundfont_, sample_rate_, open_error_);
  if (!synth_) return nullptr;
  return std::make_unique<SynthDevice>(synth_, SynthDevice::Sound::kRendered);
}

std::vector<float> SynthRenderer::render(std::size_t frames) {
  std::vector<float> interleaved(2 * frames);
  if (synth_) synth_->render(interleaved);
  frames_done_ += frames;
  return interleaved;
}

std::vector<float> SynthRenderer::render_until(double ms) {
  const auto end = static_cast<std::size_t>(std::llround(ms * sample_rate_ / 1000.0));
  return end > frames_done_ ? render(end - frames_done_) : std::vector<float>();
}

}  // namespace lunavox

#include "midi/ports/audio_file.h"

#include "midi/ports/port_error.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>

#include <sndfile.h>

namespace lunavox {
namespace {

constexpr int kChannels = 2;

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

int format_of(const std::filesystem::path& path) {
  const std::string ending = lower(path.extension().string());
  if (ending == ".wav") return SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  if (ending == ".flac") return SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
  if (ending == ".ogg") return SF_FORMAT_OGG | SF_FORMAT_VORBIS;
  throw PortError("The sound file \"" + path.string() + "\" must end in .wav, .flac or .ogg.");
}

}  // namespace

struct AudioFile::Handle {
  SNDFILE* file = nullptr;

  ~Handle() { close(); }
  bool close() { return !file || sf_close(std::exchange(file, nullptr)) == 0; }
};

AudioFile::AudioFile(const std::filesystem::path& path, int sample_rate)
    : path_(path), handle_(std::make_unique<Handle>()) {
  SF_INFO info{};
  info.samplerate = sample_rate;
  info.channels = kChannels;
  info.format = format_of(path);
  handle_->file = sf_open(path.c_str(), SFM_WRITE, &info);
  if (!handle_->file) fail();
  sf_command(handle_->file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
}

AudioFile::~AudioFile() = default;

void AudioFile::write(const std::vector<float>& interleaved) {
  const auto frames = static_cast<sf_count_t>(interleaved.size()) / kChannels;
  if (sf_writef_float(handle_->file, interleaved.data(), frames) != frames) fail();
}

void AudioFile::close() {
  if (!handle_->close()) fail();
}

void AudioFile::fail() const {
  throw PortError("The sound file \"" + path_.string() + "\" cannot be written.");
}

}  // namespace lunavox

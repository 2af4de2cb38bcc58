#include "midi/ports/audio_file.h"

#include "midi/ports/port_error.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

#include <sndfile.h>
#include <unistd.h>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

constexpr int kChannels = 2;

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

int format_of(const fs::path& path) {
  const std::string ending = lower(path.extension().string());
  if (ending == ".wav") return SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  if (ending == ".flac") return SF_FORMAT_FLAC | SF_FORMAT_PCM_16;
  if (ending == ".ogg") return SF_FORMAT_OGG | SF_FORMAT_VORBIS;
  throw PortError("The sound file \"" + path.string() + "\" must end in .wav, .flac or .ogg.");
}

/// The file that a name leads to through symbolic links.
fs::path followed(const fs::path& path) {
  std::error_code none;
  fs::path target = fs::canonical(path, none);
  return target.empty() ? path : target;
}

/// Whether a new file can take the place of one of that name: it is free, or a file's that may be
/// written.
bool can_be_replaced(const fs::path& target) {
  std::error_code none;
  const fs::file_status status = fs::status(target, none);
  if (!fs::exists(status)) return true;
  return fs::is_regular_file(status) && std::ofstream(target, std::ios::in | std::ios::app);
}

/// A hidden name that no other sound file uses, in this program or another one.
fs::path name_beside(const fs::path& target) {
  static std::atomic<int> count{0};
  const std::string name =
      ".lunavox-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".new";
  return target.parent_path() / name;
}

}  // namespace

struct AudioFile::Handle {
  SNDFILE* file = nullptr;
  fs::path new_file;  // empty when the target is written to directly

  ~Handle() {
    close();
    std::error_code none;
    if (!new_file.empty()) fs::remove(new_file, none);
  }
  bool close() { return !file || sf_close(std::exchange(file, nullptr)) == 0; }
};

AudioFile::AudioFile(const fs::path& path, int sample_rate)
    : path_(path), target_(followed(path)), handle_(std::make_unique<Handle>()) {
  SF_INFO info{};
  info.samplerate = sample_rate;
  info.channels = kChannels;
  info.format = format_of(path);
  if (can_be_replaced(target_)) handle_->new_file = name_beside(target_);
  const fs::path& written = handle_->new_file.empty() ? target_ : handle_->new_file;
  handle_->file = sf_open(written.c_str(), SFM_WRITE, &info);
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
  if (!handle_->new_file.empty()) put_in_place();
}

void AudioFile::put_in_place() {
  std::error_code failure;
  const fs::file_status old = fs::status(target_, failure);
  if (fs::exists(old)) fs::permissions(handle_->new_file, old.permissions(), failure);
  fs::rename(handle_->new_file, target_, failure);
  if (failure) fail();
  handle_->new_file.clear();
}

void AudioFile::fail() const {
  throw PortError("The sound file \"" + path_.string() + "\" cannot be written.");
}

}  // namespace lunavox

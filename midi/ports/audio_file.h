#pragma once

#include <filesystem>
#include <memory>
#include <vector>

namespace lunavox {

/// A stereo sound file being written: .wav, .flac (both 16 bit) or .ogg by the name's ending.
class AudioFile {
 public:
  /// Begins the file, in place of one of that name.
  /// @throws PortError for another ending, or when the file cannot be written
  AudioFile(const std::filesystem::path& path, int sample_rate);
  ~AudioFile();
  AudioFile(const AudioFile&) = delete;
  AudioFile& operator=(const AudioFile&) = delete;

  /// Adds frames, interleaved left and right; what is beyond -1 .. 1 is clipped.
  /// @throws PortError when they cannot be written, for want of room say
  void write(const std::vector<float>& interleaved);
  /// Completes the file. Done by destruction too, but then no error can be told.
  /// @throws PortError when the rest cannot be written
  void close();

 private:
  struct Handle;

  [[noreturn]] void fail() const;

  std::filesystem::path path_;
  std::unique_ptr<Handle> handle_;
};

}  // namespace lunavox

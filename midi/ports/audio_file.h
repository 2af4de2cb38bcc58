#pragma once

#include <filesystem>
#include <memory>
#include <vector>

namespace lunavox {

/// A stereo sound file being written: .wav, .flac (both 16 bit) or .ogg by the name's ending. It
/// comes to stand under its name when it is complete: until then the sound goes to a file beside
/// it, and one of that name stays as it was. What is not a regular file, such as a device, is
/// written to directly.
class AudioFile {
 public:
  /// Begins the file.
  /// @throws PortError for another ending, or when the file cannot be written
  AudioFile(const std::filesystem::path& path, int sample_rate);
  /// Gives up the file unless it has been closed.
  ~AudioFile();
  AudioFile(const AudioFile&) = delete;
  AudioFile& operator=(const AudioFile&) = delete;

  /// Adds frames, interleaved left and right; what is beyond -1 .. 1 is clipped.
  /// @throws PortError when they cannot be written, for want of room say
  void write(const std::vector<float>& interleaved);
  /// Completes the file and puts it in the place of one of that name.
  /// @throws PortError when the rest cannot be written
  void close();

 private:
  struct Handle;

  void put_in_place();
  [[noreturn]] void fail() const;

  std::filesystem::path path_;    // as it is told
  std::filesystem::path target_;  // path_, through symbolic links
  std::unique_ptr<Handle> handle_;
};

}  // namespace lunavox

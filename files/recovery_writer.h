#pragma once

#include "grid/song.h"

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace lunavox {

/// Writes recovery files on a thread of its own, so that neither composing nor a slow disk holds up
/// the window. Each file replaces the one before.
class RecoveryWriter {
 public:
  explicit RecoveryWriter(std::filesystem::path file);
  /// Finishes what is being written; what has not been begun is dropped.
  ~RecoveryWriter();
  RecoveryWriter(const RecoveryWriter&) = delete;
  RecoveryWriter& operator=(const RecoveryWriter&) = delete;

  /// Has a copy of a song written. One that is still waiting is replaced: only the latest counts.
  void write(const Song& song, const std::string& name);
  /// Returns once nothing is waiting or being written.
  void wait();
  /// As wait(), but what is waiting is dropped.
  void cancel();

  /// What went wrong the last time, empty when nothing did.
  std::string problem() const;

 private:
  struct Job {
    Song song;
    std::string name;
  };

  void run();

  const std::filesystem::path file_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Job> waiting_;
  bool busy_ = false;
  bool ending_ = false;
  std::string problem_;
  std::thread thread_;
};

/// Writes a recovery file at once.
/// @throws RuntimeError as AtomicFile does
void write_recovery_file(const std::filesystem::path& file, const std::string& text);

}  // namespace lunavox

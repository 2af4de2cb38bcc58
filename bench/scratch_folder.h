#pragma once

#include <filesystem>
#include <string>

#include <unistd.h>

namespace lunavox::bench {

/// A folder for a run's files, in memory where the system offers that; removed at the end.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::error_code none;
    const std::filesystem::path memory = "/dev/shm";
    const bool in_memory = std::filesystem::is_directory(memory, none);
    path_ = (in_memory ? memory : std::filesystem::temp_directory_path()) /
            ("lunavox-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code none;
    std::filesystem::remove_all(path_, none);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace lunavox::bench

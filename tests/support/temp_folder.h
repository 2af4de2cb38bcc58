#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <unistd.h>

namespace lunavox::test {

/// An empty folder of the test's own, removed with all it holds at the end.
class TempFolder {
 public:
  TempFolder() {
    static std::atomic<int> count{0};
    path_ = std::filesystem::temp_directory_path() /
            ("lunavox-test-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code none;
    std::filesystem::remove_all(path_, none);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

  /// Writes a file and tells its whole name.
  std::string write(const std::string& name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return file(name);
  }
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }
  /// Number of files and folders in it.
  int entries() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(path_), {}));
  }

 private:
  std::filesystem::path path_;
};

}  // namespace lunavox::test

#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace lunavox::test {

/// A folder of the test's own, removed with it.
class TestFolder {
 public:
  TestFolder() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::filesystem::path(testing::TempDir()) /
            (std::string("lunavox-") + info->test_suite_name() + "-" + info->name());
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  ~TestFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::filesystem::path file(const std::string& name) const { return path_ / name; }

  std::filesystem::path write(const std::string& name, std::string_view bytes) const {
    std::ofstream(file(name), std::ios::binary) << bytes;
    return file(name);
  }

 private:
  std::filesystem::path path_;
};

inline std::string read_file(const std::filesystem::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

}  // namespace lunavox::test

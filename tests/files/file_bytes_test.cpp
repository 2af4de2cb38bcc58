#include "files/file_bytes.h"

#include "tests/support/error_of.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

std::optional<RuntimeError::Number> error_of_reading(const std::filesystem::path& path) {
  return test::error_of([&] { read_file(path); });
}

TEST(FileBytes, AFolderIsNoFileToRead) {
  const test::TempFolder folder;
  EXPECT_EQ(error_of_reading(folder.path()), RuntimeError::kPathFileAccessError);
}

TEST(FileBytes, ADeviceIsNoFileToRead) {
  EXPECT_EQ(error_of_reading("/dev/zero"), RuntimeError::kPathFileAccessError);
}

TEST(FileBytes, AFileThatIsNotThereIsNotFound) {
  const test::TempFolder folder;
  EXPECT_EQ(error_of_reading(folder.file("none")), RuntimeError::kFileNotFound);
}

TEST(FileBytes, EveryByteIsRead) {
  const test::TempFolder folder;
  const std::string bytes("a\0b\r\n\xFF", 6);
  EXPECT_EQ(read_file(folder.write("bytes", bytes)), bytes);
}

}  // namespace
}  // namespace lunavox

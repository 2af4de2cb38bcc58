#include "files/file_bytes.h"

#include "files/disk.h"
#include "grid/runtime_error.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string_view>

namespace lunavox {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void fail(RuntimeError::Number number, const std::filesystem::path& path) {
  throw RuntimeError(number, path.string());
}

File open_for_reading(const std::filesystem::path& path) {
  // Opening a folder succeeds on some systems, and only reading it fails.
  std::error_code none;
  if (std::filesystem::is_directory(path, none)) fail(RuntimeError::kPathFileAccessError, path);
  File file(std::fopen(path.string().c_str(), "rb"));
  if (!file) fail(disk::error_for(errno), path);
  return file;
}

}  // namespace

std::string read_file(const std::filesystem::path& path) {
  const File file = open_for_reading(path);
  std::error_code unknown;
  const auto expected = std::filesystem::file_size(path, unknown);
  if (!unknown && expected > kLargestFile) fail(RuntimeError::kOutOfMemory, path);
  std::string bytes;
  if (!unknown) bytes.reserve(static_cast<std::size_t>(expected));
  // The size is only a hint: devices have none, and a file may grow while it is read.
  std::array<char, 1U << 16U> part;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), file.get())) {
    bytes.append(part.data(), count);
    if (bytes.size() > kLargestFile) fail(RuntimeError::kOutOfMemory, path);
  }
  if (std::ferror(file.get()) != 0) fail(RuntimeError::kPathFileAccessError, path);
  return bytes;
}

}  // namespace lunavox

#include "files/file_bytes.h"

#include "files/disk.h"
#include "grid/runtime_error.h"

#include <cerrno>
#include <cstdio>
#include <memory>

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
  // A folder can be opened but not read, and a pipe would hold the program up for good.
  std::error_code none;
  const std::filesystem::file_status status = std::filesystem::status(path, none);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    fail(RuntimeError::kPathFileAccessError, path);
  }
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
  std::string bytes(unknown ? kLargestFile : static_cast<std::size_t>(expected), '\0');
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  if (std::ferror(file.get()) != 0) fail(RuntimeError::kPathFileAccessError, path);
  return bytes;
}

}  // namespace lunavox

#include "files/disk.h"

#include <cerrno>
#include <utility>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using Number = RuntimeError::Number;

TEST(Disk, TheSystemsErrorsAreTheRuntimes) {
  const std::pair<int, Number> expected[] = {
      {ENOENT, RuntimeError::kFileNotFound},     {ENOSPC, RuntimeError::kDiskFull},
      {EDQUOT, RuntimeError::kDiskFull},         {EFBIG, RuntimeError::kDiskFull},
      {EACCES, RuntimeError::kPermissionDenied}, {EPERM, RuntimeError::kPermissionDenied},
      {EROFS, RuntimeError::kPermissionDenied},  {ENOTDIR, RuntimeError::kPathFileAccessError},
      {EIO, RuntimeError::kPathFileAccessError},
  };
  for (const auto& [system_error, number] : expected) {
    EXPECT_EQ(disk::error_for(system_error), number) << system_error;
  }
}

}  // namespace
}  // namespace lunavox

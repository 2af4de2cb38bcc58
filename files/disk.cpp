#include "files/disk.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lunavox::disk {
namespace {

// Group and others as the user's umask allows.
constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kAnyWrite = 0222;
constexpr mode_t kPermissions = 07777;

}  // namespace

RuntimeError::Number error_for(int system_error) {
  switch (system_error) {
    case ENOENT:
      return RuntimeError::kFileNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return RuntimeError::kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return RuntimeError::kPermissionDenied;
    default:
      return RuntimeError::kPathFileAccessError;
  }
}

OutputFile::OutputFile(const std::filesystem::path& path, Mode mode, std::filesystem::path told)
    : told_(std::move(told)) {
  const int how = mode == Mode::kNew ? O_EXCL : O_TRUNC;
  descriptor_ = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | how, kNewFileMode);
  if (descriptor_ >= 0) return;
  // The file itself is ours to create: when something is missing, it is its folder.
  if (errno == ENOENT) throw RuntimeError(RuntimeError::kPathFileAccessError, told_.string());
  fail(errno);
}

OutputFile::~OutputFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void OutputFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      fail(errno);
    }
  }
}

void OutputFile::flush() {
  // Devices and pipes cannot be flushed, and need not be.
  if (::fsync(descriptor_) != 0 && errno != EINVAL && errno != ENOTSUP) fail(errno);
}

void OutputFile::close() {
  const int descriptor = descriptor_;
  descriptor_ = -1;
  if (descriptor >= 0 && ::close(descriptor) != 0 && errno != EINTR) fail(errno);
}

void OutputFile::copy_permissions(const std::filesystem::path& from) {
  struct stat status {};
  if (::stat(from.c_str(), &status) != 0) return;
  // The owner first: changing it clears some of the permissions. A file of somebody else that we
  // may write to becomes ours, as with every editor that saves this way; its group stays.
  constexpr uid_t kNoChange = -1;
  if (::fchown(descriptor_, status.st_uid, status.st_gid) != 0) {
    [[maybe_unused]] const int ignored = ::fchown(descriptor_, kNoChange, status.st_gid);
  }
  ::fchmod(descriptor_, status.st_mode & kPermissions);
}

void OutputFile::fail(int system_error) const {
  throw RuntimeError(error_for(system_error), told_.string());
}

void flush_folder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

bool is_writable(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || (status.st_mode & kAnyWrite) == 0) return false;
  return ::access(file.c_str(), W_OK) == 0;
}

Lock::Lock(const std::filesystem::path& path)
    : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kNewFileMode)) {
  if (descriptor_ < 0 || ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return;
  ::close(descriptor_);
  descriptor_ = -1;
}

Lock::~Lock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

Lock::Lock(Lock&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

int process_number() {
  return static_cast<int>(::getpid());
}

}  // namespace lunavox::disk

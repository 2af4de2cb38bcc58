#pragma once

#include "files/disk.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

namespace lunavox {

/// The steps of putting a new file in the place of an old one.
enum class SaveStep {
  kCreated,  ///< the new file stands beside the old one, empty
  kWritten,  ///< its bytes have been written
  kFlushed,  ///< its bytes are on the disk
  kRenamed,  ///< it bears the old one's name
};

/// Told after each step of a save.
using SaveObserver = std::function<void(SaveStep)>;

/// A file that comes to stand under its name as a whole or not at all: it is written beside the old
/// one, flushed to the disk and then given its name. Until commit() returns, the old file is as it
/// was; when the program dies on the way, or something fails, it stays.
///
/// A name that is a symbolic link keeps being one: the file that it leads to is replaced. The new
/// file has the permissions of the old one. What is not a regular file, such as a device, is
/// written to directly.
///
/// Constructor, write() and commit() throw RuntimeError: Permission denied for a read-only file or
/// folder, Disk full, and Path/File access error for a folder that is not there or a name that is a
/// folder's.
class AtomicFile {
 public:
  explicit AtomicFile(const std::filesystem::path& path, SaveObserver observer = {});
  /// Removes the new file unless it has been committed.
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  void write(std::string_view bytes);
  void commit();

 private:
  void open_beside();
  void done(SaveStep step) const;

  std::filesystem::path target_;
  std::filesystem::path new_file_;  // empty when the target is written to directly
  SaveObserver observer_;
  std::optional<disk::OutputFile> output_;
};

}  // namespace lunavox

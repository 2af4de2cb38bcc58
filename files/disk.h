#pragma once

#include "grid/runtime_error.h"

#include <filesystem>
#include <string>
#include <string_view>

// The few things that files need beyond the standard library: writing that is known to have reached
// the disk, and locks. Everything of the operating system that the files room uses is here.
namespace lunavox::disk {

/// The runtime's error for an error number of the system.
RuntimeError::Number error_for(int system_error);

/// A file open for writing. Closed by destruction; closing twice does no harm.
/// Every call throws RuntimeError, with the file's name, where it fails.
class OutputFile {
 public:
  enum class Mode {
    kNew,      ///< the file must not exist yet
    kReplace,  ///< creates or empties the file
  };
  /// @param told  the name that errors tell, where the user knows the file by another one
  OutputFile(const std::filesystem::path& path, Mode mode, std::filesystem::path told);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes);
  /// Returns once all that was written is on the disk.
  void flush();
  void close();
  /// Takes over the permissions of another file and, where the system lets us, its owner.
  void copy_permissions(const std::filesystem::path& from);

 private:
  [[noreturn]] void fail(int system_error) const;

  std::filesystem::path told_;
  int descriptor_ = -1;
};

/// Returns once the names in a folder are on the disk. Folders that cannot be flushed are left
/// alone: some file systems have no such thing.
void flush_folder(const std::filesystem::path& folder);

/// True when the file can be opened for writing and is not marked read-only. An administrator may
/// write to read-only files, but the mark still says what the user wants.
bool is_writable(const std::filesystem::path& file);

/// A lock that one running program at a time holds on a name, until it lets go or ends, however it
/// ends.
class Lock {
 public:
  /// Takes the lock unless another program, or another Lock of this one, holds it. Creates the file
  /// that it stands on.
  explicit Lock(const std::filesystem::path& path);
  ~Lock();
  Lock(Lock&& other) noexcept;
  Lock& operator=(Lock&&) = delete;

  bool held() const { return descriptor_ >= 0; }

 private:
  int descriptor_ = -1;
};

/// Number of this running program.
int process_number();

}  // namespace lunavox::disk

#include "files/atomic_file.h"

#include <atomic>
#include <string>
#include <system_error>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

/// The file that a name leads to through symbolic links; it need not exist.
fs::path followed(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code none;
  for (int i = 0; i < kMostLinks && fs::is_symlink(path, none); ++i) {
    // An absolute link replaces the folder, as appending paths does.
    path = path.parent_path() / fs::read_symlink(path, none);
  }
  return path;
}

fs::path folder_of(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// A hidden name that no other save uses, in this program or another one. One that was killed may
/// have left its file, and its number to us.
fs::path name_beside(const fs::path& target) {
  static std::atomic<int> count{0};
  const std::string start = ".lunavox-" + std::to_string(disk::process_number()) + "-";
  std::error_code none;
  fs::path name;
  do {
    name = folder_of(target) / (start + std::to_string(++count) + ".new");
  } while (fs::exists(fs::symlink_status(name, none)));
  return name;
}

}  // namespace

AtomicFile::AtomicFile(const fs::path& path, SaveObserver observer)
    : target_(followed(path)), observer_(std::move(observer)) {
  std::error_code none;
  const fs::file_status status = fs::status(target_, none);
  if (fs::is_directory(status)) {
    throw RuntimeError(RuntimeError::kPathFileAccessError, target_.string());
  }
  if (fs::exists(status) && !disk::is_writable(target_)) {
    throw RuntimeError(RuntimeError::kPermissionDenied, target_.string());
  }
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    output_.emplace(target_, disk::OutputFile::Mode::kReplace, target_);
  } else {
    open_beside();
  }
  done(SaveStep::kCreated);
}

void AtomicFile::open_beside() {
  const fs::path name = name_beside(target_);
  output_.emplace(name, disk::OutputFile::Mode::kNew, target_);
  new_file_ = name;
  output_->copy_permissions(target_);
}

AtomicFile::~AtomicFile() {
  output_.reset();
  std::error_code none;
  if (!new_file_.empty()) fs::remove(new_file_, none);
}

void AtomicFile::write(std::string_view bytes) {
  output_->write(bytes);
}

void AtomicFile::commit() {
  done(SaveStep::kWritten);
  output_->flush();
  done(SaveStep::kFlushed);
  output_->close();
  if (new_file_.empty()) return;
  std::error_code failure;
  fs::rename(new_file_, target_, failure);
  if (failure) throw RuntimeError(disk::error_for(failure.value()), target_.string());
  new_file_.clear();
  done(SaveStep::kRenamed);
  disk::flush_folder(folder_of(target_));
}

void AtomicFile::done(SaveStep step) const {
  if (observer_) observer_(step);
}

}  // namespace lunavox

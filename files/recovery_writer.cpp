#include "files/recovery_writer.h"

#include "files/atomic_file.h"
#include "files/song_writer.h"

#include <exception>
#include <utility>

namespace lunavox {
namespace {

/// A name as one field of a line: what would end or change the field is written as %XX.
std::string name_field(const std::string& name) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string field;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > ' ' && c != ',' && c != '"' && c != '%') {
      field += c;
    } else {
      field += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
  }
  return field;
}

}  // namespace

std::string recovery_text(const Song& song, const std::string& name) {
  // Texts are guarded: what the user typed must come back, whatever it holds.
  return song_text(song, TextGuard::kQuotes) + name_field(name) + "\r\n";
}

void write_recovery_file(const std::filesystem::path& file, const std::string& text) {
  AtomicFile output(file);
  output.write(text);
  output.commit();
}

RecoveryWriter::RecoveryWriter(std::filesystem::path file)
    : file_(std::move(file)), thread_([this] { run(); }) {}

RecoveryWriter::~RecoveryWriter() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    waiting_.reset();
  }
  changed_.notify_all();
  thread_.join();
}

void RecoveryWriter::write(const Song& song, const std::string& name) {
  Job job{song, name};
  {
    const std::lock_guard lock(mutex_);
    waiting_.emplace(std::move(job));
  }
  changed_.notify_all();
}

void RecoveryWriter::wait() {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [this] { return !waiting_ && !busy_; });
}

void RecoveryWriter::cancel() {
  std::unique_lock lock(mutex_);
  waiting_.reset();
  changed_.wait(lock, [this] { return !busy_; });
}

std::string RecoveryWriter::problem() const {
  const std::lock_guard lock(mutex_);
  return problem_;
}

void RecoveryWriter::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return ending_ || waiting_; });
    if (!waiting_) return;
    const Job job = std::move(*waiting_);
    waiting_.reset();
    busy_ = true;
    lock.unlock();
    std::string problem;
    try {
      write_recovery_file(file_, recovery_text(job.song, job.name));
    } catch (const std::exception& error) {
      problem = error.what();
    }
    lock.lock();
    problem_ = std::move(problem);
    busy_ = false;
    changed_.notify_all();
  }
}

}  // namespace lunavox

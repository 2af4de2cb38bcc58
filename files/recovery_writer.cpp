#include "files/recovery_writer.h"

#include "files/atomic_file.h"
#include "files/recovery_text.h"

#include <exception>
#include <utility>

namespace lunavox {

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

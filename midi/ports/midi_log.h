#pragma once

#include "midi/devices.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>

namespace lunavox {

/// A log file of messages, written by a thread of its own: whoever adds a message only puts it in a
/// queue.
class MidiLog {
 public:
  using Now = std::function<std::chrono::microseconds()>;

  /// @throws PortError when the file cannot be written
  MidiLog(const std::filesystem::path& file, Now now);
  /// Writes what is still in the queue.
  ~MidiLog();
  MidiLog(const MidiLog&) = delete;
  MidiLog& operator=(const MidiLog&) = delete;

  void add_short(std::uint32_t packed);
  void add_sysex(const SysExBytes& data);
  /// Returns when all that has been added so far is in the file.
  void flush();

 private:
  struct Entry {
    std::chrono::microseconds time;
    std::uint32_t packed;
    SysExBytes sysex;  // empty for a short message
  };
  struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void add(Entry entry);
  void run();
  static std::string line(const Entry& entry);

  std::unique_ptr<std::FILE, CloseFile> file_;
  Now now_;
  std::chrono::microseconds began_;

  std::mutex mutex_;
  std::condition_variable added_or_ending_;
  std::condition_variable written_;
  std::vector<Entry> queue_;
  bool writing_ = false;
  bool ending_ = false;
  std::thread writer_;  // last: it uses all the others
};

}  // namespace lunavox

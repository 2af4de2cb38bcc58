#include "midi/ports/midi_log.h"

#include "midi/ports/port_error.h"

#include <array>

namespace lunavox {
namespace {

constexpr std::size_t kUsualBurst =
    4096;  // messages that one line of a full song may send, and more

std::string hexadecimal_pair(std::uint8_t byte) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[byte >> 4], kDigits[byte & 0x0F]};
}

}  // namespace

MidiLog::MidiLog(const std::filesystem::path& file, Now now)
    : file_(std::fopen(file.c_str(), "w")), now_(std::move(now)) {
  if (!file_) throw PortError("The MIDI log \"" + file.string() + "\" cannot be written.");
  began_ = now_();
  queue_.reserve(kUsualBurst);
  writer_ = std::thread([this] { run(); });
}

MidiLog::~MidiLog() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  added_or_ending_.notify_one();
  writer_.join();
}

void MidiLog::add_short(std::uint32_t packed) {
  add({now_() - began_, packed, {}});
}

void MidiLog::add_sysex(const SysExBytes& data) {
  add({now_() - began_, 0, data});
}

void MidiLog::add(Entry entry) {
  bool first;
  {
    const std::lock_guard lock(mutex_);
    first = queue_.empty();
    queue_.push_back(std::move(entry));
  }
  // Only the first of a burst has to wake the writer, which takes all that is there.
  if (first) added_or_ending_.notify_one();
}

void MidiLog::flush() {
  std::unique_lock lock(mutex_);
  written_.wait(lock, [this] { return queue_.empty() && !writing_; });
}

void MidiLog::run() {
  std::vector<Entry> taken;
  taken.reserve(kUsualBurst);
  std::unique_lock lock(mutex_);
  while (true) {
    added_or_ending_.wait(lock, [this] { return !queue_.empty() || ending_; });
    if (queue_.empty()) return;
    taken.clear();
    taken.swap(queue_);
    writing_ = true;
    lock.unlock();
    for (const Entry& entry : taken) std::fputs(line(entry).c_str(), file_.get());
    std::fflush(file_.get());
    lock.lock();
    writing_ = false;
    written_.notify_all();
  }
}

std::string MidiLog::line(const Entry& entry) {
  std::array<char, 48> text{};
  const auto time = static_cast<long long>(entry.time.count());
  if (entry.sysex.empty()) {
    std::snprintf(text.data(), text.size(), "%lld.%03lld\tshort\t%08X\n", time / 1000, time % 1000,
                  entry.packed);
    return text.data();
  }
  std::snprintf(text.data(), text.size(), "%lld.%03lld\tsysex\t", time / 1000, time % 1000);
  std::string result = text.data();
  for (const std::uint8_t byte : entry.sysex) result += hexadecimal_pair(byte);
  return result + "\n";
}

}  // namespace lunavox

#pragma once

#include "midi/devices.h"

#include <functional>

namespace lunavox {

/// One call that a recording device has received.
struct RecordedCall {
  enum Kind { kOpen, kShort, kPrepare, kLong, kUnprepare, kReset, kClose };

  Kind kind = kShort;
  std::uint32_t time_ms = 0;  ///< reading of the record's clock, 0 without one
  std::uint32_t packed = 0;   ///< the short message
  SysExBytes sysex;           ///< the bytes of one of the three steps
  int device = 0;             ///< the number that was opened

  bool operator==(const RecordedCall&) const = default;
};

/// All that recording devices have received, in order, and what they are to answer.
struct MidiRecord {
  std::vector<RecordedCall> calls;
  std::function<std::uint32_t()> now;  ///< the clock of the time stamps; may be empty
  MidiResult prepare_result = kMidiOk;
  MidiResult long_result = kMidiOk;
  MidiResult unprepare_result = kMidiOk;
  std::string error_text = "The device is busy.";
  std::string status;

  /// The packed short messages alone.
  std::vector<std::uint32_t> shorts() const;
  /// The System Exclusive messages alone, each once.
  std::vector<SysExBytes> sysexes() const;
  void clear() { calls.clear(); }
};

/// An output that writes down what comes and sounds nothing.
class RecordingDevice : public OutputDevice {
 public:
  /// @param record outlives the device
  RecordingDevice(MidiRecord& record, int device);
  ~RecordingDevice() override;

  MidiResult short_message(std::uint32_t packed) override;
  MidiResult prepare_header(const SysExBytes& data) override;
  MidiResult long_message(const SysExBytes& data) override;
  MidiResult unprepare_header(const SysExBytes& data) override;
  std::string error_text(MidiResult) const override { return record_.error_text; }
  void reset() override;
  std::string status() const override { return record_.status; }

 private:
  void write(RecordedCall call);

  MidiRecord& record_;
};

/// A list of recording devices that share one record. A number without a device, such as one past
/// the list's end, cannot be opened.
class RecordingDevices : public OutputDevices {
 public:
  explicit RecordingDevices(std::vector<std::string> names = {"Recorder"})
      : names_(std::move(names)) {}

  MidiRecord& record() { return record_; }

  std::vector<std::string> names() override { return names_; }
  std::unique_ptr<OutputDevice> open(int device) override;
  std::string open_error() const override { return open_error_; }

 private:
  std::vector<std::string> names_;
  MidiRecord record_;
  std::string open_error_;
};

}  // namespace lunavox

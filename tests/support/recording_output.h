#pragma once

#include "midi/devices.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace lunavox::test {

/// Outputs that write down all that is asked of them, in order, and fail on request.
class RecordingOutput : public OutputDevices {
 public:
  /// One call of a device or of the list.
  struct Call {
    enum Kind { kOpen, kClose, kReset, kShort, kPrepare, kLong, kUnprepare };
    Kind kind = kShort;
    int device = 0;            ///< of kOpen and kClose
    std::uint32_t packed = 0;  ///< of kShort
    SysExBytes sysex;          ///< of the three System Exclusive steps

    bool operator==(const Call&) const = default;
  };

  std::vector<std::string> device_names = {"Synth", "Module"};
  std::vector<Call> calls;

  // What is to fail.
  bool opens = true;
  MidiResult short_result = kMidiOk;
  MidiResult prepare_result = kMidiOk;
  MidiResult long_result = kMidiOk;
  MidiResult unprepare_result = kMidiOk;
  std::string error = "The device is busy.";
  std::string status;  ///< what devices say of themselves
  /// Called with each short message.
  std::function<void(std::uint32_t)> on_short = [](std::uint32_t) {};

  /// The short messages so far.
  std::vector<std::uint32_t> shorts() const {
    std::vector<std::uint32_t> messages;
    for (const Call& call : calls) {
      if (call.kind == Call::kShort) messages.push_back(call.packed);
    }
    return messages;
  }

  /// The System Exclusive messages that came as far as sending.
  std::vector<SysExBytes> sysexes() const {
    std::vector<SysExBytes> messages;
    for (const Call& call : calls) {
      if (call.kind == Call::kLong) messages.push_back(call.sysex);
    }
    return messages;
  }

  /// The short messages since the last take, and forgets all calls.
  std::vector<std::uint32_t> take_shorts() {
    std::vector<std::uint32_t> messages = shorts();
    calls.clear();
    return messages;
  }

  std::vector<std::string> names() override { return device_names; }

  std::unique_ptr<OutputDevice> open(int device) override {
    calls.push_back({Call::kOpen, device, 0, {}});
    if (!opens) return nullptr;
    return std::make_unique<Device>(*this, device);
  }

  std::string open_error() const override { return opens ? "" : "The device cannot be opened."; }

 private:
  class Device : public OutputDevice {
   public:
    Device(RecordingOutput& owner, int number) : owner_(owner), number_(number) {}
    ~Device() override { note({Call::kClose, number_, 0, {}}); }

    MidiResult short_message(std::uint32_t packed) override {
      note({Call::kShort, 0, packed, {}});
      owner_.on_short(packed);
      return owner_.short_result;
    }
    MidiResult prepare_header(const SysExBytes& data) override {
      note({Call::kPrepare, 0, 0, data});
      return owner_.prepare_result;
    }
    MidiResult long_message(const SysExBytes& data) override {
      note({Call::kLong, 0, 0, data});
      return owner_.long_result;
    }
    MidiResult unprepare_header(const SysExBytes& data) override {
      note({Call::kUnprepare, 0, 0, data});
      return owner_.unprepare_result;
    }
    std::string error_text(MidiResult) const override { return owner_.error; }
    void reset() override { note({Call::kReset, number_, 0, {}}); }
    std::string status() const override { return owner_.status; }

   private:
    void note(const Call& call) { owner_.calls.push_back(call); }

    RecordingOutput& owner_;
    int number_;
  };
};

}  // namespace lunavox::test

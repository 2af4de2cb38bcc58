#pragma once

#include "midi/devices.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lunavox::test {

/// Inputs that a test plays on: what it plays arrives as from a device's own thread.
class ScriptedInputs : public InputDevices {
 public:
  explicit ScriptedInputs(std::vector<std::string> names = {}) : device_names(std::move(names)) {}

  std::vector<std::string> device_names;
  bool opens = true;
  int opened = -1;      ///< the number opened last, -1 for none
  std::string trouble;  ///< what the open device's status tells
  std::vector<std::string> calls;
  std::function<void()> on_call;  ///< told of each

  /// A message arrives at the open device; lost where none is open and started.
  void play(std::uint32_t packed) {
    if (started_ && callback_) callback_(packed);
  }

  std::vector<std::string> names() override { return device_names; }

  std::unique_ptr<InputDevice> open(int device, InputCallback callback) override {
    if (!opens || device < 0 || device >= static_cast<int>(device_names.size())) return nullptr;
    opened = device;
    callback_ = std::move(callback);
    return std::make_unique<Device>(*this);
  }
  std::string open_error() const override { return opens ? "" : "The device cannot be opened."; }

 private:
  class Device : public InputDevice {
   public:
    explicit Device(ScriptedInputs& owner) : owner_(owner) {}
    ~Device() override { note("close", false); }
    void start() override { note("start", true); }
    void stop() override { note("stop", false); }
    void reset() override { note("reset", owner_.started_); }
    std::string status() const override { return owner_.trouble; }

   private:
    void note(const char* call, bool started) {
      owner_.calls.emplace_back(call);
      owner_.started_ = started;
      if (owner_.on_call) owner_.on_call();
    }
    ScriptedInputs& owner_;
  };

  InputCallback callback_;
  bool started_ = false;
};

}  // namespace lunavox::test

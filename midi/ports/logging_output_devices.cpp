#include "midi/ports/logging_output_devices.h"

#include "midi/ports/midi_log.h"

namespace lunavox {
namespace {

std::chrono::microseconds steady_now() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
      std::chrono::steady_clock::now().time_since_epoch());
}

/// Hands everything on, and writes down what is sent, whatever the device makes of it.
class LoggingDevice : public OutputDevice {
 public:
  LoggingDevice(std::unique_ptr<OutputDevice> device, std::shared_ptr<MidiLog> log)
      : device_(std::move(device)), log_(std::move(log)) {}

  MidiResult short_message(std::uint32_t packed) override {
    log_->add_short(packed);
    return device_->short_message(packed);
  }
  MidiResult prepare_header(const SysExBytes& data) override {
    return device_->prepare_header(data);
  }
  MidiResult long_message(const SysExBytes& data) override {
    log_->add_sysex(data);
    return device_->long_message(data);
  }
  MidiResult unprepare_header(const SysExBytes& data) override {
    return device_->unprepare_header(data);
  }
  std::string error_text(MidiResult result) const override { return device_->error_text(result); }
  void reset() override { device_->reset(); }
  std::string status() const override { return device_->status(); }
  void look_after() override { device_->look_after(); }

 private:
  std::unique_ptr<OutputDevice> device_;
  std::shared_ptr<MidiLog> log_;
};

}  // namespace

LoggingOutputDevices::LoggingOutputDevices(OutputDevices& devices,
                                           const std::filesystem::path& file, Now now)
    : devices_(devices),
      log_(std::make_shared<MidiLog>(file, now ? std::move(now) : Now(steady_now))) {}

LoggingOutputDevices::~LoggingOutputDevices() = default;

std::unique_ptr<OutputDevice> LoggingOutputDevices::open(int device) {
  auto opened = devices_.open(device);
  if (!opened) return nullptr;
  return std::make_unique<LoggingDevice>(std::move(opened), log_);
}

void LoggingOutputDevices::flush() {
  log_->flush();
}

}  // namespace lunavox

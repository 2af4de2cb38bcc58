// Uses the MIDI ports of this machine from the command line, for the end-to-end tests:
//   ports_client list-outputs | list-inputs
//   ports_client send OUTPUT MESSAGE...      MESSAGE: eight hexadecimal digits of a packed short
//                                            message, or the bytes of a System Exclusive message
//   ports_client send-until-gone OUTPUT      sends until the device tells an error, prints it
//   ports_client send-while-away OUTPUT      looks after the device until its server is back, its
//                                            port not yet, sends, prints the error, and sends again
//                                            from when the port is back to when it goes
//   ports_client send-stalled OUTPUT         sends until the device tells an error, sends far more,
//                                            prints error and status, and sends again from when
//                                            there is no trouble to when there is some
//   ports_client close-stalled OUTPUT        opens an input too, sends until the output tells an
//                                            error, and closes both
//   ports_client receive INPUT COUNT         prints COUNT messages as they arrive
//   ports_client receive-until-gone INPUT    prints messages until the device tells why it is gone
#include "midi/device_selection.h"
#include "midi/ports/system_input_devices.h"
#include "midi/ports/system_output_devices.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <semaphore>
#include <stdexcept>
#include <thread>

namespace lunavox {
namespace {

template <class Devices>
int device_of(Devices& devices, const std::string& wanted) {
  const auto number = select_device(devices.names(), wanted);
  if (!number) throw std::runtime_error("no device fits " + wanted);
  return *number;
}

template <class Devices>
int list(Devices& devices) {
  for (const std::string& name : devices.names()) std::puts(name.c_str());
  return 0;
}

SysExBytes bytes_of(const std::string& pairs) {
  SysExBytes bytes;
  for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoul(pairs.substr(i, 2), nullptr, 16)));
  }
  return bytes;
}

MidiResult send_one(OutputDevice& device, const std::string& message) {
  if (message.size() == 8) {
    return device.short_message(static_cast<std::uint32_t>(std::stoul(message, nullptr, 16)));
  }
  const SysExBytes data = bytes_of(message);
  if (const MidiResult result = device.prepare_header(data)) return result;
  if (const MidiResult result = device.long_message(data)) return result;
  return device.unprepare_header(data);
}

std::unique_ptr<OutputDevice> open_output(const std::string& name) {
  SystemOutputDevices devices;
  auto device = devices.open(device_of(devices, name));
  if (!device) throw std::runtime_error(devices.open_error());
  return device;
}

int send(const std::string& name, const std::vector<std::string>& messages) {
  const auto device = open_output(name);
  for (const std::string& message : messages) {
    if (const MidiResult result = send_one(*device, message)) {
      throw std::runtime_error(device->error_text(result));
    }
  }
  return 0;
}

// Far more than any queue holds: none of it may be waited for.
MidiResult send_a_flood(OutputDevice& device) {
  MidiResult result = kMidiOk;
  for (int i = 0; i < 100000; ++i) result = device.short_message(0x007BB0);
  return result;
}

int send_until_gone(const std::string& name) {
  const auto device = open_output(name);
  std::puts("open");
  std::fflush(stdout);
  MidiResult result = kMidiOk;
  while (result == kMidiOk && device->status().empty()) result = device->short_message(0x007BB0);
  result = send_a_flood(*device);
  device->reset();
  std::puts(device->error_text(result).c_str());
  std::puts(device->status().c_str());
  return 0;
}

void send_notes_until_trouble(OutputDevice& device) {
  while (device.status().empty()) {
    device.short_message(0x643C90);
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

void look_after_until(OutputDevice& device, const std::string& status) {
  while (device.status() != status) {
    device.look_after();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  std::puts(status.c_str());
  std::fflush(stdout);
}

int send_while_away(const std::string& name) {
  const auto device = open_output(name);
  look_after_until(*device, "The JACK server has stopped: nothing is heard any more.");
  look_after_until(*device, "The MIDI output \"" + name + "\" is gone.");
  std::puts(device->error_text(send_a_flood(*device)).c_str());
  std::fflush(stdout);
  look_after_until(*device, "");
  send_notes_until_trouble(*device);
  return 0;
}

int send_stalled(const std::string& name) {
  const auto device = open_output(name);
  std::puts("open");
  std::fflush(stdout);
  while (device->short_message(0x007BB0) == kMidiOk) {
  }
  std::puts(device->error_text(send_a_flood(*device)).c_str());
  device->reset();
  std::puts(device->status().c_str());
  std::fflush(stdout);
  look_after_until(*device, "");
  send_notes_until_trouble(*device);
  return 0;
}

int close_stalled(const std::string& name) {
  SystemInputDevices inputs;
  const auto input = inputs.open(device_of(inputs, "virtual"), [](std::uint32_t) {});
  if (!input) throw std::runtime_error(inputs.open_error());
  input->start();
  const auto output = open_output(name);
  std::puts("open");
  std::fflush(stdout);
  while (output->short_message(0x007BB0) == kMidiOk) {
  }
  return 0;
}

int receive(const std::string& name, int count) {
  SystemInputDevices devices;
  std::counting_semaphore<> arrived(0);
  const auto device = devices.open(device_of(devices, name), [&](std::uint32_t packed) {
    std::printf("%08X\n", packed);
    std::fflush(stdout);
    arrived.release();
  });
  if (!device) throw std::runtime_error(devices.open_error());
  device->start();
  for (int i = 0; i < count; ++i) arrived.acquire();
  device->stop();
  return 0;
}

int receive_until_gone(const std::string& name) {
  SystemInputDevices devices;
  const auto device = devices.open(device_of(devices, name), [](std::uint32_t packed) {
    std::printf("%08X\n", packed);
    std::fflush(stdout);
  });
  if (!device) throw std::runtime_error(devices.open_error());
  device->start();
  // The connection is made a moment after it is asked for.
  while (!device->status().empty()) std::this_thread::yield();
  std::string trouble;
  while ((trouble = device->status()).empty()) std::this_thread::yield();
  std::puts(trouble.c_str());
  return 0;
}

int run(const std::vector<std::string>& arguments) {
  SystemOutputDevices outputs;
  SystemInputDevices inputs;
  const std::string command = arguments.empty() ? "" : arguments[0];
  if (command == "list-outputs") return list(outputs);
  if (command == "list-inputs") return list(inputs);
  if (command == "send" && arguments.size() > 2) {
    return send(arguments[1], {arguments.begin() + 2, arguments.end()});
  }
  if (command == "send-until-gone" && arguments.size() == 2) return send_until_gone(arguments[1]);
  if (command == "send-while-away" && arguments.size() == 2) return send_while_away(arguments[1]);
  if (command == "send-stalled" && arguments.size() == 2) return send_stalled(arguments[1]);
  if (command == "close-stalled" && arguments.size() == 2) return close_stalled(arguments[1]);
  if (command == "receive" && arguments.size() == 3) {
    return receive(arguments[1], std::stoi(arguments[2]));
  }
  if (command == "receive-until-gone" && arguments.size() == 2) {
    return receive_until_gone(arguments[1]);
  }
  throw std::runtime_error("see the head of ports_client.cpp");
}

}  // namespace
}  // namespace lunavox

int main(int argc, char** argv) {
  try {
    return lunavox::run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "ports_client: %s\n", error.what());
    return EXIT_FAILURE;
  }
}

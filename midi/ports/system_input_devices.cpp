#include "midi/ports/system_input_devices.h"

#include "midi/ports/quiet_libraries.h"
#include "midi/ports/rtmidi_input.h"

namespace lunavox {
namespace {

std::vector<std::string> listed(const MidiService& service) {
  if (!service.available()) return {};
  try {
    RtMidiIn ports(service.api, kInputClient);
    std::vector<std::string> names = port_names(ports);
    names.push_back(kVirtualInput);
    return names;
  } catch (const RtMidiError&) {
    return {};
  }
}

}  // namespace

SystemInputDevices::SystemInputDevices() {
  quieten_libraries();
}

std::vector<std::string> SystemInputDevices::names() {
  return listed(find_midi_service());
}

std::unique_ptr<InputDevice> SystemInputDevices::open(int device, InputCallback callback) {
  open_error_.clear();
  const MidiService service = find_midi_service();
  const std::vector<std::string> names = listed(service);
  if (device < 0 || device >= static_cast<int>(names.size())) {
    open_error_ = "There is no MIDI input number " + std::to_string(device) + ".";
    return nullptr;
  }
  const std::string& name = names[device];
  const std::string port = name == kVirtualInput ? std::string() : name;
  auto input = RtMidiInput::open(service, port, std::move(callback));
  if (!input) open_error_ = "The MIDI input \"" + name + "\" cannot be opened.";
  return input;
}

}  // namespace lunavox

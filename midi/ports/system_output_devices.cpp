#include "midi/ports/system_output_devices.h"

#include "midi/ports/quiet_libraries.h"
#include "midi/ports/rtmidi_output.h"
#include "midi/ports/synth_device.h"

namespace lunavox {
namespace {

constexpr int kSynth = 0;
constexpr int kSampleRate = 44100;

std::vector<std::string> output_ports(const MidiService& service) {
  if (!service.available()) return {};
  try {
    RtMidiOut ports(service.api, kOutputClient);
    return port_names(ports);
  } catch (const RtMidiError&) {
    return {};
  }
}

/// The port of our own comes last, where there is a service for it.
std::vector<std::string> listed(const MidiService& service) {
  std::vector<std::string> names = {kSynthName};
  const std::vector<std::string> ports = output_ports(service);
  names.insert(names.end(), ports.begin(), ports.end());
  if (service.available()) names.push_back(kVirtualOutput);
  return names;
}

}  // namespace

SystemOutputDevices::SystemOutputDevices(std::filesystem::path soundfont)
    : soundfont_(std::move(soundfont)) {
  quieten_libraries();
}

std::vector<std::string> SystemOutputDevices::names() {
  return listed(find_midi_service());
}

std::unique_ptr<OutputDevice> SystemOutputDevices::open(int device) {
  open_error_.clear();
  // The synthesiser needs no MIDI service; do not wait for one.
  if (device == kSynth) return open_synth();
  const MidiService service = find_midi_service();
  const std::vector<std::string> names = listed(service);
  if (device == kDefaultOutput) device = default_output(service.api, names);
  if (device == kSynth) return open_synth();
  if (device < 0 || device >= static_cast<int>(names.size())) {
    open_error_ = "There is no MIDI output number " + std::to_string(device) + ".";
    return nullptr;
  }
  const std::string& name = names[device];
  auto output = RtMidiOutput::open(service, name == kVirtualOutput ? std::string() : name);
  if (!output) open_error_ = "The MIDI output \"" + name + "\" cannot be opened.";
  return output;
}

std::unique_ptr<OutputDevice> SystemOutputDevices::open_synth() {
  auto synthesiser = Synthesiser::load(soundfont_, kSampleRate, open_error_);
  if (!synthesiser) return nullptr;
  return std::make_unique<SynthDevice>(std::move(synthesiser), SynthDevice::Sound::kSoundCard);
}

}  // namespace lunavox

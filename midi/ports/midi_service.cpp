#include "midi/ports/midi_service.h"

#include "midi/ports/quiet_libraries.h"

#include <algorithm>
#include <charconv>

#include <fcntl.h>
#include <unistd.h>

namespace lunavox {
namespace {

/// Asked by hand: RtMidi prints before it throws.
bool alsa_sequencer_opens() {
  const int file = open("/dev/snd/seq", O_RDWR | O_NONBLOCK | O_CLOEXEC);
  if (file < 0) return false;
  close(file);
  return true;
}

/// The client number at the end of an ALSA port name, "Client:Port 20:0"; -1 without one.
int alsa_client(const std::string& name) {
  const std::size_t blank = name.rfind(' ');
  if (blank == std::string::npos) return -1;
  int client = -1;
  std::from_chars(name.data() + blank + 1, name.data() + name.size(), client);
  return client;
}

}  // namespace

MidiService find_midi_service() {
  quieten_libraries();
  if (alsa_sequencer_opens()) return {RtMidi::LINUX_ALSA, nullptr};
  if (auto jack = JackServer::connect()) return {RtMidi::UNIX_JACK, std::move(jack)};
  return {};
}

bool is_own_port(const std::string& name) {
  return name.starts_with(kOutputClient) || name.starts_with(kInputClient);
}

bool is_hardware_port(RtMidi::Api api, const std::string& name) {
  if (api == RtMidi::UNIX_JACK) return name.starts_with("system:") || name.starts_with("a2j:");
  // The kernel's clients: 0 is the sequencer itself, 14 the through port, from 128 on are programs.
  const int client = alsa_client(name);
  return client > 14 && client < 128;
}

int default_output(RtMidi::Api api, const std::vector<std::string>& names) {
  const auto is_hardware = [api](const std::string& name) { return is_hardware_port(api, name); };
  const auto found = std::find_if(names.begin(), names.end(), is_hardware);
  return found == names.end() ? 0 : static_cast<int>(found - names.begin());
}

std::vector<std::string> port_names(RtMidi& ports) {
  std::vector<std::string> names;
  const unsigned count = ports.getPortCount();
  for (unsigned port = 0; port < count; ++port) names.push_back(ports.getPortName(port));
  names.erase(std::remove_if(names.begin(), names.end(), is_own_port), names.end());
  return names;
}

int port_number(RtMidi& ports, const std::string& name) {
  const unsigned count = ports.getPortCount();
  for (unsigned port = 0; port < count; ++port) {
    if (ports.getPortName(port) == name) return static_cast<int>(port);
  }
  return -1;
}

void PortErrors::listen_to(RtMidi& ports) {
  ports.setErrorCallback(
      [](RtMidiError::Type type, const std::string&, void* self) {
        if (type == RtMidiError::DEBUG_WARNING) return;
        auto* errors = static_cast<PortErrors*>(self);
        errors->any_ = true;
        if (type != RtMidiError::WARNING) errors->failed_ = true;
      },
      this);
}

}  // namespace lunavox

#include "midi/ports/jack_server.h"

#include "midi/ports/quiet_libraries.h"

#include <chrono>
#include <string_view>
#include <thread>

#include <jack/jack.h>

namespace lunavox {

std::shared_ptr<JackServer> JackServer::connect() {
  quieten_libraries();
  std::shared_ptr<JackServer> server(new JackServer);
  server->client_ = jack_client_open("Lunavox watch", JackNoStartServer, nullptr);
  if (!server->client_) return nullptr;
  jack_on_shutdown(
      server->client_, [](void* self) { static_cast<JackServer*>(self)->alive_ = false; },
      server.get());
  jack_set_process_callback(
      server->client_,
      [](jack_nframes_t, void* self) {
        ++static_cast<JackServer*>(self)->cycles_;
        return 0;
      },
      server.get());
  if (jack_activate(server->client_) != 0) return nullptr;
  return server;
}

bool JackServer::runs_on() const {
  constexpr std::chrono::milliseconds kPatience{500};
  const auto end = std::chrono::steady_clock::now() + kPatience;
  const std::uint64_t now = cycles_;
  while (alive_ && cycles_ == now) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return alive_;
}

bool JackServer::connected(const std::string& port, const std::string& client) const {
  const jack_port_t* found = jack_port_by_name(client_, port.c_str());
  if (!found) return false;
  const std::unique_ptr<const char*, void (*)(const char**)> others(
      jack_port_get_all_connections(client_, found), [](const char** names) { jack_free(names); });
  for (const char** other = others.get(); other && *other; ++other) {
    if (std::string_view(*other).starts_with(client)) return true;
  }
  return false;
}

JackServer::~JackServer() {
  if (client_) jack_client_close(client_);
}

}  // namespace lunavox

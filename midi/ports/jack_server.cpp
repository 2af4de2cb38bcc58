#include "midi/ports/jack_server.h"

#include "midi/ports/quiet_libraries.h"

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

JackServer::~JackServer() {
  if (client_) jack_client_close(client_);
}

}  // namespace lunavox

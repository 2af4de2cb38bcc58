#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include <jack/types.h>

namespace lunavox {

/// A connection to the running JACK server that tells whether the server still runs and how far it
/// has come: RtMidi tells neither, and waits without end for room in the queue of a server that is
/// gone.
class JackServer {
 public:
  /// Null when no server runs.
  static std::shared_ptr<JackServer> connect();
  ~JackServer();
  JackServer(const JackServer&) = delete;
  JackServer& operator=(const JackServer&) = delete;

  bool alive() const { return alive_; }
  /// Waits for the next process cycle; not long, and not for a dead server.
  /// @return false when none comes: whoever asks the server for anything may then wait without end
  bool runs_on() const;
  /// Process cycles seen since connecting.
  std::uint64_t cycles() const { return cycles_; }
  /// Whether a port is by now connected to one of a client whose name begins so. A connection asked
  /// for is only made when the server comes to it, and what is sent before goes nowhere.
  bool connected(const std::string& port, const std::string& client) const;

 private:
  JackServer() = default;

  jack_client_t* client_ = nullptr;
  std::atomic<bool> alive_{true};
  std::atomic<std::uint64_t> cycles_{0};
};

}  // namespace lunavox

#pragma once

#include "midi/ports/midi_service.h"

#include <functional>
#include <memory>
#include <string>

namespace lunavox {

/// An open port of the system's MIDI service that is taken up again when the port it leads to, or
/// the whole service, was gone and has come back.
/// @tparam Port RtMidiOut or RtMidiIn
template <class Port>
class ReturningPort {
 public:
  struct Names {
    const char* client;        ///< ours among the programs that ports belong to
    const char* own_port;      ///< our end of a connection
    const char* virtual_port;  ///< the port that others connect to
  };
  enum class State { kThere, kAway, kNoService };

  /// @param wanted the port to connect to by its name, or, empty, one of our own for others
  /// @param set_up does what is to be done before the library's object is opened, each time
  ReturningPort(MidiService service, std::string wanted, Names names,
                std::function<void(Port&)> set_up);
  ~ReturningPort();
  ReturningPort(const ReturningPort&) = delete;
  ReturningPort& operator=(const ReturningPort&) = delete;

  /// @throws RtMidiError where the service cannot be used
  /// @return false when the port cannot be opened
  bool open();
  /// Whether the connection that was asked for has been made. A server only comes to it after a
  /// while, or never: where the other program was not ready yet.
  bool connected() const;
  /// To be called now and then.
  void look_after();
  /// Whether the connection has been made again since this was last asked.
  bool has_returned();
  State state() const;
  /// Whether the service runs and our end of the connection is there. Nothing may be sent while it
  /// is not: nobody takes anything out of the library's queue then, and the library waits without
  /// end for room in it.
  bool usable() const { return opened_ && service_.alive(); }

  const MidiService& service() const { return service_; }
  const std::string& wanted() const { return wanted_; }
  /// The library's object; only to be used while it is usable().
  Port& port() { return *port_; }
  /// What the library had to say.
  PortErrors& errors() { return *errors_; }

 private:
  bool open_port();
  void look_after_service();
  void reopen();
  bool listed() const;

  MidiService service_;
  std::string wanted_;
  Names names_;
  std::function<void(Port&)> set_up_;
  bool gone_ = false;
  bool opened_ = false;
  bool reopened_ = false;
  bool was_connected_ = false;  // since then, who parts the two does so on purpose
  std::shared_ptr<PortErrors> errors_ = std::make_shared<PortErrors>();
  std::unique_ptr<Port> port_;
};

extern template class ReturningPort<RtMidiOut>;
extern template class ReturningPort<RtMidiIn>;

}  // namespace lunavox

#include "midi/ports/returning_port.h"

#include <thread>
#include <type_traits>
#include <utility>

namespace lunavox {

template <class Port>
ReturningPort<Port>::ReturningPort(MidiService service, std::string wanted, Names names,
                                   std::function<void(Port&)> set_up)
    : service_(std::move(service)),
      wanted_(std::move(wanted)),
      names_(names),
      set_up_(std::move(set_up)) {}

/// Closing waits for the server's answer, without end where the server stands still. Then that is
/// waited for elsewhere, and the end of the program does not wait for it.
template <class Port>
ReturningPort<Port>::~ReturningPort() {
  if (!port_ || !service_.jack || !service_.alive() || service_.jack->runs_on()) return;
  if constexpr (std::is_same_v<Port, RtMidiIn>) port_->cancelCallback();
  std::thread([jack = std::move(service_.jack), errors = errors_, port = std::move(port_)] {
  }).detach();
}

template <class Port>
bool ReturningPort<Port>::open() {
  was_connected_ = opened_ = false;
  opened_ = open_port();
  return opened_;
}

template <class Port>
bool ReturningPort<Port>::open_port() {
  if (!port_) {
    port_ = std::make_unique<Port>(service_.api, names_.client);
    errors_->listen_to(*port_);
    set_up_(*port_);
  }
  errors_->clear();
  if (wanted_.empty()) {
    port_->openVirtualPort(names_.virtual_port);
    return !errors_->failed();
  }
  const int number = port_number(*port_, wanted_);
  if (number < 0) return false;
  port_->openPort(static_cast<unsigned>(number), names_.own_port);
  return port_->isPortOpen() && !errors_->failed();
}

template <class Port>
bool ReturningPort<Port>::connected() const {
  if (was_connected_ || wanted_.empty() || !service_.jack) return true;
  return service_.jack->connected(wanted_, names_.client);
}

template <class Port>
void ReturningPort<Port>::look_after() {
  if (!service_.alive()) return look_after_service();
  was_connected_ = connected();
  if (!listed()) {
    gone_ = true;
  } else if (gone_ || !was_connected_) {
    // There again, but our connection went with the old one; or there, but it was not made.
    if (port_) port_->closePort();
    reopen();
  }
}

/// A JACK server that is started again is only found by a program that has let go of the old one
/// altogether. So all that we have of it is given up first, here and in the other devices that are
/// looked after, and the new one is sought when we are asked the next time.
template <class Port>
void ReturningPort<Port>::look_after_service() {
  if (port_) {
    opened_ = false;
    port_.reset();
    service_.jack.reset();
  } else if ((service_.jack = JackServer::connect())) {
    reopen();
  }
}

template <class Port>
void ReturningPort<Port>::reopen() {
  try {
    gone_ = !open();
    reopened_ = !gone_;
  } catch (const RtMidiError&) {
    gone_ = true;
  }
}

template <class Port>
bool ReturningPort<Port>::has_returned() {
  return reopened_ && usable() && connected() && std::exchange(reopened_, false);
}

template <class Port>
typename ReturningPort<Port>::State ReturningPort<Port>::state() const {
  if (!service_.alive()) return State::kNoService;
  return gone_ || !listed() || !connected() ? State::kAway : State::kThere;
}

template <class Port>
bool ReturningPort<Port>::listed() const {
  return wanted_.empty() || !port_ || port_number(*port_, wanted_) >= 0;
}

template class ReturningPort<RtMidiOut>;
template class ReturningPort<RtMidiIn>;

}  // namespace lunavox

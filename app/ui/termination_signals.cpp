#include "app/ui/termination_signals.h"

#ifdef Q_OS_UNIX

#include <array>
#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace lunavox {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP};

// A signal handler may do next to nothing and has no argument of its own: it writes a byte into a
// pair of sockets, whose other end the event loop watches.
std::array<int, 2> sockets = {-1, -1};

void on_signal(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(sockets[0], &byte, 1);
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> ended) {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets.data()) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(sockets[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [ended = std::move(ended)] {
    char byte = 0;
    if (read(sockets[1], &byte, 1) == 1) ended();
  });
  for (const int signal : kSignals) std::signal(signal, on_signal);
}

TerminationSignals::~TerminationSignals() {
  if (!notifier_) return;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  notifier_.reset();
  for (int& socket : sockets) {
    close(socket);
    socket = -1;
  }
}

}  // namespace lunavox

#else

namespace lunavox {

TerminationSignals::TerminationSignals(std::function<void()>) {}
TerminationSignals::~TerminationSignals() = default;

}  // namespace lunavox

#endif

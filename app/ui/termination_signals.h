#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace lunavox {

/// Brings the system's wish that the program end (Ctrl-C in its terminal, the session's end) to the
/// window's thread, between two events. One object at a time.
class TerminationSignals {
 public:
  /// @param ended  called once for each signal, on the thread of the event loop
  explicit TerminationSignals(std::function<void()> ended);
  ~TerminationSignals();
  TerminationSignals(const TerminationSignals&) = delete;
  TerminationSignals& operator=(const TerminationSignals&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace lunavox

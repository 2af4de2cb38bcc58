#pragma once

#include "midi/clock.h"
#include "midi/loop.h"

#include <QObject>
#include <QTimer>
#include <atomic>

namespace lunavox {

/// Calls the passes of the current loop, between window events. It sleeps until shortly before the
/// loop is due and then waits on the clock, so that a line is on time and an idle editor costs
/// nothing. No pass begins while another one runs, even where that one shows a message box and so
/// handles window events.
class LoopDriver : public QObject {
 public:
  LoopDriver(CurrentLoop& current, Clock& clock);
  ~LoopDriver() override;

  /// Something has arrived for the current loop. Safe from any thread; many calls make one pass.
  void wake();

 protected:
  void customEvent(QEvent* event) override;

 private:
  void run();
  void schedule();
  void wait_until(std::uint32_t due);

  CurrentLoop& current_;
  Clock& clock_;
  QTimer timer_;
  std::atomic<bool> woken_{false};
  bool in_pass_ = false;
  bool missed_ = false;  // something came for the loop during its pass
};

}  // namespace lunavox

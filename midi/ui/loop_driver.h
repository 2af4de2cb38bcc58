#pragma once

#include "midi/clock.h"
#include "midi/loop.h"

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>

namespace lunavox {

/// Calls the passes of the current loop, between window events. It sleeps until shortly before the
/// loop is due and then waits on the clock, so that a line is on time and an idle editor costs
/// nothing. No pass begins while another one runs, even where that one shows a message box and so
/// handles window events.
class LoopDriver : public QObject {
 public:
  /// @param hurry  told when lines begin to come due, and when they cease; may be empty
  LoopDriver(CurrentLoop& current, Clock& clock, std::function<void(bool lines)> hurry = {});
  ~LoopDriver() override;

  /// Something has arrived for the current loop. Safe from any thread; many calls make one pass.
  void wake();
  /// Work that takes long is about to begin on this thread: a line that comes due before its end is
  /// played first. What arrives while that line is waited for is dealt with.
  /// @param work_ms  what the work takes, milliseconds
  void make_room(int work_ms);
  /// Milliseconds until the loop is due, less than 0 where it is late; none where it is never due.
  std::optional<std::int32_t> left_ms();

 protected:
  void customEvent(QEvent* event) override;

 private:
  void run();
  void schedule();
  void hurry(bool lines);
  void wait_until(std::uint32_t due);

  CurrentLoop& current_;
  Clock& clock_;
  std::function<void(bool)> hurry_;
  QTimer timer_;
  std::atomic<bool> woken_{false};
  bool in_pass_ = false;
  bool hurried_ = false;
  bool missed_ = false;  // something came for the loop during its pass
};

}  // namespace lunavox

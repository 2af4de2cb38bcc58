#include "midi/ui/loop_driver.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

namespace lunavox {

LoopDriver::LoopDriver(CurrentLoop& current, Clock& clock, std::function<void(bool)> hurry)
    : current_(current), clock_(clock), hurry_(std::move(hurry)) {
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] { run(); });
  current_.on_change([this] { wake(); });
}

LoopDriver::~LoopDriver() {
  current_.on_change({});
  hurry(false);
}

void LoopDriver::wake() {
  if (woken_.exchange(true)) return;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void LoopDriver::customEvent(QEvent* /*event*/) {
  woken_ = false;
  run();
}

void LoopDriver::run() {
  // Inside a pass that shows a message box: what has come is dealt with after it.
  if (in_pass_) {
    missed_ = true;
    return;
  }
  if (Loop* loop = current_.get()) {
    if (const auto due = loop->next_due()) wait_until(*due);
    in_pass_ = true;
    const auto leave = [this](void*) { in_pass_ = false; };
    const std::unique_ptr<void, decltype(leave)> guard(this, leave);
    loop->pass(clock_.timeGetTime());
  }
  if (missed_) {
    missed_ = false;
    wake();
  }
  schedule();
}

void LoopDriver::make_room(int work_ms) {
  const auto left = left_ms();
  if (in_pass_ || !left || *left > work_ms) return;
  // In short sleeps, to notice what arrives; counted, for a clock that is set by hand stands still.
  for (int sleeps = *left - kBusyWaitMs; sleeps > 0 && left_ms().value_or(0) > kBusyWaitMs;
       --sleeps) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    if (woken_.exchange(false)) run();
  }
  run();
}

std::optional<std::int32_t> LoopDriver::left_ms() {
  const Loop* loop = current_.get();
  const auto due = loop != nullptr ? loop->next_due() : std::nullopt;
  if (!due) return std::nullopt;
  return remaining_ms(clock_.timeGetTime(), *due);
}

void LoopDriver::wait_until(std::uint32_t due) {
  if (remaining_ms(clock_.timeGetTime(), due) > kBusyWaitMs) return;
  while (remaining_ms(clock_.timeGetTime(), due) > 0) {
  }
}

void LoopDriver::schedule() {
  const auto left = left_ms();
  hurry(left.has_value());
  if (!left) {
    timer_.stop();
    return;
  }
  // An overdue loop goes on after the window events that wait.
  timer_.start(std::max(*left - kBusyWaitMs, 0));
}

void LoopDriver::hurry(bool lines) {
  if (lines == hurried_) return;
  hurried_ = lines;
  if (hurry_) hurry_(lines);
}

}  // namespace lunavox

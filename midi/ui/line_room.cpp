#include "midi/ui/line_room.h"

#include "midi/pass_guard.h"
#include "midi/ui/loop_driver.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lunavox {
namespace {

// Until the first one has been timed.
constexpr int kUsualRepaintMs = 8;
// What takes longer than this, or an unknown time, waits for no line that is further away.
constexpr int kLongestRepaintMs = 30;
constexpr int kUnknownWorkMs = 20;
// By how much a repaint is expected to take less than the one before. While a window is resized,
// one in a few dozen takes far longer than the others, and is to be reckoned with.
constexpr double kDecayMs = 1.0 / 16;

/// True for what the window system tells of a window, which is then painted at once.
bool shows_anew(const QObject& receiver, QEvent::Type type) {
  return receiver.isWindowType() && (type == QEvent::Resize || type == QEvent::Expose);
}

/// The window that is to paint what has changed in it, else null.
QWidget* changed_window(QObject& receiver, QEvent::Type type) {
  auto* widget = type == QEvent::UpdateRequest ? qobject_cast<QWidget*>(&receiver) : nullptr;
  return widget != nullptr && widget->isWindow() ? widget : nullptr;
}

/// True for what opens a menu, or chooses a command, which may build a box.
bool works_a_menu(const QObject& receiver, QEvent::Type type) {
  return (type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
          type == QEvent::MouseButtonRelease) &&
         (qobject_cast<const QMenu*>(&receiver) != nullptr ||
          qobject_cast<const QMenuBar*>(&receiver) != nullptr);
}

}  // namespace

LineRoom::LineRoom(LoopDriver& driver, Clock& clock) : driver_(driver), clock_(clock) {
  qApp->installEventFilter(this);
}

LineRoom::~LineRoom() {
  qApp->removeEventFilter(this);
}

void LineRoom::before_long_work() {
  driver_.make_room(kUnknownWorkMs);
}

bool LineRoom::eventFilter(QObject* receiver, QEvent* event) {
  if (works_a_menu(*receiver, event->type())) before_long_work();
  if (repainting_) return false;
  if (QWidget* window = changed_window(*receiver, event->type())) {
    if (!hold_back(*window)) repaint(*window, *event);
    return true;
  }
  if (!shows_anew(*receiver, event->type())) return false;
  repaint_held_back();
  driver_.make_room(expected_ms(event->type()));
  repaint(*receiver, *event);
  return true;
}

// No line is played here: a handler that is under way may have asked to paint at once.
bool LineRoom::hold_back(QWidget& window) {
  const auto left = driver_.left_ms();
  if (!left || *left > expected_ms(QEvent::UpdateRequest)) return false;
  held_back_.emplace_back(&window);
  QTimer::singleShot(std::max(*left, 0), Qt::PreciseTimer, this, [this] { repaint_held_back(); });
  return true;
}

// A resize may come between the line that was waited for and this, and the next line be as close.
void LineRoom::repaint_held_back() {
  for (const QPointer<QWidget>& window : std::exchange(held_back_, {})) {
    driver_.make_room(expected_ms(QEvent::UpdateRequest));
    QEvent request(QEvent::UpdateRequest);
    if (window) repaint(*window, request);
  }
}

int LineRoom::expected_ms(QEvent::Type type) const {
  const auto known = expected_ms_.find(type);
  return known == expected_ms_.end() ? kUsualRepaintMs : static_cast<int>(std::ceil(known->second));
}

// Delivers the event itself, to see how long it takes: that depends on the machine and on the
// window's size.
void LineRoom::repaint(QObject& window, QEvent& event) {
  const PassGuard guard(repainting_);
  const std::uint32_t start = clock_.timeGetTime();
  QCoreApplication::sendEvent(&window, &event);
  const double taken = elapsed_ms(start, clock_.timeGetTime()) + 1;
  double& expected = expected_ms_.try_emplace(event.type(), kUsualRepaintMs).first->second;
  expected = std::min<double>(std::max(taken, expected - kDecayMs), kLongestRepaintMs);
}

}  // namespace lunavox

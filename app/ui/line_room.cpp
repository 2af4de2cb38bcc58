#include "app/ui/line_room.h"

#include "app/ui/loop_driver.h"
#include "midi/pass_guard.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

namespace lunavox {
namespace {

// Until the first one has been timed.
constexpr int kUsualRepaintMs = 8;
// Nothing in the window waits longer.
constexpr int kLongestWaitMs = 20;

bool repaints(const QObject& receiver, QEvent::Type type) {
  return receiver.isWindowType() &&
         (type == QEvent::Resize || type == QEvent::Expose || type == QEvent::UpdateRequest);
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

bool LineRoom::eventFilter(QObject* receiver, QEvent* event) {
  if (works_a_menu(*receiver, event->type())) driver_.make_room(kLongestWaitMs);
  if (repainting_ || !repaints(*receiver, event->type())) return false;
  repaint(*receiver, *event);
  return true;
}

// Delivers the event itself, to see how long it takes: that depends on the machine and on the
// window's size.
void LineRoom::repaint(QObject& window, QEvent& event) {
  int& expected = expected_ms_.try_emplace(event.type(), kUsualRepaintMs).first->second;
  driver_.make_room(expected);
  const PassGuard guard(repainting_);
  const std::uint32_t start = clock_.timeGetTime();
  QCoreApplication::sendEvent(&window, &event);
  const int taken = static_cast<int>(elapsed_ms(start, clock_.timeGetTime()));
  expected = std::min(std::max(taken + 1, expected - 1), kLongestWaitMs);
}

}  // namespace lunavox

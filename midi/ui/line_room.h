#pragma once

#include "midi/clock.h"

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>
#include <vector>

namespace lunavox {

class LoopDriver;

/// Keeps the window's long works from delaying a line: what repaints a window, and what a menu
/// begins, comes after a line that is due before its end.
class LineRoom : public QObject {
 public:
  LineRoom(LoopDriver& driver, Clock& clock);
  ~LineRoom() override;

  /// Work of unknown length is about to begin, where window events have run just now: a line that
  /// is due soon is played before it.
  void before_long_work();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool hold_back(QWidget& window);
  void repaint_held_back();
  int expected_ms(QEvent::Type type) const;
  void repaint(QObject& window, QEvent& event);

  LoopDriver& driver_;
  Clock& clock_;
  std::vector<QPointer<QWidget>> held_back_;
  std::map<QEvent::Type, double> expected_ms_;  // what repaints took lately
  bool repainting_ = false;
};

}  // namespace lunavox

#pragma once

#include <QWheelEvent>

namespace lunavox {

/// Counts the notches of a wheel. One that turns smoothly, or a touchpad, tells of parts of them,
/// which add up.
class WheelNotches {
 public:
  /// The whole notches that an event completes, above 0 for a turn away from the user.
  int take(const QWheelEvent& event) {
    rest_ += event.angleDelta().y();
    const int whole = rest_ / QWheelEvent::DefaultDeltasPerStep;
    rest_ -= whole * QWheelEvent::DefaultDeltasPerStep;
    return whole;
  }

 private:
  int rest_ = 0;
};

}  // namespace lunavox

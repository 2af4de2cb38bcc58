#pragma once

#include "grid/property.h"

#include <QObject>
#include <QPointer>

namespace lunavox {

/// Shows a property now and at each of its changes, for as long as the widget lives.
template <class T, class Show>
void follow(Property<T>& property, QObject* widget, Show show) {
  property.on_change([guard = QPointer<QObject>(widget), show](const T& value) {
    if (guard) show(value);
  });
  show(property.get());
}

}  // namespace lunavox

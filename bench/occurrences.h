#pragma once

#include <QEvent>
#include <QObject>

namespace lunavox::bench {

/// Counts how often something happens.
class Occurrences : public QObject {
 public:
  int count = 0;
};

/// Counts the events of a type that objects of a class get.
template <class Receiver>
class Events : public Occurrences {
 public:
  explicit Events(QEvent::Type type) : type_(type) {}

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == type_ && qobject_cast<Receiver*>(receiver) != nullptr) ++count;
    return false;
  }

 private:
  QEvent::Type type_;
};

}  // namespace lunavox::bench

#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace lunavox {

/// A value that tells listeners when it changes: what the window shows is tied to these. Copying
/// carries the value, never the listeners; assigning tells the listeners of the assigned one.
template <class T>
class Property {
 public:
  using Listener = std::function<void(const T&)>;

  Property() = default;
  explicit Property(T value) : value_(std::move(value)) {}
  Property(const Property& other) : value_(other.value_) {}
  Property& operator=(const Property& other) {
    set(other.value_);
    return *this;
  }
  Property& operator=(const T& value) {
    set(value);
    return *this;
  }
  ~Property() = default;

  const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)

  void set(const T& value) {
    if (value == value_) return;
    value_ = value;
    notify();
  }

  /// Changes the value in place and tells the listeners.
  template <class Change>
  void update(Change change) {
    change(value_);
    notify();
  }

  /// The listener must outlive the property or the program's last change to it.
  void on_change(Listener listener) { listeners_.push_back(std::move(listener)); }

  bool operator==(const Property& other) const { return value_ == other.value_; }

 private:
  void notify() {
    for (std::size_t i = 0; i < listeners_.size(); ++i) listeners_[i](value_);
  }

  T value_{};
  std::vector<Listener> listeners_;
};

}  // namespace lunavox

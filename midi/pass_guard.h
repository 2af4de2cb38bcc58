#pragma once

namespace lunavox {

/// Raises a flag for as long as something is under way. A message box shown on the way runs window
/// events and loop passes of its own; the flag tells them to stay out.
class PassGuard {
 public:
  explicit PassGuard(bool& under_way) : under_way_(under_way) { under_way_ = true; }
  ~PassGuard() { under_way_ = false; }
  PassGuard(const PassGuard&) = delete;
  PassGuard& operator=(const PassGuard&) = delete;

 private:
  bool& under_way_;
};

}  // namespace lunavox

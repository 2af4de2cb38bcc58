#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace lunavox {

/// One of the program's polling loops, cut into passes so that window events run between them.
class Loop {
 public:
  virtual ~Loop() = default;
  /// One pass. Called when something arrived or the loop is due; does what is due, at most one
  /// line.
  /// @param now a clock reading, milliseconds
  virtual void pass(std::uint32_t now) = 0;
  /// The clock reading at which a pass has something to do even if nothing arrives; none when the
  /// loop only waits for what arrives.
  virtual std::optional<std::uint32_t> next_due() const = 0;
};

/// Which loop runs: always exactly one, once the editor has started. A handler that starts or ends
/// a loop changes it here; no loop is nested in another's call stack.
class CurrentLoop {
 public:
  /// @param loop outlives its being current; null before the editor has started and after its end
  void set(Loop* loop) {
    loop_ = loop;
    if (changed_) changed_();
  }
  Loop* get() const { return loop_; }
  bool is(const Loop& loop) const { return loop_ == &loop; }

  /// Told when another loop becomes current, so that who drives it can reckon anew.
  void on_change(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  Loop* loop_ = nullptr;
  std::function<void()> changed_;
};

}  // namespace lunavox

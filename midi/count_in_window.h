#pragma once

#include <string>

namespace lunavox {

/// The count-in window `Form9`: the label `recordstartin` and the button "CANCEL". It does not stop
/// the program while it is shown. Its CANCEL button calls RealtimeRecordLoop::cancel().
class CountInWindow {
 public:
  virtual ~CountInWindow() = default;
  /// Shows the window with a caption in `recordstartin`.
  virtual void show(const std::string& caption) = 0;
  /// Rewrites the caption of the window that is shown.
  virtual void set_caption(const std::string& caption) = 0;
  /// Hides the window and returns the focus to the `tracks` grid.
  virtual void hide() = 0;
};

/// Shows no count-in: for runs without a window.
class NoCountIn : public CountInWindow {
 public:
  void show(const std::string&) override {}
  void set_caption(const std::string&) override {}
  void hide() override {}
};

}  // namespace lunavox

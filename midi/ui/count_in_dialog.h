#pragma once

#include "midi/count_in_window.h"

#include <QDialog>
#include <functional>

class QLabel;

namespace lunavox {

/// The count-in window `Form9` on the screen. It stays in front without keeping the user from the
/// main window.
class CountInDialog : public QDialog, public CountInWindow {
 public:
  explicit CountInDialog(QWidget* parent = nullptr);

  /// @param cancel  what CANCEL does; it ends in hide()
  /// @param hidden  called each time that the window has been hidden: gives the keys to the grid
  void set_hooks(std::function<void()> cancel, std::function<void()> hidden);

  void show(const std::string& caption) override;
  void set_caption(const std::string& caption) override;
  void hide() override;

  /// Escape and the window's close button cancel too.
  void reject() override;

 private:
  QLabel* recordstartin_;
  std::function<void()> cancel_;
  std::function<void()> hidden_;
};

}  // namespace lunavox

#pragma once

#include "midi/count_in_window.h"

#include <QDialog>
#include <QPointer>
#include <functional>

class QLabel;

namespace lunavox {

/// The count-in window `Form9` on the screen. It stays in front of the main window without keeping
/// the user from it.
class CountInDialog : public QDialog, public CountInWindow {
 public:
  explicit CountInDialog(QWidget* parent = nullptr);

  /// The window to stand in front of. It need not outlive the dialog.
  void set_window(QWidget* window) { window_ = window; }
  /// @param cancel  what CANCEL does; it ends in hide()
  /// @param hidden  called each time that the window has been hidden: gives the keys to the grid
  void set_hooks(std::function<void()> cancel, std::function<void()> hidden);

  void show(const std::string& caption) override;
  void set_caption(const std::string& caption) override;
  void hide() override;

  /// Escape and the window's close button cancel too.
  void reject() override;

 private:
  void place();

  QPointer<QWidget> window_;
  QLabel* recordstartin_;
  std::function<void()> cancel_;
  std::function<void()> hidden_;
};

}  // namespace lunavox

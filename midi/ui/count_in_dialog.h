#pragma once

#include "midi/count_in_window.h"

#include <QDialog>
#include <functional>

class QLabel;

namespace lunavox {

/// The count-in window `Form9` on the screen. It does not keep the user from the main window.
class CountInDialog : public QDialog, public CountInWindow {
 public:
  explicit CountInDialog(QWidget* parent = nullptr);

  /// What CANCEL does, and where the keys go when the window hides.
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

#pragma once

#include "grid/progress.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

namespace lunavox {

/// The progress box `Form3` on the screen: a card in the middle of the main window.
///
/// It comes up only once an operation has lasted a while, so that short ones do not flash. No
/// window event is handled while it is shown: what the user presses meanwhile waits, and no line is
/// played out of a song that is half changed.
class QtProgressBox : public ProgressBox {
 public:
  ~QtProgressBox() override;

  /// The window that operations stand in; nothing is shown before there is one.
  void set_window(QWidget* window);

  void show(const std::string& caption, int maximum) override;
  void set_caption(const std::string& caption) override;
  void set_value(int value) override;
  void hide() override;

  /// How long an operation lasts before the box comes up, milliseconds.
  void set_patience(int ms) { patience_ms_ = ms; }

 private:
  class Card;

  void refresh();

  QPointer<QWidget> window_;
  QPointer<Card> card_;
  int patience_ms_ = 300;
  bool working_ = false;
  QElapsedTimer since_start_;
  QElapsedTimer since_paint_;
  QElapsedTimer since_hide_;
};

}  // namespace lunavox

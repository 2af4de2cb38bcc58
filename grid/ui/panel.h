#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;

namespace lunavox {

/// A captioned frame of the main window, such as `Frame1` "BPM".
class Panel : public QFrame {
 public:
  Panel(const QString& name, const QString& caption, QWidget* parent = nullptr);

  /// Where the panel's controls go, from left to right below the caption.
  QBoxLayout& row() { return *row_; }

 private:
  QBoxLayout* row_;
};

/// A label in the look of a caption.
QLabel* make_caption(const QString& text, QWidget* parent = nullptr);

}  // namespace lunavox

#pragma once

#include <QWidget>
#include <array>

class QLabel;

namespace lunavox {

/// The line at the foot of the window. Its sections keep their places whatever they show, so that
/// nothing shifts while a song plays.
class StatusLine : public QWidget {
 public:
  enum Section { kFile, kOutput, kLine, kCell, kOctave, kSections };

  explicit StatusLine(QWidget* parent = nullptr);

  void show_text(Section section, const QString& text);
  /// A text that the user should not miss.
  void show_warning(Section section, const QString& text);

 private:
  std::array<QLabel*, kSections> labels_{};
};

}  // namespace lunavox

#pragma once

#include <QWidget>

class QLabel;
class QTableView;

namespace lunavox {

/// The captions above the voice grid, each a frame as wide as the columns that it is for: the first
/// voice of a program is General MIDI's, the others are XG's.
class ColumnFrames : public QWidget {
 public:
  explicit ColumnFrames(QTableView& table, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QLabel* add_frame(const QString& name, const QString& caption);
  void place_frames();

  QTableView& table_;
  QLabel* basic_;
  QLabel* xg_;
};

}  // namespace lunavox

#pragma once

#include "files/drum_choice.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace lunavox {

/// The drum kit dialog `Form4` on the screen. Each time that it is shown, the drum track's kit is
/// the selected one.
class DrumKitDialog : public QDialog {
 public:
  explicit DrumKitDialog(DrumChoice& choice, QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void fill();
  int selected() const;
  void drumok_click();
  void drumlist_dblclick();

  DrumChoice& choice_;
  QListWidget* drumlist_;
  QPushButton* drumok_;
};

}  // namespace lunavox

#pragma once

#include "files/voice_choice.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace lunavox {

/// The drum kit dialog `Form4` on the screen. To be shown with open(), each time anew with the drum
/// track's kit selected.
class DrumKitDialog : public QDialog {
 public:
  explicit DrumKitDialog(DrumChoice& choice, QWidget* parent = nullptr);

  void open() override;

 private:
  void drumok_click();
  void drumlist_dblclick();

  DrumChoice& choice_;
  QListWidget* drumlist_;
  QPushButton* drumok_;
};

}  // namespace lunavox

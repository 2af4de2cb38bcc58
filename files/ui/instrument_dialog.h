#pragma once

#include "files/voice_choice.h"

#include <QDialog>

class QTableView;

namespace lunavox {

/// The instrument dialog `Form5` on the screen. To be shown with open(), each time anew with the
/// current track's voice selected.
class InstrumentDialog : public QDialog {
 public:
  explicit InstrumentDialog(VoiceChoice& choice, QWidget* parent = nullptr);

  void open() override;
  void done(int result) override;

 private:
  VoiceCell selected() const;
  void instruok_click();

  VoiceChoice& choice_;
  QTableView* instrulist_;
};

}  // namespace lunavox

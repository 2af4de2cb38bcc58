#pragma once

#include "files/voice_choice.h"

#include <QDialog>

class QBoxLayout;
class QLabel;

namespace lunavox {

class VoiceTable;

/// The instrument dialog `Form5` on the screen. Each time that it is shown, the current track's
/// voice is the selected one.
class InstrumentDialog : public QDialog {
 public:
  explicit InstrumentDialog(VoiceChoice& choice, QWidget* parent = nullptr);
  ~InstrumentDialog() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QBoxLayout* make_preview_row();
  QBoxLayout* make_buttons();
  void resize_to_screen();
  void show_selected();
  void instruok_click();

  VoiceChoice& choice_;
  VoiceTable* instrulist_;
  QLabel* details_;
};

}  // namespace lunavox

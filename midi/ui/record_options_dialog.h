#pragma once

#include "grid/dialogs.h"
#include "midi/record_options.h"

#include <QDialog>

namespace lunavox {

/// The realtime record options `Form8`. Not modal; its settings count at once.
class RecordOptionsDialog : public QDialog {
 public:
  RecordOptionsDialog(RecordOptions& options, Dialogs& dialogs, QWidget* parent = nullptr);
};

}  // namespace lunavox

#pragma once

#include "grid/dialogs.h"

#include <QDialog>
#include <string>
#include <vector>

class QListWidget;

namespace lunavox {

/// The input device dialog `Form2`, to be answered before the editor starts where no device is
/// remembered.
class InputDeviceDialog : public QDialog {
 public:
  InputDeviceDialog(const std::vector<std::string>& devices, Dialogs& dialogs,
                    QWidget* parent = nullptr);

  /// Place of the chosen device in the list; -1 for none.
  int device() const;

 private:
  void command1_click();

  Dialogs& dialogs_;
  QListWidget* list1_;
};

}  // namespace lunavox

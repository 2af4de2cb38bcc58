#pragma once

#include "grid/dialogs.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

class QFileDialog;

namespace lunavox {

/// Message boxes, input boxes and file dialogs on the screen, in front of a window.
class QtDialogs : public Dialogs {
 public:
  void set_window(QWidget* window) { window_ = window; }
  /// Tells the folder that file dialogs begin in.
  void set_folder(std::function<std::string()> folder) { folder_ = std::move(folder); }

  /// Told before a file dialog is taken down, which takes as long as a short line: the system is
  /// slow to end its watch over a folder.
  void on_long_work(std::function<void()> begins) { long_work_begins_ = std::move(begins); }

  Answer message(const Message& message) override;
  std::string input(const Question& question) override;
  std::string open_file(const FileQuestion& question) override;
  std::string save_file(const FileQuestion& question) override;

 private:
  QString folder() const;
  /// Shows a file dialog and gives the name that was chosen, empty where there is none.
  std::string chosen_file(QFileDialog& dialog) const;
  /// The window that has the keys, and is to have them again after a box.
  QWidget* asking() const;

  QPointer<QWidget> window_;
  std::function<std::string()> folder_;
  std::function<void()> long_work_begins_;
};

/// "name|pattern;pattern" as Qt writes file filters: "name (pattern pattern)".
QString file_filter(const std::string& filter);
/// The ending of a filter's first pattern, "lvx" for "*.lvx"; empty where it has none.
QString first_suffix(const std::string& filter);

}  // namespace lunavox

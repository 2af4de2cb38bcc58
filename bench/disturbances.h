#pragma once

#include "bench/occurrences.h"
#include "bench/shown_editor.h"

#include <QPoint>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace lunavox::bench {

using Programs = std::vector<std::unique_ptr<QProcess>>;
void end(const Programs& programs);

/// What other programs do to the machine and, with real keys and clicks, to the editor's window.
struct Disturbance {
  std::string what;                        ///< "the window is moved"
  std::function<Programs()> start;         ///< starts the programs that do it
  std::unique_ptr<Occurrences> happening;  ///< counts it; null where there is nothing to count
};

/// The ways to disturb an editor at its work.
class Disturbances {
 public:
  /// @param program  the editor's executable, of which a second one is started
  Disturbances(ShownEditor& shown, QString program);

  std::vector<Disturbance> all();
  /// Leaves the editor as it was: its window in its place, no menu or box open, no button held.
  void end();

 private:
  Disturbance by_script(const std::string& what, const QString& script,
                        std::unique_ptr<Occurrences> happening);
  Programs run_script(const QString& script) const;
  Programs run_second_editor() const;
  QString move_script() const;
  QString size_script() const;
  QString select_script() const;
  QString menu_script() const;
  QString wheel_script() const;
  QString scroll_bar_script() const;
  QString box_script() const;
  QPoint place_of(const char* name) const;
  QRect on_screen(const QWidget& widget) const;

  ShownEditor& shown_;
  QString program_;
  QTemporaryDir folder_;
};

}  // namespace lunavox::bench

#include "app/ui/run_window.h"

#include "app/ui/keyboard_detection.h"
#include "app/ui/widgets/theme.h"
#include "app/ui/window_shell.h"
#include "grid/runtime_error.h"

#include <QApplication>
#include <functional>

namespace lunavox {
namespace {

/// The toolkit's application. Faults that no rule handles come here from whichever handler they
/// arose in: this is the one place where they are caught.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  std::function<void(const std::string&)> fault;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
      fault(error.what());
    }
    return false;
  }
};

/// Tells the user of a fault and ends the program.
void end_on_fault(WindowShell& shell, const std::string& text) {
  if (shell.ended()) return;
  shell.end(1);
  shell.editor().current_loop.set(nullptr);
  shell.editor().world.dialogs.error(text);
  QCoreApplication::exit(1);
}

int run(Application& application, WindowShell& shell) {
  application.fault = [&shell](const std::string& text) { end_on_fault(shell, text); };
  try {
    shell.start();
  } catch (const RuntimeError& error) {
    end_on_fault(shell, error.what());
  }
  return shell.ended() ? *shell.ended() : QApplication::exec();
}

}  // namespace

int run_window(const CommandLine& line, OutputDevices& outputs, InputDevices& inputs) {
  int argc = 1;
  char name[] = "lunavox";
  char* argv[] = {name, nullptr};
  Application application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("lunavox"));
  QApplication::setOrganizationName(QStringLiteral("lunavox"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral("lunavox"));
  theme::apply(application);
  SystemClock clock;
  const auto executable = QApplication::applicationFilePath().toStdString();
  const StartUp::Wishes wishes = {line.output, line.input, keyboard_layout(line.keyboard)};
  WindowShell shell({outputs, inputs, clock, find_program_folders(executable)}, wishes);
  return run(application, shell);
}

}  // namespace lunavox

#include "app/ui/run_window.h"

#include "app/ui/termination_signals.h"
#include "app/ui/window_shell.h"
#include "edit/ui/keyboard_detection.h"
#include "grid/ui/theme.h"
#include "midi/ui/line_priority.h"

#include <QApplication>
#include <cstdlib>
#include <functional>
#include <iostream>

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

/// What becomes of the toolkit's messages until there is a window. Where none can be opened it
/// would abort, with lines that are for its own developers.
void tell_of_no_display(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::cerr << "lunavox: there is no display for the window; lunavox --help tells what needs none"
            << std::endl;
  std::_Exit(EXIT_FAILURE);
}

int run(Application& application, WindowShell& shell, const std::string& song) {
  application.fault = [&shell](const std::string& text) { shell.end_on_fault(text); };
  const TerminationSignals termination([&shell] { shell.end_at_once(); });
  try {
    shell.start(song);
  } catch (const std::exception& error) {
    shell.end_on_fault(error.what());
  }
  return shell.ended() ? *shell.ended() : QApplication::exec();
}

}  // namespace

int run_window(const CommandLine& line, OutputDevices& outputs, InputDevices& inputs) {
  int argc = 1;
  char name[] = "lunavox";
  char* argv[] = {name, nullptr};
  qInstallMessageHandler(tell_of_no_display);
  Application application(argc, argv);
  qInstallMessageHandler(nullptr);
  QApplication::setApplicationName(QStringLiteral("lunavox"));
  QApplication::setOrganizationName(QStringLiteral("lunavox"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral("lunavox"));
  theme::apply(application);
  SystemClock clock;
  const auto executable = QApplication::applicationFilePath().toStdString();
  const StartUp::Wishes wishes = {line.output, line.input, detect_layout(line.keyboard)};
  WindowShell shell({outputs, inputs, clock, find_program_folders(executable), run_before_others},
                    wishes);
  return run(application, shell, line.song);
}

}  // namespace lunavox

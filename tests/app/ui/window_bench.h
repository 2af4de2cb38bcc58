#pragma once

#include "app/ui/window_shell.h"
#include "tests/support/recording_output.h"
#include "tests/support/scripted_dialogs.h"

#include <QTest>
#include <QTimer>

namespace lunavox::test {

/// A machine without MIDI inputs.
class NoInputs : public InputDevices {
 public:
  std::vector<std::string> names() override { return {}; }
  std::unique_ptr<InputDevice> open(int, InputCallback) override { return nullptr; }
  std::string open_error() const override { return {}; }
};

/// The whole editor with its window, on recorded devices and a clock that is set by hand. What the
/// editor tells and asks is answered from a script.
struct WindowBench {
  explicit WindowBench(int track_count = 1) {
    window.resize(1024, 768);
    shell.start("");
    for (int t = 2; t <= track_count; ++t) editor.tracks.addinstrutrack();
    editor.song.tracks.set_cursor(1, 1);
    editor.screen.defilchan = 1;
    editor.flags.modified = false;
    (void)QTest::qWaitForWindowExposed(&window);
    window.activateWindow();
    window.focus_tracks();
    settle();
    outputs.calls.clear();
  }

  /// An ended program shows no more boxes: the next test's program begins anew.
  ~WindowBench() {
    if (!shell.ended()) return;
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
  }

  /// Lets all that waits happen.
  static void settle() { QCoreApplication::processEvents(); }

  template <class Object>
  Object& find(const char* name) {
    auto* object = window.findChild<Object*>(QLatin1String(name));
    if (object == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *object;
  }

  static ProgramFolders folders() {
    const std::filesystem::path source = LUNAVOX_SOURCE_DIR;
    return {source / "data", source / "skin", "/nonexistent", "/nonexistent"};
  }

  RecordingOutput outputs;
  NoInputs inputs;
  ManualClock clock;
  ScriptedDialogs dialogs;
  WindowShell shell{{outputs, inputs, clock, folders()}, {}, &dialogs};
  Editor& editor = shell.editor();
  MainWindow& window = shell.window();
};

}  // namespace lunavox::test

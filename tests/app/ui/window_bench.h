#pragma once

#include "app/ui/window_shell.h"
#include "tests/support/recording_output.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/scripted_inputs.h"
#include "tests/support/temp_folder.h"

#include <QTest>
#include <QTimer>

namespace lunavox::test {

/// The program's own data and skin, and a home of the test's for what it writes.
inline ProgramFolders folders_with_home(const TempFolder& home) {
  const std::filesystem::path source = LUNAVOX_SOURCE_DIR;
  return {source / "data", source / "skin", home.path() / "config", home.path() / "state"};
}

/// An ended program shows no more boxes: the next test's program begins anew.
inline void begin_anew_after(const WindowShell& shell) {
  if (!shell.ended()) return;
  QTimer::singleShot(0, [] { QCoreApplication::quit(); });
  QCoreApplication::exec();
}

/// The whole editor with its window, on recorded devices and a clock that is set by hand, in a home
/// of its own. What the editor tells and asks is answered from a script.
struct WindowBench {
  enum class Boxes { kScripted, kShown };

  /// @param keyboard  the layout set that the keys' places stand for
  /// @param input     the name of the one MIDI input; empty for a machine without
  /// @param boxes     shown: what the editor tells and asks stands on the screen
  explicit WindowBench(int track_count = 1, LayoutSet keyboard = LayoutSet::kQwerty,
                       const std::string& input = {}, Boxes boxes = Boxes::kScripted)
      : shown_boxes(boxes == Boxes::kShown),
        inputs(input.empty() ? std::vector<std::string>() : std::vector{input}),
        wishes{std::nullopt, input.empty() ? std::nullopt : std::optional(input), keyboard} {
    window.resize(1024, 768);
    shell.start("");
    for (int t = 2; t <= track_count; ++t) editor.tracks.addinstrutrack();
    editor.song.tracks.set_cursor(1, 1);
    editor.screen.defilchan = 1;
    editor.flags.modified = false;
    (void)QTest::qWaitForWindowExposed(&window);
    window.activateWindow();
    window.focus_tracks();
    // On a busy machine the keys come late.
    (void)QTest::qWaitForWindowActive(&window);
    settle();
    outputs.calls.clear();
  }

  ~WindowBench() { begin_anew_after(shell); }

  /// Lets all that waits happen.
  static void settle() { QCoreApplication::processEvents(); }

  /// A key event in the note grid as the X server sends it, with the place of the key.
  /// @param place the key code of the input device, the X server's less 8
  void send_key(QEvent::Type type, quint32 place, bool repeat = false) {
    QKeyEvent event(type, Qt::Key_unknown, {}, place + 8, 0, 0, QString(), repeat);
    QCoreApplication::sendEvent(&find<QWidget>("tracks"), &event);
    settle();
  }
  void press(quint32 place) { send_key(QEvent::KeyPress, place); }
  void release(quint32 place) { send_key(QEvent::KeyRelease, place); }
  /// Presses a key and lets it repeat.
  void hold(quint32 place, int repeats) {
    press(place);
    for (int i = 0; i < repeats; ++i) {
      send_key(QEvent::KeyRelease, place, true);
      send_key(QEvent::KeyPress, place, true);
    }
  }

  template <class Object>
  Object& find(const char* name) {
    auto* object = window.findChild<Object*>(QLatin1String(name));
    if (object == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *object;
  }

  ProgramFolders folders() const { return folders_with_home(home); }

  const bool shown_boxes;
  TempFolder home;
  RecordingOutput outputs;
  ScriptedInputs inputs;
  ManualClock clock;
  ScriptedDialogs dialogs;
  StartUp::Wishes wishes;
  WindowShell shell{{outputs, inputs, clock, folders()}, wishes, shown_boxes ? nullptr : &dialogs};
  Editor& editor = shell.editor();
  MainWindow& window = shell.window();
};

}  // namespace lunavox::test

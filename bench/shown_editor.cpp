#include "bench/shown_editor.h"

#include "midi/ui/line_priority.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTableView>

#include <xcb/xcb.h>

namespace lunavox::bench {
namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
/// Longer than the toolkit gathers changes before it paints them.
constexpr int kQuietMs = 20;
constexpr int kLongestMs = 1000;

/// Counts the times that a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) : widget_(widget) { widget_.installEventFilter(this); }
  ~PaintCount() override { widget_.removeEventFilter(this); }
  PaintCount(const PaintCount&) = delete;
  PaintCount& operator=(const PaintCount&) = delete;

  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }

 private:
  QWidget& widget_;
};

/// Waits until an X server has done all that it was told.
void wait_for_display() {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* connection = x11->connection();
  const xcb_get_input_focus_cookie_t asked = xcb_get_input_focus(connection);
  std::free(xcb_get_input_focus_reply(connection, asked, nullptr));
}

ProgramFolders folders_in(const ScratchFolder& scratch) {
  const std::filesystem::path source = LUNAVOX_SOURCE_DIR;
  return {source / "data", source / "skin", scratch.file(""), scratch.file("")};
}

}  // namespace

ShownEditor::ShownEditor(OutputDevices& outputs, int lines, Boxes boxes)
    : shell_({outputs, inputs_, clock_, folders_in(folder_), run_before_others},
             {{}, "0", LayoutSet::kQwerty}, boxes == Boxes::kAnswered ? &dialogs_ : nullptr) {
  shell_.start({});
  shell_.window().setWindowState(Qt::WindowNoState);
  shell_.window().setGeometry(0, 0, kWidth, kHeight);
  fill_song(editor(), lines);
  notes_ = shell_.window().findChild<QTableView*>(QStringLiteral("tracks"))->viewport();
  settle();
}

void ShownEditor::show_changes() {
  const PaintCount painted(*notes_);
  QElapsedTimer waited;
  waited.start();
  while (painted.count == 0 && waited.elapsed() < kLongestMs) QCoreApplication::processEvents();
  wait_for_display();
}

void ShownEditor::settle() {
  QElapsedTimer waited;
  waited.start();
  while (waited.elapsed() < kQuietMs) QCoreApplication::processEvents();
  wait_for_display();
}

}  // namespace lunavox::bench

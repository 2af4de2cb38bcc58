#include "bench/disturbances.h"

#include "bench/timing.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <cmath>

namespace lunavox::bench {
namespace {

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
/// Commands of a script's one round take far less than this many seconds.
constexpr int kRounds = 200;

/// Counts how often a file is written anew.
class Saves : public Occurrences {
 public:
  explicit Saves(const QString& file) : watcher_({file}) {
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this](const QString& name) {
      ++count;
      watcher_.addPath(name);  // the new file, which has taken the name
    });
  }

 private:
  QFileSystemWatcher watcher_;
};

/// Counts boxes, and closes each when it has been open for a while.
class ClosedBoxes : public Occurrences {
 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    auto* box = event->type() == QEvent::Show ? qobject_cast<QDialog*>(receiver) : nullptr;
    if (box == nullptr) return false;
    ++count;
    QTimer::singleShot(300, box, &QWidget::close);
    return false;
  }
};

std::unique_ptr<QProcess> started(const QString& program, const QStringList& arguments,
                                  const QProcessEnvironment& environment) {
  auto process = std::make_unique<QProcess>();
  process->setProcessEnvironment(environment);
  process->setStandardErrorFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->start(program, arguments);
  process->waitForStarted();
  return process;
}

Programs run_busy_loops() {
  Programs loops;
  for (int i = 0; i < QThread::idealThreadCount(); ++i) {
    loops.push_back(started(QStringLiteral("/bin/sh"),
                            {QStringLiteral("-c"), QStringLiteral("while :; do :; done")},
                            QProcessEnvironment::systemEnvironment()));
  }
  return loops;
}

QString at(const QPoint& point) {
  return QStringLiteral("mousemove %1 %2 ").arg(point.x()).arg(point.y());
}

/// Drags the mouse from one point to another and back.
QString drag(const QPoint& from, const QPoint& to) {
  constexpr int kSteps = 30;
  QString script = at(from) + QStringLiteral("mousedown 1\n");
  for (int step = 0; step <= 2 * kSteps; ++step) {
    const int there = kSteps - std::abs(kSteps - step);
    script += at(from + (to - from) * there / kSteps) + QStringLiteral("sleep 0.016\n");
  }
  return script + QStringLiteral("mouseup 1\n");
}

}  // namespace

void end(const Programs& programs) {
  for (const auto& program : programs) {
    program->kill();
    program->waitForFinished();
  }
}

Disturbances::Disturbances(ShownEditor& shown, QString program)
    : shown_(shown), program_(std::move(program)) {}

std::vector<Disturbance> Disturbances::all() {
  std::vector<Disturbance> all;
  const auto add = [&](const std::string& what, const QString& script, auto happening) {
    all.push_back(by_script(what, script, std::move(happening)));
  };
  add("the window is moved", move_script(), std::make_unique<Events<QMainWindow>>(QEvent::Move));
  add("the window is resized", size_script(),
      std::make_unique<Events<QMainWindow>>(QEvent::Resize));
  add("cells are selected by mouse", select_script(),
      std::make_unique<Events<QWindow>>(QEvent::MouseMove));
  add("menus and lists are opened", menu_script(), std::make_unique<Events<QMenu>>(QEvent::Show));
  add("the grid is scrolled by wheel", wheel_script(),
      std::make_unique<Events<QWindow>>(QEvent::Wheel));
  add("the grid is scrolled by its bars", scroll_bar_script(),
      std::make_unique<Events<QScrollBar>>(QEvent::MouseMove));
  add("boxes are opened and closed", box_script(), std::make_unique<ClosedBoxes>());
  const QString song = folder_.filePath(QStringLiteral("largest.lvx"));
  shown_.editor().song_file.current_name = song.toStdString();
  shown_.editor().song_file.procsave();
  all.push_back({"a second editor saves such a song", [this] { return run_second_editor(); },
                 std::make_unique<Saves>(song)});
  all.push_back({"all cores are busy", run_busy_loops, nullptr});
  return all;
}

Disturbance Disturbances::by_script(const std::string& what, const QString& script,
                                    std::unique_ptr<Occurrences> happening) {
  qApp->installEventFilter(happening.get());
  return {what, [this, script] { return run_script(script); }, std::move(happening)};
}

Programs Disturbances::run_script(const QString& script) const {
  QFile file(folder_.filePath(QStringLiteral("script")));
  if (!file.open(QIODevice::WriteOnly)) return {};
  QTextStream commands(&file);
  commands << QStringLiteral("windowfocus %1\n").arg(shown_.window().winId());
  for (int i = 0; i < kRounds; ++i) commands << script;
  commands.flush();
  Programs programs;
  programs.push_back(started(QStringLiteral("xdotool"), {file.fileName()},
                             QProcessEnvironment::systemEnvironment()));
  return programs;
}

void Disturbances::end() {
  QProcess::execute(QStringLiteral("xdotool"),
                    {QStringLiteral("mouseup"), QStringLiteral("1"), QStringLiteral("keyup"),
                     QStringLiteral("alt"), QStringLiteral("mousemove"), QStringLiteral("700"),
                     QStringLiteral("15")});
  run_events(100);
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && qobject_cast<QDialog*>(widget) != nullptr) widget->close();
  }
  shown_.window().setGeometry(0, 0, kWidth, kHeight);
  shown_.settle();
}

QString Disturbances::move_script() const {
  QString script;
  for (int i = 0; i < 60; ++i) {
    const int there = 30 - std::abs(30 - i);
    // Asked for the place, xdotool no longer keeps the move for itself.
    script += QStringLiteral("windowmove %1 %2 %3 getwindowgeometry %1 sleep 0.016\n")
                  .arg(shown_.window().winId())
                  .arg(there * 12)
                  .arg(there * 7);
  }
  return script;
}

QString Disturbances::size_script() const {
  QString script;
  for (int i = 0; i < 60; ++i) {
    const int there = 30 - std::abs(30 - i);
    script += QStringLiteral("windowsize %1 %2 %3 sleep 0.016\n")
                  .arg(shown_.window().winId())
                  .arg(kWidth - there * 18)
                  .arg(kHeight - there * 13);
  }
  return script;
}

QString Disturbances::select_script() const {
  const QRect notes = on_screen(*shown_.window().findChild<QTableView*>("tracks")->viewport());
  return drag(notes.topLeft() + QPoint(40, 40), notes.bottomRight() - QPoint(60, 40));
}

QString Disturbances::menu_script() const {
  const QRect notes = on_screen(*shown_.window().findChild<QTableView*>("tracks")->viewport());
  QString script = QStringLiteral("key alt+f sleep 0.05\n");
  for (int i = 0; i < 6; ++i) script += QStringLiteral("key Right sleep 0.05\n");
  script += QStringLiteral("key Escape Escape sleep 0.05\n");
  script += QStringLiteral("mousemove 25 14 click 1 sleep 0.1\n");
  for (const int x : {60, 140, 250, 350, 400}) script += at({x, 14}) + "sleep 0.05\n";
  script += QStringLiteral("key Escape Escape sleep 0.05\n");
  script += at(notes.center()) + "click 3 sleep 0.1 key Down sleep 0.05 key Escape sleep 0.05\n";
  script += at(place_of("reverb")) + "click 1 sleep 0.15 key Escape sleep 0.1\n";
  return script;
}

QString Disturbances::wheel_script() const {
  const QRect notes = on_screen(*shown_.window().findChild<QTableView*>("tracks")->viewport());
  return at(notes.center()) + "click --repeat 40 --delay 12 5 click --repeat 40 --delay 12 4\n";
}

QString Disturbances::scroll_bar_script() const {
  const auto* tracks = shown_.window().findChild<QTableView*>("tracks");
  const QRect rows = on_screen(*tracks->verticalScrollBar());
  const QRect bar = on_screen(*shown_.window().findChild<QScrollBar*>("defilchan"));
  const QPoint top(rows.center().x(), rows.top() + 12);
  const QPoint left(bar.left() + 30, bar.center().y());
  return drag(top, {top.x(), rows.bottom() - 30}) + drag(left, {bar.right() - 30, left.y()});
}

QString Disturbances::box_script() const {
  const QString focus = QStringLiteral("windowfocus %1 ").arg(shown_.window().winId());
  return focus + QStringLiteral("key alt+h sleep 0.05 key Up sleep 0.05 key Return sleep 0.5\n") +
         focus + QStringLiteral("key alt+f sleep 0.05 key Down Down Down Return sleep 0.5\n") +
         at(place_of("realtime")) + QStringLiteral("click 1 sleep 0.5 click 1 sleep 0.1\n");
}

Programs Disturbances::run_second_editor() const {
  const QString config = folder_.filePath(QStringLiteral("lunavox"));
  QDir().mkpath(config);
  QFile ini(config + QStringLiteral("/lvconfig.ini"));
  if (ini.open(QIODevice::WriteOnly)) ini.write("input=0\r\nboot=1\r\n");
  ini.close();
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
    environment.insert(QLatin1String(name), folder_.path());
  }
  Programs programs;
  programs.push_back(
      started(program_, {folder_.filePath(QStringLiteral("largest.lvx"))}, environment));
  const qint64 pid = programs.front()->processId();
  run_events(2000);
  const QString save = QStringLiteral(
                           "search --all --onlyvisible --pid %1 --name Lunavox windowmove 1590 "
                           "1190 windowfocus key alt+f Down Down Return sleep 0.1\n")
                           .arg(pid);
  Programs saving = run_script(save);
  programs.push_back(std::move(saving.front()));
  return programs;
}

QPoint Disturbances::place_of(const char* name) const {
  return on_screen(*shown_.window().findChild<QWidget*>(QLatin1String(name))).center();
}

QRect Disturbances::on_screen(const QWidget& widget) const {
  return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

}  // namespace lunavox::bench

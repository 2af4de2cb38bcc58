#include "app/ui/widgets/picture_button.h"
#include "tests/support/shown_boxes.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::ShownBoxes;
using test::WindowBench;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr quint32 kQ = 16;  // the input device's key codes
constexpr quint32 kSpace = 57;

/// A first start on a machine with eleven MIDI inputs: the window and its input device dialog.
struct FirstStartTest : testing::Test {
  FirstStartTest() {
    for (int number = 0; number < 11; ++number) {
      inputs.device_names.push_back("Keyboard " + std::to_string(number));
    }
  }
  ~FirstStartTest() override {
    if (!shell.ended()) return;
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    QCoreApplication::exec();
  }

  static QPushButton& button(const QWidget& dialog, const char* name) {
    return *dialog.findChild<QPushButton*>(QLatin1String(name));
  }

  static void click(const QWidget& dialog, const char* name) {
    QTest::mouseClick(&button(dialog, name), Qt::LeftButton);
  }

  static void choose(const QWidget& dialog, int position) {
    auto* list = dialog.findChild<QListWidget*>(QStringLiteral("List1"));
    list->scrollToItem(list->item(position));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(position)).center());
  }

  std::string config() const {
    std::ifstream file(folders.config_file(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  ShownBoxes boxes;
  test::TempFolder home;
  test::RecordingOutput outputs;
  test::ScriptedInputs inputs;
  ManualClock clock;
  test::ScriptedDialogs dialogs;
  ProgramFolders folders{std::filesystem::path(LUNAVOX_SOURCE_DIR) / "data",
                         std::filesystem::path(LUNAVOX_SOURCE_DIR) / "skin", home.path() / "config",
                         home.path() / "state"};
  WindowShell shell{{outputs, inputs, clock, folders}, {}, &dialogs};
};

TEST_F(FirstStartTest, TheChosenInputIsOpenedRememberedAndHeard) {
  boxes.next<QDialog>([this](QDialog& form2) {
    EXPECT_EQ(form2.objectName().toStdString(), "Form2");
    const auto* list = form2.findChild<QListWidget*>(QStringLiteral("List1"));
    ASSERT_EQ(list->count(), 11);
    EXPECT_EQ(list->item(3)->text().toStdString(), "Keyboard 3");
    EXPECT_EQ(inputs.opened, -1) << "nothing is opened before the choice";
    choose(form2, 3);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 3);
  EXPECT_EQ(config(), "input=3\r\nboot=1\r\n");
  EXPECT_TRUE(shell.editor().current_loop.is(shell.editor().listen));
  outputs.calls.clear();
  inputs.play(0x143C95);
  WindowBench::settle();
  EXPECT_EQ(outputs.take_shorts(), (std::vector<std::uint32_t>{0x4000E9, 0x7F3C99}));
}

TEST_F(FirstStartTest, TheEleventhInputIsOpenedAndRememberedAsItsLastDigit) {
  boxes.next<QDialog>([](QDialog& form2) {
    choose(form2, 10);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 10);
  EXPECT_EQ(config(), "input=0\r\nboot=1\r\n");
}

TEST_F(FirstStartTest, ConfirmingWithoutAChoiceIsRefusedAndTheDialogStays) {
  boxes.next<QDialog>([this](QDialog& form2) {
    click(form2, "Command1");
    EXPECT_THAT(dialogs.messages, ElementsAre(error_box("You must select an input device")));
    EXPECT_TRUE(form2.isVisible());
    EXPECT_EQ(config(), "");
    choose(form2, 0);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 0);
  EXPECT_EQ(config(), "input=0\r\nboot=1\r\n");
}

TEST_F(FirstStartTest, QuitEndsTheProgramAtOnce) {
  boxes.next<QDialog>([](QDialog& form2) {
    choose(form2, 2);
    click(form2, "Command2");
  });
  shell.start("");
  EXPECT_EQ(shell.ended(), 0);
  EXPECT_EQ(inputs.opened, -1);
  EXPECT_FALSE(shell.editor().output.is_open());
  EXPECT_EQ(config(), "");
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

/// Recording under the mouse and the keys, on a clock that is set by hand. A line is 125 ms.
struct RecordingWindowTest : testing::Test {
  std::string picture(const char* button) {
    return static_cast<PictureButton&>(bench.find<QAbstractButton>(button)).picture();
  }

  void click_record() {
    QTest::mouseClick(&bench.find<QAbstractButton>("recordnotes"), Qt::LeftButton);
    WindowBench::settle();
  }

  void check_realtime() {
    QTest::mouseClick(&bench.find<QCheckBox>("realtime"), Qt::LeftButton, {}, QPoint(6, 8));
    bench.find<QDialog>("Form8").hide();
    WindowBench::settle();
  }

  /// Lets one line's time pass.
  void line() {
    bench.clock.advance(first_line ? 126 : 125);
    first_line = false;
    bench.shell.wake();
    WindowBench::settle();
  }

  bool keys_are_back() {
    const auto& tracks = bench.find<QTableView>("tracks");
    return QTest::qWaitFor([&] { return tracks.hasFocus(); });
  }

  std::string countdown() { return bench.find<QLabel>("recordstartin").text().toStdString(); }

  WindowBench bench{2, LayoutSet::kQwerty, "Keyboard"};
  Editor& editor = bench.editor;
  QDialog& form9 = bench.find<QDialog>("Form9");
  bool first_line = true;
};

TEST_F(RecordingWindowTest, TheRecordButtonShowsItsFourPictures) {
  auto& record = bench.find<QAbstractButton>("recordnotes");
  EXPECT_EQ(picture("recordnotes"), "record1");
  QTest::mousePress(&record, Qt::LeftButton);
  EXPECT_EQ(picture("recordnotes"), "record2");
  EXPECT_FALSE(editor.flags.recording);
  QTest::mouseRelease(&record, Qt::LeftButton);
  EXPECT_EQ(picture("recordnotes"), "stoprec1");
  EXPECT_TRUE(editor.flags.recording);
  QTest::mousePress(&record, Qt::LeftButton);
  EXPECT_EQ(picture("recordnotes"), "stoprec2");
  QTest::mouseRelease(&record, Qt::LeftButton);
  EXPECT_EQ(picture("recordnotes"), "record1");
  EXPECT_FALSE(editor.flags.recording);
}

TEST_F(RecordingWindowTest, TheRecordButtonWantsANoteColumn) {
  editor.song.tracks.set_cursor(1, 9);
  click_record();
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(error_box("select a start position for record")));
  EXPECT_FALSE(editor.flags.recording);
}

TEST_F(RecordingWindowTest, TheRealtimeBoxShowsTheOptionsWhenItIsCheckedAndNotWhenUnchecked) {
  QDialog& options = bench.find<QDialog>("Form8");
  auto& realtime = bench.find<QCheckBox>("realtime");
  QTest::mouseClick(&realtime, Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_TRUE(options.isVisible());
  EXPECT_FALSE(options.isModal());
  options.hide();
  QTest::mouseClick(&realtime, Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_FALSE(options.isVisible());
  EXPECT_FALSE(editor.options.realtime);
}

TEST_F(RecordingWindowTest, TheCountInCountsDownOnTheScreenAndThenTheKeysAreRecorded) {
  check_realtime();
  ASSERT_TRUE(editor.options.before_change("1", bench.dialogs));
  editor.options.metronome = true;
  bench.outputs.calls.clear();
  click_record();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form9));
  EXPECT_FALSE(form9.isModal());
  EXPECT_EQ(countdown(), "Record start in  1");
  EXPECT_EQ(picture("recordnotes"), "stoprec1");
  for (int i = 0; i < 3; ++i) line();
  EXPECT_TRUE(form9.isVisible());
  line();
  EXPECT_FALSE(form9.isVisible());
  EXPECT_TRUE(keys_are_back());
  EXPECT_EQ(bench.outputs.take_shorts(), (std::vector<std::uint32_t>{0x602599}));
  EXPECT_EQ(editor.song.tracks.row(), 1);
  line();
  EXPECT_EQ(editor.song.tracks.row(), 2);
  bench.press(kQ);
  EXPECT_EQ(editor.song.notes.at(1, 1, 2), "7F3099");
  EXPECT_EQ(editor.song.tracks.row(), 2) << "the clock alone moves the cursor";
  bench.press(kSpace);
  EXPECT_FALSE(editor.flags.recording);
  EXPECT_EQ(picture("recordnotes"), "record1");
}

TEST_F(RecordingWindowTest, CancelEndsTheRecordingBeforeItBegan) {
  check_realtime();
  click_record();
  EXPECT_EQ(countdown(), "Record start in  4");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form9));
  line();
  QTest::mouseClick(form9.findChild<QPushButton*>("Command1"), Qt::LeftButton);
  WindowBench::settle();
  EXPECT_FALSE(form9.isVisible());
  EXPECT_FALSE(editor.flags.recording);
  EXPECT_FALSE(editor.flags.playing);
  EXPECT_FALSE(editor.flags.modified);
  EXPECT_EQ(picture("recordnotes"), "record1");
  EXPECT_TRUE(keys_are_back());
  for (int i = 0; i < 20; ++i) line();
  EXPECT_EQ(editor.song.tracks.row(), 1);
}

TEST_F(RecordingWindowTest, WithRecVelocityThePlayedVelocityIsRecorded) {
  QTest::mouseClick(&bench.find<QCheckBox>("velocity"), Qt::LeftButton, {}, QPoint(6, 8));
  editor.song.tracks.set_cursor(1, 10);
  click_record();
  bench.inputs.play(0x143C95);
  WindowBench::settle();
  bench.press(kQ);
  EXPECT_EQ(editor.song.notes.at(2, 1, 1), "143C90");
  EXPECT_EQ(editor.song.notes.at(2, 1, 2), "7E3090") << "a typed note has 126";
  QTest::mouseClick(&bench.find<QCheckBox>("velocity"), Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_TRUE(bench.find<QWidget>("strength").isEnabled());
  bench.inputs.play(0x143C95);
  WindowBench::settle();
  EXPECT_EQ(editor.song.notes.at(2, 1, 3), "7F3C90") << "the strength";
}

}  // namespace
}  // namespace lunavox

#include "grid/ui/picture_button.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::ElementsAre;

constexpr quint32 kQ = 16;  // the input device's key codes
constexpr quint32 kSpace = 57;

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
  bench.find<QLineEdit>("bpm").setFocus();
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

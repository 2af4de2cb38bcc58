#include "app/ui/song_views.h"
#include "grid/ui/picture_button.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::WindowBench;

constexpr std::uint32_t kPitchCentre = 0x4000e9;

struct KeysTest : testing::Test {
  QWidget& tracks() { return bench.find<QTableView>("tracks"); }

  /// A key event as the X server sends it: with the place of the key.
  void send(QEvent::Type type, int key, quint32 place, bool repeat = false) {
    QKeyEvent event(type, key, {}, place + 8, 0, 0, QString(), repeat);
    QCoreApplication::sendEvent(&tracks(), &event);
    WindowBench::settle();
  }

  std::string picture(const char* button) {
    return static_cast<PictureButton&>(bench.find<QAbstractButton>(button)).picture();
  }

  WindowBench bench;
  Editor& editor = bench.editor;
};

TEST_F(KeysTest, ANoteKeySoundsWhileItIsHeld) {
  send(QEvent::KeyPress, Qt::Key_Q, 16);
  EXPECT_EQ(bench.outputs.take_shorts(),
            (std::vector<std::uint32_t>{kPitchCentre, 0x003099, kPitchCentre, 0x7f3099}));
  send(QEvent::KeyRelease, Qt::Key_Q, 16);
  EXPECT_EQ(bench.outputs.take_shorts(), (std::vector<std::uint32_t>{kPitchCentre, 0x003099}));
}

TEST_F(KeysTest, AKeyCountsByItsPlaceAndNotByItsLetter) {
  // The place of the American Q types A on a French keyboard.
  send(QEvent::KeyPress, Qt::Key_A, 16);
  EXPECT_EQ(bench.outputs.take_shorts().back(), 0x7f3099U);
}

TEST_F(KeysTest, AHeldKeyStrikesItsNoteOnce) {
  send(QEvent::KeyPress, Qt::Key_Q, 16);
  bench.outputs.calls.clear();
  send(QEvent::KeyRelease, Qt::Key_Q, 16, true);
  send(QEvent::KeyPress, Qt::Key_Q, 16, true);
  EXPECT_TRUE(bench.outputs.take_shorts().empty());
}

TEST_F(KeysTest, AKeyInATextFieldTypesAndPlaysNothing) {
  auto& field = bench.find<QLineEdit>("bpm");
  field.setFocus();
  QTest::keyClicks(&field, QStringLiteral("q2"));
  EXPECT_TRUE(bench.outputs.take_shorts().empty());
  EXPECT_TRUE(field.text().contains(QStringLiteral("q2")));
}

TEST_F(KeysTest, LosingTheFocusEndsTheHeldNote) {
  send(QEvent::KeyPress, Qt::Key_Q, 16);
  bench.outputs.calls.clear();
  bench.find<QLineEdit>("bpm").setFocus();
  WindowBench::settle();
  EXPECT_EQ(bench.outputs.take_shorts(), (std::vector<std::uint32_t>{kPitchCentre, 0x003099}));
}

TEST_F(KeysTest, RecordedNotesStandInTheGridAndTheCursorMovesOn) {
  QTest::keyClick(&tracks(), Qt::Key_Space);
  EXPECT_EQ(picture("recordnotes"), "stoprec1");
  send(QEvent::KeyPress, Qt::Key_Q, 16);
  send(QEvent::KeyRelease, Qt::Key_Q, 16);
  EXPECT_EQ(editor.song.notes.at(1, 1, 1), "7F3099");
  EXPECT_EQ(editor.song.tracks.text(1, 1), "C  4");
  EXPECT_EQ(editor.song.tracks.row(), 2);
  QTest::keyClick(&tracks(), Qt::Key_Space);
  EXPECT_EQ(picture("recordnotes"), "record1");
}

TEST_F(KeysTest, DeleteAndBackspaceWriteDownTheColumn) {
  QTest::keyClick(&tracks(), Qt::Key_Backspace);
  EXPECT_EQ(editor.song.tracks.text(1, 1), "stop");
  EXPECT_EQ(editor.song.tracks.row(), 2);
  editor.song.tracks.set_row(1);
  QTest::keyClick(&tracks(), Qt::Key_Delete);
  EXPECT_EQ(editor.song.tracks.text(1, 1), "");
}

TEST_F(KeysTest, KeysAreTextInAnEffectColumn) {
  editor.song.tracks.set_cursor(5, 9);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&tracks(), Qt::Key_Backspace);
  QTest::keyClicks(&tracks(), QStringLiteral("64"));
  EXPECT_EQ(editor.song.tracks.text(5, 9), "64");
  EXPECT_TRUE(bench.outputs.take_shorts().empty());
  QTest::keyClick(&tracks(), Qt::Key_Return);
  EXPECT_EQ(editor.song.values.at(1, kVolume, 5), 64);
  EXPECT_EQ(editor.song.tracks.cell(5, 9).text_colour, kKeyValue);
}

TEST_F(KeysTest, LeavingAnEffectCellCommitsWhatWasTyped) {
  editor.song.tracks.set_cursor(5, 9);
  QTest::keyClicks(&tracks(), QStringLiteral("9"));
  QTest::keyClick(&tracks(), Qt::Key_Down);
  EXPECT_EQ(bench.dialogs.messages,
            (std::vector<Message>{test::error_box("Invalid value (0-127)", "error")}));
  EXPECT_EQ(editor.song.tracks.text(5, 9), "127");
}

TEST_F(KeysTest, TheControlKeyStartsPlaybackAnywhereInTheWindow) {
  auto& field = bench.find<QLineEdit>("bpm");
  field.setFocus();
  QTest::keyPress(&field, Qt::Key_Control);
  EXPECT_TRUE(editor.flags.playing);
  EXPECT_EQ(picture("playnotes"), "stop1");
}

TEST_F(KeysTest, ThePlayButtonShowsItsPicturesAndStartsAndStops) {
  auto& play = bench.find<QAbstractButton>("playnotes");
  QTest::mousePress(&play, Qt::LeftButton);
  EXPECT_EQ(picture("playnotes"), "play2");
  EXPECT_FALSE(editor.flags.playing);
  QTest::mouseRelease(&play, Qt::LeftButton);
  EXPECT_EQ(picture("playnotes"), "stop1");
  EXPECT_TRUE(editor.flags.playing);
  QTest::mousePress(&play, Qt::LeftButton);
  EXPECT_EQ(picture("playnotes"), "stop2");
  QTest::mouseRelease(&play, Qt::LeftButton);
  EXPECT_EQ(picture("playnotes"), "play1");
  EXPECT_FALSE(editor.flags.playing);
}

TEST_F(KeysTest, ThePlayButtonStartsWhereverTheMouseIsReleased) {
  auto& play = bench.find<QAbstractButton>("playnotes");
  QTest::mousePress(&play, Qt::LeftButton);
  QTest::mouseRelease(&play, Qt::LeftButton, {}, {-30, 200});
  EXPECT_TRUE(editor.flags.playing);
}

TEST_F(KeysTest, StoppingWithTheButtonShowsBothIdlePicturesAndResetsTheChannels) {
  QTest::keyClick(&tracks(), Qt::Key_Space);
  auto& play = bench.find<QAbstractButton>("playnotes");
  QTest::mouseClick(&play, Qt::LeftButton);
  bench.outputs.calls.clear();
  QTest::mouseClick(&play, Qt::LeftButton);
  EXPECT_EQ(picture("playnotes"), "play1");
  EXPECT_EQ(picture("recordnotes"), "record1");
  EXPECT_EQ(bench.outputs.shorts().size(), 120U + 165);
  EXPECT_TRUE(editor.current_loop.is(editor.listen));
}

TEST_F(KeysTest, TheControlKeyInADialogStartsNothing) {
  QTest::keyPress(&bench.find<QDialog>("Form8"), Qt::Key_Control);
  EXPECT_FALSE(editor.flags.playing);
}

TEST_F(KeysTest, PlaybackMovesTheCursorAndFollowsItAtTheTop) {
  bench.find<QCheckBox>("curs").setChecked(true);
  editor.song.tracks.set_cursor(3, 1);
  QTest::keyPress(&tracks(), Qt::Key_Control);
  for (int line = 0; line < 4; ++line) {
    bench.clock.advance(126);
    bench.shell.wake();
    WindowBench::settle();
  }
  EXPECT_EQ(editor.song.tracks.row(), 7);
  EXPECT_EQ(editor.song.tracks.top_row(), 7);
}

TEST_F(KeysTest, PlaybackThatIsNotFollowedLeavesTheLinesInViewWhereTheyAre) {
  editor.song.tracks.set_cursor(62, 1);
  editor.song.tracks.set_top_row(10);
  QTest::keyPress(&tracks(), Qt::Key_Control);
  bench.clock.advance(126);
  bench.shell.wake();
  WindowBench::settle();
  EXPECT_EQ(editor.song.tracks.row(), 63);
  EXPECT_EQ(editor.song.tracks.top_row(), 10);
}

TEST_F(KeysTest, PlayFromBeginningStartsAtTheFirstLine) {
  bench.find<QCheckBox>("begin").setChecked(true);
  editor.song.tracks.set_cursor(30, 1);
  QTest::keyPress(&tracks(), Qt::Key_Control);
  EXPECT_EQ(editor.song.tracks.row(), 1);
}

TEST_F(KeysTest, TheRightButtonOpensTheEditMenuOverTheGrid) {
  auto& view = static_cast<GridView&>(bench.find<QTableView>("tracks"));
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, view.cell_rect({4, 2}).center());
  EXPECT_TRUE(bench.find<QMenu>("menuedit").isVisible());
  EXPECT_EQ(editor.song.tracks.row(), 1) << "the cursor stays";
  bench.find<QMenu>("menuedit").hide();
}

TEST_F(KeysTest, ABlockIsCopiedAndPastedByTheMenus) {
  editor.song.write_entry(1, 1, 1, "643C99");
  editor.song.show_entry(1, 1, 1);
  QTest::keyClick(&tracks(), Qt::Key_Down, Qt::ShiftModifier);
  bench.find<QAction>("menucopy").trigger();
  QTest::keyClick(&tracks(), Qt::Key_Right);
  bench.find<QAction>("menupaste").trigger();
  EXPECT_EQ(editor.song.notes.at(1, 2, 1), "643C99");
  EXPECT_EQ(editor.song.tracks.text(1, 2), "C  5");
}

TEST_F(KeysTest, MenuEntriesThatCanDoNothingAreOff) {
  auto& menu = bench.find<QMenu>("menuedit");
  emit menu.aboutToShow();
  EXPECT_FALSE(bench.find<QAction>("menupaste").isEnabled());
  EXPECT_FALSE(bench.find<QAction>("menutrans").isEnabled());
  editor.song.write_entry(1, 1, 1, "643C99");
  bench.find<QAction>("menucopy").trigger();
  emit menu.aboutToShow();
  EXPECT_TRUE(bench.find<QAction>("menupaste").isEnabled());
  EXPECT_TRUE(bench.find<QAction>("menutrans").isEnabled());
}

}  // namespace
}  // namespace lunavox

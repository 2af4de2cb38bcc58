#include "app/ui/song_views.h"
#include "grid/ui/picture_button.h"
#include "window_bench.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::WindowBench;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;

// Key codes of the input device, which are places: named after the American keys there.
constexpr quint32 kBackspace = 14;
constexpr quint32 kQ = 16;
constexpr quint32 kSpace = 57;
constexpr quint32 kF2 = 60;
constexpr quint32 kF7 = 65;
constexpr quint32 kExtra = 86;
constexpr quint32 kDelete = 111;

using Piano = std::map<quint32, std::uint32_t>;  // the places that play, and their notes

Piano with(const Piano& punctuation) {
  Piano piano = {{3, 49},  {4, 51},  {6, 54},  {7, 56},  {8, 58},  {10, 61}, {11, 63}, {16, 48},
                 {17, 50}, {18, 52}, {19, 53}, {20, 55}, {21, 57}, {22, 59}, {23, 60}, {24, 62},
                 {25, 64}, {31, 37}, {32, 39}, {34, 42}, {35, 44}, {36, 46}, {38, 49}, {44, 36},
                 {45, 38}, {46, 40}, {47, 41}, {48, 43}, {49, 45}, {50, 47}, {51, 48}};
  piano.insert(punctuation.begin(), punctuation.end());
  return piano;
}

struct KeyboardOf {
  const char* name;
  LayoutSet layout;
  Piano piano;
};

std::ostream& operator<<(std::ostream& out, const KeyboardOf& keyboard) {
  return out << keyboard.name;
}

class LayoutTest : public ::testing::TestWithParam<KeyboardOf> {
 protected:
  WindowBench bench{1, GetParam().layout};
};

TEST_P(LayoutTest, EveryKeyPlaysTheNoteOfItsPlaceAndEndsIt) {
  for (quint32 place = 2; place <= 53; ++place) {
    // Backspace, Tab, Enter, Ctrl and Shift have work of their own.
    if (place == 14 || place == 15 || place == 28 || place == 29 || place == 42) continue;
    bench.press(place);
    bench.release(place);
    std::vector<std::uint32_t> notes = bench.outputs.take_shorts();
    std::erase(notes, 0x4000E9U);
    const auto played = GetParam().piano.find(place);
    if (played == GetParam().piano.end()) {
      EXPECT_THAT(notes, IsEmpty()) << "place " << place;
    } else {
      const std::uint32_t note = played->second << 8 | 0x99;
      EXPECT_THAT(notes, ElementsAre(note, 0x7F0000 | note, note)) << "place " << place;
    }
  }
}

TEST_P(LayoutTest, TheOctaveKeysShiftEveryOctaveAndTheStatusLineTells) {
  const auto& octave = bench.find<QLabel>("statusoctave");
  const std::pair<const char*, std::uint32_t> octaves[] = {{"Octave -2", 24}, {"Octave -1", 36},
                                                           {"Octave 0", 48},  {"Octave +1", 60},
                                                           {"Octave +2", 72}, {"Octave +3", 84}};
  for (quint32 key = kF2; key <= kF7; ++key) {
    bench.press(key);
    bench.release(key);
    bench.press(kQ);
    const auto& [text, note] = octaves[key - kF2];
    EXPECT_EQ(octave.text().toStdString(), text);
    EXPECT_EQ(bench.outputs.take_shorts().back(), 0x7F0099U | note << 8);
    bench.release(kQ);
  }
}

TEST_P(LayoutTest, RecordedKeysStandInTheGrid) {
  bench.press(kSpace);
  bench.hold(kQ, 3);
  bench.release(kQ);
  bench.press(51);
  EXPECT_EQ(bench.editor.song.notes.at(1, 1, 1), "7F3099");
  EXPECT_EQ(bench.editor.song.notes.at(1, 1, 2), "7F3099");
  EXPECT_EQ(bench.editor.song.notes.at(1, 1, 3), "");
}

INSTANTIATE_TEST_SUITE_P(
    Keyboards, LayoutTest,
    ::testing::Values(
        KeyboardOf{"Qwerty", LayoutSet::kQwerty, with({{13, 66}, {27, 65}, {39, 67}, {53, 50}})},
        KeyboardOf{"Qwertz", LayoutSet::kQwertz, with({{13, 65}, {26, 67}, {27, 66}, {43, 50}})},
        KeyboardOf{"Azerty", LayoutSet::kAzerty,
                   with({{13, 66}, {26, 65}, {27, 67}, {39, 51}, {52, 50}, {53, 52}})}),
    [](const auto& keyboard) { return std::string(keyboard.param.name); });

struct NoteEntryTest : ::testing::Test {
  std::string picture(const char* button) {
    return static_cast<PictureButton&>(bench.find<QAbstractButton>(button)).picture();
  }
  QWidget& tracks() { return bench.find<QWidget>("tracks"); }

  WindowBench bench{2, LayoutSet::kQwerty, "Keyboard"};
  Editor& editor = bench.editor;
  CellGrid& grid = editor.song.tracks;
};

TEST_F(NoteEntryTest, AHeldDeleteClearsLineAfterLine) {
  for (int row = 1; row <= 6; ++row) editor.song.write_entry(1, 1, row, "643C99");
  bench.hold(kDelete, 3);
  EXPECT_EQ(grid.row(), 5);
  EXPECT_EQ(editor.song.notes.at(1, 1, 4), "");
  EXPECT_EQ(editor.song.notes.at(1, 1, 5), "643C99");
}

TEST_F(NoteEntryTest, AHeldBackspaceAndTheExtraKeyMarkLineAfterLine) {
  bench.hold(kBackspace, 1);
  bench.release(kBackspace);
  bench.hold(kExtra, 1);
  EXPECT_EQ(grid.row(), 5);
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(grid.text(row, 1), "stop") << row;
  EXPECT_EQ(grid.text(5, 1), "");
}

TEST_F(NoteEntryTest, TheSpaceBarGoesFromPlayingToRecording) {
  QTest::keyPress(&tracks(), Qt::Key_Control);
  ASSERT_TRUE(editor.flags.playing);
  bench.outputs.calls.clear();
  bench.press(kSpace);
  EXPECT_TRUE(editor.flags.recording);
  EXPECT_FALSE(editor.flags.playing);
  EXPECT_EQ(picture("recordnotes"), "stoprec1");
  EXPECT_EQ(picture("playnotes"), "play1");
  EXPECT_THAT(bench.outputs.take_shorts(), IsSupersetOf({0x7BB0U, 0x7BB9U, 0x7BBFU}));
  bench.press(kSpace);
  EXPECT_FALSE(editor.flags.recording);
  EXPECT_EQ(picture("recordnotes"), "record1");
}

TEST_F(NoteEntryTest, TheSpaceBarEndsARealtimeRecording) {
  editor.options.realtime = true;
  (void)editor.options.before_change("0", bench.dialogs);
  QTest::mouseClick(&bench.find<QAbstractButton>("recordnotes"), Qt::LeftButton);
  ASSERT_TRUE(editor.flags.recording);
  ASSERT_TRUE(editor.flags.playing);
  bench.press(kSpace);
  EXPECT_FALSE(editor.flags.recording);
  EXPECT_FALSE(editor.flags.playing);
  EXPECT_EQ(picture("recordnotes"), "record1");
}

TEST_F(NoteEntryTest, TheSpaceBarWantsANoteColumnToRecordIn) {
  grid.set_cursor(5, 9);
  QTest::keyClick(&tracks(), Qt::Key_Return);  // no longer text
  bench.press(kSpace);
  EXPECT_EQ(bench.dialogs.messages,
            (std::vector{test::error_box("select a start position for record")}));
  EXPECT_FALSE(editor.flags.recording);
}

TEST_F(NoteEntryTest, InAnEffectCellTheSpaceBarIsTextAndRecordsNothing) {
  grid.set_cursor(5, 9);
  QTest::keyClicks(&tracks(), QStringLiteral(" "));
  EXPECT_FALSE(editor.flags.recording);
  EXPECT_EQ(grid.text(5, 9), "127 ");
}

TEST_F(NoteEntryTest, InAnEffectCellNeitherThePressNorTheReleaseOfAKeyIsANotes) {
  grid.set_cursor(5, 9);
  WindowBench::settle();
  bench.outputs.calls.clear();
  bench.press(kQ);
  bench.release(kQ);
  EXPECT_THAT(bench.outputs.take_shorts(), IsEmpty());
}

TEST_F(NoteEntryTest, ADeletedKeyOfTheFirstLineIsRefused) {
  grid.set_cursor(2, 9);
  grid.set_cursor(1, 9);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&tracks(), Qt::Key_Backspace);
  QTest::keyClick(&tracks(), Qt::Key_Return);
  EXPECT_EQ(bench.dialogs.messages,
            (std::vector{
                test::error_box("you can't delete key attribute for the first line !", "error")}));
  EXPECT_EQ(grid.text(1, 9), "127");
}

TEST_F(NoteEntryTest, ADeletedKeyOfAnotherLineTurnsBlack) {
  grid.set_cursor(5, 9);
  QTest::keyClicks(&tracks(), QStringLiteral("\b\b\b64\r"));
  ASSERT_EQ(editor.song.key_attributes.at(1, kVolume, 5), 1);
  grid.set_cursor(4, 1);
  grid.set_cursor(5, 9);
  for (int i = 0; i < 3; ++i) QTest::keyClick(&tracks(), Qt::Key_Backspace);
  QTest::keyClick(&tracks(), Qt::Key_Return);
  EXPECT_EQ(editor.song.key_attributes.at(1, kVolume, 5), 0);
  EXPECT_EQ(grid.cell(5, 9).text_colour, kBlack);
  EXPECT_EQ(grid.text(5, 9), "127");
}

TEST_F(NoteEntryTest, KeysInADialogPlayNothing) {
  bench.find<QCheckBox>("realtime").click();
  auto& before = bench.find<QLineEdit>("before");
  before.setFocus();
  QTest::keyClicks(&before, QStringLiteral("q2w"));
  EXPECT_THAT(bench.outputs.take_shorts(), IsEmpty());
}

TEST_F(NoteEntryTest, AWindowThatIsLeftEndsItsNotes) {
  bench.press(kQ);
  bench.outputs.calls.clear();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  WindowBench::settle();
  EXPECT_THAT(bench.outputs.take_shorts(), Contains(0x003099U));
}

TEST_F(NoteEntryTest, AMenuThatOpensEndsHeldNotes) {
  bench.press(kQ);
  bench.outputs.calls.clear();
  auto& menu = bench.find<QMenu>("menuedit");
  menu.popup({10, 10});
  WindowBench::settle();
  EXPECT_THAT(bench.outputs.take_shorts(), Contains(0x003099U));
  menu.close();
}

TEST_F(NoteEntryTest, TheKeyboardIsHeardOnTheTrackOfTheCursor) {
  bench.inputs.play(0x143C95);
  WindowBench::settle();
  EXPECT_EQ(bench.outputs.take_shorts(), (std::vector<std::uint32_t>{0x4000E9, 0x7F3C99}));
  grid.set_cursor(1, 10);
  bench.inputs.play(0x403E85);
  WindowBench::settle();
  EXPECT_EQ(bench.outputs.take_shorts(), (std::vector<std::uint32_t>{0x4000E0, 0x003E90}));
}

TEST_F(NoteEntryTest, TheStatusLineTellsOfAnInputThatIsGoneAndOfItsReturn) {
  const auto& devices = bench.find<QLabel>("statusoutput");
  const QString well = devices.text();
  bench.inputs.trouble = "The MIDI input \"Keyboard\" is gone.";
  bench.window.refresh_status();
  EXPECT_EQ(devices.text().toStdString(), "The MIDI input \"Keyboard\" is gone.");
  bench.press(kQ);
  EXPECT_EQ(bench.outputs.take_shorts().back(), 0x7F3099U) << "the editor goes on";
  bench.inputs.trouble.clear();
  bench.window.refresh_status();
  EXPECT_EQ(devices.text(), well);
}

}  // namespace
}  // namespace lunavox

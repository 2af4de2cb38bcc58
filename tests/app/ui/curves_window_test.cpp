#include "app/ui/song_views.h"
#include "window_bench.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The curves' settings and values under the mouse and the keys: a drum track and one instrument
/// track of 64 lines, both in view.
struct CurvesWindowTest : testing::Test {
  GridView& grid(const char* name) { return static_cast<GridView&>(bench.find<QTableView>(name)); }

  void click(GridView& view, CellPosition at) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cell_rect(at).center());
    WindowBench::settle();
  }

  /// A click on a track's setting.
  void click_setting(int track, Setting setting, int effect) {
    click(effects, {effect, effects_column(track, setting)});
  }

  std::string setting(int track, Setting setting, int effect) const {
    return editor.song.effects.text(effect, effects_column(track, setting));
  }

  /// Types over the value of the cell under the cursor.
  void overtype(const char* text) {
    for (int i = 0; i < 3; ++i) QTest::keyClick(&tracks, Qt::Key_Backspace);
    QTest::keyClicks(&tracks, QLatin1String(text));
  }

  std::vector<std::string> texts(int column, int first, int last) const {
    std::vector<std::string> found;
    for (int row = first; row <= last; ++row) found.push_back(editor.song.tracks.text(row, column));
    return found;
  }

  void start_playing() { QTest::keyPress(&tracks, Qt::Key_Control); }

  WindowBench bench{2};
  Editor& editor = bench.editor;
  GridView& effects = grid("effects");
  GridView& tracks = grid("tracks");
};

TEST_F(CurvesWindowTest, EveryActiveCellIsSwitchedByAClick) {
  for (const int track : {1, 2}) {
    for (int effect = kInstrument; effect <= kLastEffect; ++effect) {
      const bool before = effect == kInstrument;
      editor.song.tracks.set_cursor(7, 1);
      click_setting(track, Setting::kActive, effect);
      EXPECT_EQ(setting(track, Setting::kActive, effect), before ? "no" : "yes") << effect;
      EXPECT_EQ(editor.song.active.at(track)[static_cast<std::size_t>(effect)], !before) << effect;
      EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{7, 9 * track}));
      click_setting(track, Setting::kActive, effect);
      EXPECT_EQ(setting(track, Setting::kActive, effect), before ? "yes" : "no") << effect;
    }
  }
  EXPECT_TRUE(editor.flags.modified);
}

TEST_F(CurvesWindowTest, EveryStartValueIsAskedForAndGivenToItsCurve) {
  for (const int track : {1, 2}) {
    for (int effect = kVolume; effect <= kLastEffect; ++effect) {
      bench.dialogs.inputs = {"33"};
      click_setting(track, Setting::kStartValue, effect);
      EXPECT_EQ(setting(track, Setting::kStartValue, effect), "33") << effect;
      EXPECT_EQ(editor.song.values.at(track, effect, 1), 33) << effect;
      EXPECT_EQ(editor.song.values.at(track, effect, 64), 33) << effect;
    }
    EXPECT_THAT(texts(9 * track, 1, 64), Each(std::string("33"))) << "the shown curve, Volume";
  }
  EXPECT_THAT(bench.dialogs.messages, IsEmpty());
}

TEST_F(CurvesWindowTest, ABadStartValueIsToldAndNothingChanges) {
  bench.dialogs.inputs = {"128"};
  click_setting(2, Setting::kStartValue, kPan);
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(error_box("you must enter a value between 1 and 127", "error")));
  EXPECT_EQ(setting(2, Setting::kStartValue, kPan), "64");
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(CurvesWindowTest, EveryShowCellPutsItsCurveIntoTheEffectColumn) {
  for (const int track : {1, 2}) {
    for (int effect = kVolume; effect <= kLastEffect; ++effect) {
      editor.song.values.at(track, effect, 3) = static_cast<std::int16_t>(100 + effect);
    }
    for (int effect = kLastEffect; effect >= kVolume; --effect) {
      click_setting(track, Setting::kShow, effect);
      for (int other = kVolume; other <= kLastEffect; ++other) {
        EXPECT_EQ(setting(track, Setting::kShow, other), other == effect ? "yes" : "no");
      }
      EXPECT_EQ(editor.song.shown_effect.at(track), effect);
      EXPECT_EQ(editor.song.tracks.text(3, 9 * track), std::to_string(100 + effect));
    }
  }
}

TEST_F(CurvesWindowTest, ShowOfTheInstrumentOnlyMovesTheCursor) {
  editor.song.tracks.set_cursor(5, 1);
  click_setting(2, Setting::kShow, kInstrument);
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{5, 18}));
  EXPECT_EQ(setting(2, Setting::kShow, kInstrument), "no");
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(CurvesWindowTest, WhilePlayingOnlyTheActiveCellsCanBeChanged) {
  start_playing();
  click_setting(2, Setting::kActive, kPan);
  EXPECT_EQ(setting(2, Setting::kActive, kPan), "yes");
  for (int effect = kInstrument; effect <= kLastEffect; ++effect) {
    click_setting(2, Setting::kStartValue, effect);
    click_setting(2, Setting::kShow, effect);
    EXPECT_EQ(editor.song.tracks.column(), 18);
  }
  EXPECT_THAT(bench.dialogs.questions, IsEmpty());
  EXPECT_FALSE(bench.find<QDialog>("Form5").isVisible());
  EXPECT_EQ(editor.song.shown_effect.at(2), kVolume);
  EXPECT_TRUE(editor.flags.playing);
  // The pan that was switched on is heard on the next line: 64, on channel 1.
  bench.outputs.calls.clear();
  bench.clock.advance(126);
  bench.shell.wake();
  WindowBench::settle();
  EXPECT_EQ(bench.outputs.shorts(), (std::vector<std::uint32_t>{0x400AB0}));
}

TEST_F(CurvesWindowTest, AClickOnARowsOrAColumnsCaptionDoesNothing) {
  QTest::mouseClick(effects.verticalHeader()->viewport(), Qt::LeftButton, {}, QPoint(10, 40));
  QTest::mouseClick(effects.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(10, 5));
  QTest::mouseClick(effects.viewport(), Qt::RightButton, {}, effects.cell_rect({3, 1}).center());
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(CurvesWindowTest, TheInstrumentsStartValueOpensTheDialogOfItsTracksKind) {
  click_setting(1, Setting::kStartValue, kInstrument);
  EXPECT_TRUE(bench.find<QDialog>("Form4").isVisible());
  EXPECT_FALSE(bench.find<QDialog>("Form5").isVisible());
  EXPECT_EQ(editor.song.tracks.column(), 1);
  QTest::keyClick(&bench.find<QDialog>("Form4"), Qt::Key_Escape);
  click_setting(2, Setting::kStartValue, kInstrument);
  EXPECT_TRUE(bench.find<QDialog>("Form5").isVisible());
  EXPECT_EQ(editor.song.tracks.column(), 10);
  QTest::keyClick(&bench.find<QDialog>("Form5"), Qt::Key_Escape);
}

TEST_F(CurvesWindowTest, AVoiceChosenWithTheKeysStandsInTheSettingsAndTheVoiceField) {
  click_setting(2, Setting::kStartValue, kInstrument);
  auto& voices = bench.find<QTableView>("instrulist");
  QTest::keyClick(&voices, Qt::Key_Down);
  QTest::keyClick(&voices, Qt::Key_Return);
  WindowBench::settle();
  EXPECT_FALSE(bench.find<QDialog>("Form5").isVisible());
  EXPECT_EQ(editor.song.values.at(2, kInstrument, 1), 1);
  EXPECT_EQ(setting(2, Setting::kStartValue, kInstrument), "BritePno");
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "BritePno");
  EXPECT_TRUE(editor.flags.modified);
}

TEST_F(CurvesWindowTest, ATypedValueBendsTheShownCurveFromKeyToKey) {
  click(tracks, {5, 18});
  overtype("0");
  QTest::keyClick(&tracks, Qt::Key_Return);
  EXPECT_THAT(texts(18, 1, 7), ElementsAre("127", "95", "64", "32", "0", "0", "0"));
  EXPECT_EQ(editor.song.tracks.text(64, 18), "0");
  EXPECT_EQ(editor.song.tracks.cell(5, 18).text_colour, kKeyValue);
  EXPECT_EQ(editor.song.tracks.cell(6, 18).text_colour, kBlack);

  click(tracks, {9, 18});
  overtype("40");
  click(tracks, {2, 3});
  EXPECT_THAT(texts(18, 5, 11), ElementsAre("0", "10", "20", "30", "40", "40", "40"));
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{2, 3})) << "where the click went";

  click(tracks, {9, 18});
  overtype("");
  QTest::keyClick(&tracks, Qt::Key_Up);
  EXPECT_THAT(texts(18, 4, 10), ElementsAre("32", "0", "0", "0", "0", "0", "0"));
  EXPECT_EQ(editor.song.tracks.cell(9, 18).text_colour, kBlack);
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{8, 18}));
}

TEST_F(CurvesWindowTest, AValueTypedOnTheFirstLineIsTheStartValue) {
  click(tracks, {1, 18});
  overtype("90");
  QTest::keyClick(&tracks, Qt::Key_Return);
  EXPECT_EQ(setting(2, Setting::kStartValue, kVolume), "90");
  EXPECT_THAT(texts(18, 1, 64), Each(std::string("90")));
}

TEST_F(CurvesWindowTest, WhatIsTypedIsTakenWhenASettingIsClicked) {
  click(tracks, {5, 18});
  overtype("0");
  click_setting(2, Setting::kActive, kVolume);
  EXPECT_EQ(editor.song.values.at(2, kVolume, 5), 0);
  EXPECT_EQ(editor.song.values.at(2, kVolume, 3), 64);
  EXPECT_EQ(setting(2, Setting::kActive, kVolume), "yes");
}

TEST_F(CurvesWindowTest, TheLinesInViewStayWhereTheyAreWhenACurveIsRedrawn) {
  editor.song_length.length_validate("600");
  tracks.verticalScrollBar()->setValue(199);
  WindowBench::settle();
  ASSERT_EQ(editor.song.tracks.top_row(), 200);

  click(tracks, {205, 18});
  overtype("0");
  QTest::keyClick(&tracks, Qt::Key_Down);
  EXPECT_EQ(editor.song.tracks.row(), 206);
  EXPECT_EQ(editor.song.tracks.top_row(), 200);

  overtype("9");
  QTest::keyClick(&tracks, Qt::Key_Return);
  EXPECT_EQ(editor.song.tracks.top_row(), 200);

  click_setting(2, Setting::kShow, kPan);
  EXPECT_EQ(editor.song.tracks.top_row(), 200);
  EXPECT_EQ(tracks.verticalScrollBar()->value(), 199);
}

TEST_F(CurvesWindowTest, TheLinesInViewStayWhereTheyAreWhenTheCursorChangesItsColumnElsewhere) {
  editor.song_length.length_validate("600");
  tracks.verticalScrollBar()->setValue(0);
  editor.tracks.addinstrutrack();
  WindowBench::settle();
  ASSERT_EQ(editor.song.tracks.row(), 600);
  EXPECT_EQ(editor.song.tracks.top_row(), 1);

  click_setting(2, Setting::kActive, kPan);
  EXPECT_EQ(editor.song.tracks.top_row(), 1);

  click_setting(2, Setting::kStartValue, kInstrument);
  QTest::keyClick(&bench.find<QDialog>("Form5"), Qt::Key_Escape);
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{600, 10}));
  EXPECT_EQ(editor.song.tracks.top_row(), 1);

  editor.tracks.menudeltrack_click();
  EXPECT_EQ(editor.song.tracks.top_row(), 1);
}

/// The three lists under the mouse. A list passes over the release of a button within a double
/// click's time of its opening, so that time is made nothing.
struct XgListsTest : CurvesWindowTest {
  XgListsTest() { QApplication::setDoubleClickInterval(0); }
  ~XgListsTest() override { QApplication::setDoubleClickInterval(interval); }

  /// Opens a list with the mouse and chooses an entry with it.
  void choose(const char* name, int entry) {
    QComboBox& list = bench.find<QComboBox>(name);
    QTest::mouseClick(&list, Qt::LeftButton);
    WindowBench::settle();
    QAbstractItemView* entries = list.view();
    const QModelIndex index = entries->model()->index(entry, 0);
    entries->scrollTo(index);
    // The list passes over a release that follows its opening at once.
    QTest::mouseClick(entries->viewport(), Qt::LeftButton, {}, entries->visualRect(index).center());
    WindowBench::settle();
  }

  int interval = QApplication::doubleClickInterval();
};

TEST_F(XgListsTest, EachListSendsItsTypeAndMarksTheSong) {
  struct Choice {
    const char* list;
    int entry;
    SysExBytes code;
  };
  for (const Choice& choice :
       {Choice{"reverb", 8, {0x00, 0x10, 0x00}}, Choice{"chorus", 7, {0x20, 0x42, 0x08}},
        Choice{"variation", 22, {0x40, 0x4E, 0x00}}}) {
    editor.flags.modified = false;
    bench.outputs.calls.clear();
    choose(choice.list, choice.entry);
    SysExBytes message = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01};
    message.insert(message.end(), choice.code.begin(), choice.code.end());
    message.push_back(0xF7);
    EXPECT_THAT(bench.outputs.sysexes(), ElementsAre(message)) << choice.list;
    EXPECT_TRUE(editor.flags.modified) << choice.list;
    EXPECT_TRUE(tracks.hasFocus()) << "the keys go back to the notes";
  }
}

TEST_F(XgListsTest, EveryNameFitsItsList) {
  for (const char* name : {"reverb", "chorus", "variation"}) {
    QComboBox& list = bench.find<QComboBox>(name);
    EXPECT_GE(list.width(), list.sizeHint().width()) << name;
  }
}

TEST_F(XgListsTest, TheFirstEntryIsSentWhenItIsChosenThoughItStoodThereAlready) {
  choose("reverb", 0);
  EXPECT_THAT(bench.outputs.sysexes(),
              ElementsAre(SysExBytes{0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x00, 0x01, 0x00, 0xF7}));
  EXPECT_TRUE(editor.flags.modified);
  EXPECT_EQ(bench.find<QLabel>("statusfile").text().toStdString(), "new song \u2022");
}

}  // namespace
}  // namespace lunavox

#include "edit/curves.h"

#include "tests/support/recording_grid_observer.h"
#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Columns of track 2 in `effects`, and its effect column in `tracks`.
constexpr int kActive2 = 4;
constexpr int kStart2 = 5;
constexpr int kShow2 = 6;
constexpr int kEffects2 = 18;

class CurvesTest : public SongFixture {
 protected:
  CurvesTest() {
    Curves::Hooks hooks;
    hooks.choose_drum_kit = [this] { opened.emplace_back("drum kits"); };
    hooks.choose_instrument = [this] { opened.emplace_back("instruments"); };
    hooks.finish_typing = [this] { ++finished; };
    curves.set_hooks(hooks);
  }

  CellPosition cursor() const { return song.tracks.cursor(); }

  Curves curves{song, flags, dialogs, progress};
  std::vector<std::string> opened;
  int finished = 0;
};

TEST_F(CurvesTest, AClickMovesTheCursorToTheTracksEffectColumn) {
  song.tracks.set_cursor(7, 3);
  curves.effects_click(kActive2, 3);
  EXPECT_EQ(cursor(), (CellPosition{7, kEffects2}));
  EXPECT_EQ(song.effects.cursor(), (CellPosition{3, kActive2}));
}

TEST_F(CurvesTest, ActiveIsSwitchedOnAndOff) {
  curves.effects_click(kActive2, kPan);
  EXPECT_EQ(song.effects.text(kPan, kActive2), "yes");
  EXPECT_TRUE(song.active.at(2)[kPan]);
  EXPECT_TRUE(flags.modified);
  curves.effects_click(kActive2, kPan);
  EXPECT_EQ(song.effects.text(kPan, kActive2), "no");
  EXPECT_FALSE(song.active.at(2)[kPan]);
}

TEST_F(CurvesTest, ActiveSwitchesTheInstrumentRowToo) {
  curves.effects_click(kActive2, kInstrument);
  EXPECT_EQ(song.effects.text(kInstrument, kActive2), "no");
  EXPECT_FALSE(song.active.at(2)[kInstrument]);
}

TEST_F(CurvesTest, AnyTextButYesBecomesYes) {
  song.effects.set_text(kPan, kActive2, "Yes");
  curves.effects_click(kActive2, kPan);
  EXPECT_EQ(song.effects.text(kPan, kActive2), "yes");
}

TEST_F(CurvesTest, WhilePlayingOnlyActiveCanBeSwitched) {
  flags.playing = true;
  curves.effects_click(kActive2, kPan);
  EXPECT_TRUE(song.active.at(2)[kPan]);
  flags.modified = false;
  curves.effects_click(kStart2, kPan);
  curves.effects_click(kStart2, kInstrument);
  curves.effects_click(kShow2, kPan);
  EXPECT_THAT(dialogs.questions, IsEmpty());
  EXPECT_THAT(opened, IsEmpty());
  EXPECT_EQ(song.shown_effect.at(2), kVolume);
  EXPECT_FALSE(flags.modified);
  EXPECT_EQ(song.tracks.column(), kEffects2);
}

TEST_F(CurvesTest, TheInstrumentsStartValueOpensTheVoiceDialogFromTheFirstNoteColumn) {
  song.tracks.set_cursor(4, 1);
  curves.effects_click(kStart2, kInstrument);
  EXPECT_THAT(opened, ElementsAre("instruments"));
  EXPECT_EQ(cursor(), (CellPosition{4, 10}));
  curves.effects_click(2, kInstrument);
  EXPECT_THAT(opened, ElementsAre("instruments", "drum kits"));
  EXPECT_EQ(cursor(), (CellPosition{4, 1}));
  EXPECT_FALSE(flags.modified);
}

TEST_F(CurvesTest, AStartValueIsAskedForWithTheCellsTextAsDefault) {
  curves.effects_click(kStart2, kPan);
  EXPECT_THAT(dialogs.questions,
              ElementsAre(Question{"enter a value", "effect start value", "64"}));
}

TEST_F(CurvesTest, AnEmptyAnswerChangesNothing) {
  song.tracks.set_cursor(5, 1);
  dialogs.inputs = {""};
  curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(song.effects.text(kVolume, kStart2), "127");
  EXPECT_EQ(cursor(), (CellPosition{5, kEffects2}));
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_FALSE(flags.modified);
}

TEST_F(CurvesTest, AStartValueOutside1To127IsRefused) {
  dialogs.inputs = {"0", "128", "127.1", "0.9", "loud", "1e999"};
  for (int i = 0; i < 6; ++i) curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(dialogs.messages.size(), 6U);
  EXPECT_THAT(dialogs.messages,
              Each(error_box("you must enter a value between 1 and 127", "error")));
  EXPECT_EQ(song.effects.text(kVolume, kStart2), "127");
  EXPECT_EQ(song.values.at(2, kVolume, 1), 127);
  EXPECT_FALSE(flags.modified);
}

TEST_F(CurvesTest, TheShownCurvesStartValueIsWrittenIntoTheColumn) {
  song.tracks.set_cursor(9, 4);
  dialogs.inputs = {"100"};
  curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(song.effects.text(kVolume, kStart2), "100");
  EXPECT_THAT(values(2, kVolume, 1, 16), Each(100));
  EXPECT_THAT(texts(kEffects2, 1, 16), Each(std::string("100")));
  EXPECT_TRUE(flags.modified);
  // The walk through the curve ends on the last line.
  EXPECT_EQ(cursor(), (CellPosition{16, kEffects2}));
}

TEST_F(CurvesTest, AStartValueChangesTheCurveUpToTheNextKeyOnly) {
  set_key(2, kVolume, 5, 20);
  set_key(2, kVolume, 9, 90);
  dialogs.inputs = {"100"};
  curves.effects_click(kStart2, kVolume);
  EXPECT_THAT(values(2, kVolume, 1, 9), ElementsAre(100, 80, 60, 40, 20, 127, 127, 127, 90));
  EXPECT_EQ(cursor(), (CellPosition{5, kEffects2}));
}

TEST_F(CurvesTest, AHiddenCurvesStartValueChangesTheTableButNoTextInTracks) {
  curves.showeffect();
  song.tracks.set_cursor(1, 10);
  curves.showeffect();
  const auto before = texts(kEffects2, 1, 16);
  set_key(2, kPan, 5, 20);
  dialogs.inputs = {"100"};
  curves.effects_click(kStart2, kPan);
  EXPECT_THAT(values(2, kPan, 1, 6), ElementsAre(100, 80, 60, 40, 20, 64));
  EXPECT_EQ(texts(kEffects2, 1, 16), before);
  EXPECT_EQ(song.effects.text(kPan, kStart2), "100");
  EXPECT_EQ(cursor(), (CellPosition{1, kEffects2}));
}

TEST_F(CurvesTest, RefreshingMeansTheTrackUnderTheCursorWhateverTheCurrentOneWas) {
  set_key(2, kPan, 1, 10);
  song.tracks.set_cursor(1, kEffects2);
  song.effects.set_cursor(kPan, kStart2);
  song.current_track = 1;
  curves.refreshfxs2();
  EXPECT_THAT(values(1, kPan, 1, 16), Each(64));
  EXPECT_THAT(values(2, kPan, 1, 16), Each(10));
}

TEST_F(CurvesTest, AFractionStaysInTheCellAndIsRoundedInTheTable) {
  dialogs.inputs = {"64.5", "63.5"};
  curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(song.effects.text(kVolume, kStart2), "64.5");
  EXPECT_EQ(song.values.at(2, kVolume, 1), 64);
  curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(song.values.at(2, kVolume, 1), 64);
}

TEST_F(CurvesTest, OnlyTheLeadingNumberOfAnAnswerCounts) {
  dialogs.inputs = {" 12abc"};
  curves.effects_click(kStart2, kVolume);
  EXPECT_EQ(song.effects.text(kVolume, kStart2), "12");
}

TEST_F(CurvesTest, ShowMovesTheOneYesAndRedrawsTheColumn) {
  set_key(2, kPan, 3, 10);
  curves.effects_click(kShow2, kPan);
  for (int row = kVolume; row <= kPitch; ++row) {
    EXPECT_EQ(song.effects.text(row, kShow2), row == kPan ? "yes" : "no") << row;
  }
  curves.effects_click(kShow2, kPitch);
  curves.effects_click(kShow2, kPan);
  EXPECT_EQ(song.effects.text(kPitch, kShow2), "no");
  EXPECT_EQ(song.shown_effect.at(2), kPan);
  EXPECT_THAT(texts(kEffects2, 1, 4), ElementsAre("64", "64", "10", "64"));
  EXPECT_EQ(cursor(), (CellPosition{16, kEffects2}));
  EXPECT_TRUE(flags.modified);
}

TEST_F(CurvesTest, ShowOnTheInstrumentRowOnlyMovesTheCursor) {
  song.tracks.set_cursor(4, 2);
  curves.effects_click(kShow2, kInstrument);
  EXPECT_EQ(cursor(), (CellPosition{4, kEffects2}));
  EXPECT_EQ(song.effects.text(kInstrument, kShow2), "no");
  EXPECT_EQ(song.effects.text(kVolume, kShow2), "yes");
  EXPECT_EQ(song.shown_effect.at(2), kVolume);
  EXPECT_FALSE(flags.modified);
}

TEST_F(CurvesTest, AHeaderCellDoesNothing) {
  curves.effects_click(kActive2, 0);
  curves.effects_click(0, kPan);
  EXPECT_EQ(cursor(), (CellPosition{1, 1}));
  EXPECT_FALSE(flags.modified);
}

TEST_F(CurvesTest, WhatIsBeingTypedIsTakenBeforeAClickCounts) {
  curves.effects_click(kShow2, kPan);
  EXPECT_EQ(finished, 1);
}

TEST_F(CurvesTest, ShowingAnEffectColoursKeysRedAndTheRestBlackOnLightGrey) {
  set_key(1, kVolume, 3, 50);
  song.tracks.set_cursor(2, 4);
  curves.showeffect();
  EXPECT_EQ(song.tracks.cell(1, 9), (Cell{"127", {255, 0, 0}, {240, 240, 240}}));
  EXPECT_EQ(song.tracks.cell(2, 9), (Cell{"127", {0, 0, 0}, {240, 240, 240}}));
  EXPECT_EQ(song.tracks.cell(3, 9), (Cell{"50", {255, 0, 0}, {240, 240, 240}}));
  EXPECT_EQ(song.tracks.cell(16, 9), (Cell{"127", {0, 0, 0}, {240, 240, 240}}));
  EXPECT_EQ(cursor(), (CellPosition{16, 9}));
}

TEST_F(CurvesTest, AddingEffectsDrawsAllTracksFromTheGivenLine) {
  curves.addfxs(15);
  EXPECT_THAT(texts(9, 14, 16), ElementsAre("", "127", "127"));
  EXPECT_THAT(texts(kEffects2, 14, 16), ElementsAre("", "127", "127"));
  EXPECT_EQ(cursor(), (CellPosition{16, kEffects2}));
  EXPECT_EQ(song.current_track, 2);
}

TEST_F(CurvesTest, AddingEffectsPastTheLastLineDrawsNothing) {
  song.tracks.set_cursor(3, 1);
  curves.addfxs(40);
  EXPECT_THAT(texts(9, 1, 16), Each(std::string()));
  EXPECT_EQ(cursor(), (CellPosition{3, kEffects2}));
}

TEST_F(CurvesTest, EachWalkShowsItsProgressAndRedrawsOnce) {
  curves.showeffect();
  curves.addfxs(2);
  set_key(1, kVolume, 4, 1);
  set_key(1, kVolume, 11, 1);
  song.tracks.set_cursor(6, 9);
  curves.refreshfxs();
  song.tracks.set_row(4);
  song.effects.set_cursor(kVolume, 3);
  curves.refreshfxs2();
  using Shown = RecordedProgress::Shown;
  EXPECT_THAT(progress.shown,
              ElementsAre(Shown{"showing effect...", 17, 16}, Shown{"showing effect...", 17, 16},
                          Shown{"interpolating effects...", 7, 7},
                          Shown{"interpolating effects...", 10, 7}));
  EXPECT_FALSE(progress.visible);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(CurvesTest, ALongCurveIsReportedAsOneRegionAndTwoCursorMoves) {
  resize(3000);
  song.tracks.set_cursor(7, 1);
  const RecordingGridObserver observer(song.tracks);
  curves.showeffect();
  EXPECT_THAT(observer.regions, ElementsAre(CellRegion{1, 9, 3000, 9}));
  EXPECT_EQ(observer.left.size(), 2U);
}

TEST_F(CurvesTest, RefreshingLeavesTextColoursAlone) {
  curves.showeffect();
  set_key(1, kVolume, 5, 7);
  song.tracks.set_cursor(5, 9);
  curves.refreshfxs();
  EXPECT_EQ(song.tracks.text(5, 9), "7");
  EXPECT_EQ(song.tracks.cell(5, 9).text_colour, kBlack);
  EXPECT_EQ(cursor(), (CellPosition{16, 9}));
}

}  // namespace
}  // namespace lunavox::test

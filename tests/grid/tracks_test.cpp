#include "grid/tracks.h"

#include "tests/support/recorded_progress.h"
#include "tests/support/scripted_dialogs.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::RecordedProgress;
using test::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

class TracksTest : public testing::Test {
 protected:
  TracksTest() {
    tracks.set_hooks({[this] { showeffect(); }, [this] { hooks.emplace_back("starteffect"); }});
  }

  void showeffect() {
    hooks.emplace_back("showeffect " + std::to_string(song.current_track));
    box_was_hidden = !progress.visible && song.tracks.redraw();
    cursor_at_showeffect = song.tracks.cursor();
    bank_at_showeffect = song.bank.at(song.track_count);
  }
  void set_lines(int lines) {
    song.tracks.set_rows(lines + 1);
    song.resize_stores();
  }
  void add_instruments(int count) {
    for (int i = 0; i < count; ++i) tracks.addinstrutrack();
  }
  std::vector<std::string> column(const CellGrid& grid, int number) const {
    std::vector<std::string> texts;
    for (int row = 0; row < grid.rows(); ++row) texts.push_back(grid.text(row, number));
    return texts;
  }
  /// The values of effects 1 to 11 on a row.
  std::vector<int> values(int track, int row) const {
    std::vector<int> found;
    for (int e = 1; e <= 11; ++e) found.push_back(song.values.at(track, e, row));
    return found;
  }

  Song song;
  Flags flags;
  Screen screen{800, 600};
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  Tracks tracks{song, flags, screen, dialogs, progress};

  std::vector<std::string> hooks;
  bool box_was_hidden = false;
  CellPosition cursor_at_showeffect;
  int bank_at_showeffect = -1;
};

TEST_F(TracksTest, TheDrumTrackIsTrackOneOnChannelIndexNine) {
  tracks.adddrumtrack();
  EXPECT_EQ(song.track_count, 1);
  EXPECT_EQ(song.channel.at(1), 9);
  EXPECT_EQ(song.tracks.columns(), 10);
  EXPECT_EQ(song.effects.columns(), 4);
  EXPECT_EQ(song.channels.columns(), 2);
}

TEST_F(TracksTest, TheDrumTracksHeaderIsCentredWhiteOnBlue) {
  tracks.adddrumtrack();
  EXPECT_EQ(song.channels.cell(0, 1),
            (Cell{"DRUM TRACK  1", {255, 255, 255}, {60, 60, 140}, Alignment::kCentre}));
  EXPECT_EQ(song.channels.column_width(1), 3840);
}

TEST_F(TracksTest, AnInstrumentTracksHeaderIsCentredWhiteOnBlue) {
  tracks.adddrumtrack();
  add_instruments(9);
  EXPECT_EQ(song.channels.cell(0, 2),
            (Cell{"INTRUMENT TRACK  2", {255, 255, 255}, {60, 60, 140}, Alignment::kCentre}));
  EXPECT_EQ(song.channels.text(0, 10), "INTRUMENT TRACK  10");
  EXPECT_EQ(song.channels.column_width(10), 3840);
}

TEST_F(TracksTest, NoteColumnsAreNumberedAndTheNinthIsTheEffectColumn) {
  tracks.adddrumtrack();
  add_instruments(1);
  const char* expected[] = {"# 1", "# 2", "# 3", "# 4", "# 5", "# 6", "# 7", "# 8", "Effect"};
  for (int column = 1; column <= 18; ++column) {
    SCOPED_TRACE(column);
    EXPECT_EQ(song.tracks.text(0, column), expected[(column - 1) % 9]);
    EXPECT_EQ(song.tracks.column_width(column), column % 9 == 0 ? 600 : 400);
  }
}

TEST_F(TracksTest, AnInstrumentTracksSettingsHaveTheirTexts) {
  tracks.adddrumtrack();
  add_instruments(1);
  EXPECT_THAT(column(song.effects, 4), ElementsAre("Active", "yes", "no", "no", "no", "no", "no",
                                                   "no", "no", "no", "no", "no"));
  EXPECT_THAT(column(song.effects, 5), ElementsAre("Start value", "GrandPno", "127", "64", "1",
                                                   "64", "40", "1", "1", "64", "64", "64"));
  EXPECT_THAT(column(song.effects, 6), ElementsAre("Show", "no", "yes", "no", "no", "no", "no",
                                                   "no", "no", "no", "no", "no"));
}

TEST_F(TracksTest, TheDrumTracksSettingsDifferInTheKitNameOnly) {
  tracks.adddrumtrack();
  EXPECT_THAT(column(song.effects, 1), ElementsAre("Active", "yes", "no", "no", "no", "no", "no",
                                                   "no", "no", "no", "no", "no"));
  EXPECT_THAT(column(song.effects, 2), ElementsAre("Start value", "standard 1", "127", "64", "1",
                                                   "64", "40", "1", "1", "64", "64", "64"));
  EXPECT_THAT(column(song.effects, 3), ElementsAre("Show", "no", "yes", "no", "no", "no", "no",
                                                   "no", "no", "no", "no", "no"));
}

TEST_F(TracksTest, TheThreeSettingsColumnsTogetherAreAsWideAsTheHeader) {
  tracks.adddrumtrack();
  for (int column = 1; column <= 3; ++column) EXPECT_EQ(song.effects.column_width(column), 1280);
}

TEST_F(TracksTest, TheActiveFlagsMirrorTheActiveColumn) {
  tracks.adddrumtrack();
  EXPECT_TRUE(song.active.at(1)[1]);
  for (std::size_t e = 2; e <= 11; ++e) EXPECT_FALSE(song.active.at(1)[e]) << e;
}

TEST_F(TracksTest, CurvesStartFlatAtTheirValuesAndAttackAtOne) {
  set_lines(16);
  tracks.adddrumtrack();
  add_instruments(1);
  for (int row = 1; row <= 16; ++row) {
    SCOPED_TRACE(row);
    EXPECT_THAT(values(1, row), ElementsAre(0, 127, 64, 1, 64, 40, 1, 1, 1, 64, 64));
    EXPECT_THAT(values(2, row), ElementsAre(0, 127, 64, 1, 64, 40, 1, 1, 1, 64, 64));
  }
}

TEST_F(TracksTest, OnlyTheFirstRowOfACurveIsAKeyAttribute) {
  set_lines(4);
  song.key_attributes.at(1, 2, 3) = 1;
  tracks.adddrumtrack();
  for (int e = 1; e <= 11; ++e) {
    EXPECT_EQ(song.key_attributes.at(1, e, 1), 1) << e;
    for (int row = 2; row <= 4; ++row) EXPECT_EQ(song.key_attributes.at(1, e, row), 0) << e;
  }
}

TEST_F(TracksTest, ANewTrackShowsTheVolume) {
  song.shown_effect.at(2) = 5;
  tracks.adddrumtrack();
  add_instruments(1);
  EXPECT_EQ(song.shown_effect.at(1), 2);
  EXPECT_EQ(song.shown_effect.at(2), 2);
}

TEST_F(TracksTest, ANewInstrumentTracksBankIsZeroBeforeItsCurveIsShown) {
  tracks.adddrumtrack();
  song.bank.at(2) = 18;
  add_instruments(1);
  EXPECT_EQ(song.bank.at(2), 0);
  EXPECT_EQ(bank_at_showeffect, 0);
}

TEST_F(TracksTest, NineInstrumentTracksPlayOnChannelsOneToNine) {
  tracks.adddrumtrack();
  add_instruments(9);
  EXPECT_EQ(song.track_count, 10);
  for (int track = 2; track <= 10; ++track) EXPECT_EQ(song.channel.at(track), track - 2);
  EXPECT_EQ(song.channel.at(10), 8);
  EXPECT_EQ(song.tracks.columns(), 91);
  EXPECT_EQ(song.effects.columns(), 31);
  EXPECT_EQ(song.channels.columns(), 11);
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(TracksTest, AnEleventhTrackIsRefusedAndNothingChanges) {
  tracks.adddrumtrack();
  add_instruments(9);
  flags.modified = false;
  hooks.clear();
  progress.shown.clear();
  const Song before = song;
  tracks.addinstrutrack();
  EXPECT_THAT(dialogs.messages,
              ElementsAre(error_box("You can't add more intrument tracks", "Error")));
  EXPECT_EQ(song, before);
  EXPECT_FALSE(flags.modified);
  EXPECT_THAT(hooks, IsEmpty());
  EXPECT_THAT(progress.shown, IsEmpty());
}

TEST_F(TracksTest, TheDrumTrackEndsWithShoweffectOnly) {
  tracks.adddrumtrack();
  EXPECT_THAT(hooks, ElementsAre("showeffect 1"));
  EXPECT_TRUE(box_was_hidden);
}

TEST_F(TracksTest, AnInstrumentTrackEndsWithShoweffectAndStarteffect) {
  tracks.adddrumtrack();
  hooks.clear();
  add_instruments(1);
  EXPECT_THAT(hooks, ElementsAre("showeffect 2", "starteffect"));
  EXPECT_TRUE(box_was_hidden);
}

TEST_F(TracksTest, TheNewTrackIsCurrentWhenItsCurveIsShown) {
  tracks.adddrumtrack();
  song.tracks.set_cursor(1, 3);
  add_instruments(1);
  EXPECT_EQ(song.current_track, 2);
  EXPECT_EQ(song.current_sub_column, 0);
  EXPECT_EQ(cursor_at_showeffect, (CellPosition{1, 18}));
}

TEST_F(TracksTest, AddingShowsTheProgressBox) {
  tracks.adddrumtrack();
  add_instruments(2);
  EXPECT_THAT(progress.shown,
              ElementsAre(RecordedProgress::Shown{"adding drum track...", 1, 1},
                          RecordedProgress::Shown{"adding instrument track...", 2, 2},
                          RecordedProgress::Shown{"adding instrument track...", 3, 3}));
  EXPECT_FALSE(progress.visible);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(TracksTest, AnAddedInstrumentTrackIsAnEdit) {
  tracks.adddrumtrack();
  EXPECT_FALSE(flags.modified);
  add_instruments(1);
  EXPECT_TRUE(flags.modified);
}

TEST_F(TracksTest, FourTracksOnTheSmallestScreenScrollUpToThree) {
  tracks.adddrumtrack();
  add_instruments(1);
  EXPECT_EQ(screen.defilchan_max, 1);
  EXPECT_EQ(screen.tracks_height, 325);
  add_instruments(2);
  EXPECT_EQ(screen.defilchan_max, 3);
  EXPECT_EQ(screen.tracks_height, 342);
}

TEST_F(TracksTest, DeletingATrackFitsTheGridAgain) {
  tracks.adddrumtrack();
  add_instruments(2);
  EXPECT_EQ(screen.defilchan_max, 2);
  tracks.menudeltrack_click();
  EXPECT_EQ(screen.defilchan_max, 1);
  EXPECT_EQ(screen.tracks_height, 325);
}

TEST_F(TracksTest, WithTheExtendedAreaANewTrackLeavesTheGrid191PixelsTaller) {
  tracks.adddrumtrack();
  screen.area_click(true);
  add_instruments(1);
  EXPECT_EQ(screen.tracks_height, 516);
  add_instruments(1);
  EXPECT_EQ(screen.tracks_height, 533);
  tracks.menudeltrack_click();
  EXPECT_EQ(screen.tracks_height, 516);
}

TEST_F(TracksTest, TheDrumTrackCannotBeDeleted) {
  tracks.adddrumtrack();
  progress.shown.clear();
  const Song before = song;
  tracks.menudeltrack_click();
  EXPECT_THAT(dialogs.messages, ElementsAre(error_box("you can't del drum track", "error")));
  EXPECT_EQ(song, before);
  EXPECT_FALSE(flags.modified);
  EXPECT_THAT(progress.shown, IsEmpty());
}

TEST_F(TracksTest, AddingAndDeletingATrackLeavesTheFormerColumnCounts) {
  tracks.adddrumtrack();
  add_instruments(2);
  tracks.menudeltrack_click();
  EXPECT_EQ(song.track_count, 2);
  EXPECT_EQ(song.tracks.columns(), 19);
  EXPECT_EQ(song.effects.columns(), 7);
  EXPECT_EQ(song.channels.columns(), 3);
}

TEST_F(TracksTest, DeletingIsAnEditAndMovesTheCursorToTheFirstColumn) {
  tracks.adddrumtrack();
  add_instruments(1);
  flags.modified = false;
  song.tracks.set_cursor(2, 14);
  song.actualtrack();
  tracks.menudeltrack_click();
  EXPECT_TRUE(flags.modified);
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{2, 1}));
  EXPECT_EQ(song.current_track, 1);
  EXPECT_EQ(song.current_sub_column, 1);
}

TEST_F(TracksTest, DeletingShowsTheProgressBox) {
  tracks.adddrumtrack();
  add_instruments(1);
  progress.shown.clear();
  tracks.menudeltrack_click();
  ASSERT_EQ(progress.shown.size(), 1U);
  EXPECT_EQ(progress.shown[0].caption, "deleting track...");
  EXPECT_FALSE(progress.visible);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(TracksTest, TheCursorLeavesTheDeletedTrackWhileItIsStillThere) {
  struct Watcher : CellGridObserver {
    explicit Watcher(const Song& watched) : song(watched) {}
    void leaving_cell() override { track_count = song.track_count; }
    const Song& song;
    int track_count = 0;
  };
  tracks.adddrumtrack();
  add_instruments(1);
  Watcher watcher(song);
  song.tracks.add_observer(&watcher);
  tracks.menudeltrack_click();
  song.tracks.remove_observer(&watcher);
  EXPECT_EQ(watcher.track_count, 2);
}

TEST_F(TracksTest, ATrackAddedAgainFindsTheNotesOfItsPredecessor) {
  tracks.adddrumtrack();
  add_instruments(1);
  song.write_entry(2, 3, 2, "643C90");
  song.show_entry(2, 3, 2);
  tracks.menudeltrack_click();
  EXPECT_EQ(song.notes.at(2, 3, 2), "643C90");
  add_instruments(1);
  EXPECT_EQ(song.notes.at(2, 3, 2), "643C90");
  EXPECT_EQ(song.tracks.text(2, 12), "C  5");
  EXPECT_EQ(song.tracks.cell(2, 12).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(song.used_columns.at(2), 3);
}

TEST_F(TracksTest, ATrackAddedAgainStartsItsCurvesAfresh) {
  set_lines(4);
  tracks.adddrumtrack();
  add_instruments(1);
  song.values.at(2, 2, 3) = 5;
  song.key_attributes.at(2, 2, 3) = 1;
  song.active.at(2)[2] = true;
  song.shown_effect.at(2) = 4;
  tracks.menudeltrack_click();
  add_instruments(1);
  EXPECT_EQ(song.values.at(2, 2, 3), 127);
  EXPECT_EQ(song.key_attributes.at(2, 2, 3), 0);
  EXPECT_FALSE(song.active.at(2)[2]);
  EXPECT_EQ(song.effects.text(2, 4), "no");
  EXPECT_EQ(song.shown_effect.at(2), 2);
}

TEST_F(TracksTest, AppendingColumnsForTheSongReaderLeavesTheStoredCurves) {
  tracks.adddrumtrack();
  song.values.at(2, 2, 1) = 33;
  hooks.clear();
  progress.shown.clear();
  tracks.append_instrument_columns();
  EXPECT_EQ(song.track_count, 2);
  EXPECT_EQ(song.channel.at(2), 0);
  EXPECT_EQ(song.channels.text(0, 2), "INTRUMENT TRACK  2");
  EXPECT_EQ(song.tracks.text(0, 18), "Effect");
  EXPECT_EQ(song.effects.text(1, 5), "GrandPno");
  EXPECT_EQ(song.values.at(2, 2, 1), 33);
  EXPECT_THAT(hooks, IsEmpty());
  EXPECT_THAT(progress.shown, IsEmpty());
}

TEST_F(TracksTest, WorksWithoutHooks) {
  tracks.set_hooks({});
  tracks.adddrumtrack();
  tracks.addinstrutrack();
  EXPECT_EQ(song.track_count, 2);
}

TEST(SetTrackColumns, GivesTheThreeGridsTheirColumns) {
  Song song;
  set_track_columns(song, 4);
  EXPECT_EQ(song.tracks.columns(), 37);
  EXPECT_EQ(song.effects.columns(), 13);
  EXPECT_EQ(song.channels.columns(), 5);
  set_track_columns(song, 0);
  EXPECT_EQ(song.tracks.columns(), 1);
  EXPECT_EQ(song.effects.columns(), 1);
  EXPECT_EQ(song.channels.columns(), 1);
}

}  // namespace
}  // namespace lunavox

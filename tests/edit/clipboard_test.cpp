#include "edit/clipboard.h"

#include "tests/support/recording_grid_observer.h"
#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Message kSelectionRefused =
    error_box("You must select only in the same track, without the effects !", "Error");
const Message kNoSpace = error_box("Not enough space to paste selection", "Error");

class ClipboardTest : public SongFixture {
 protected:
  void write(int track, int sub_column, int row, const std::string& entry) {
    song.write_entry(track, sub_column, row, entry);
    song.show_entry(track, sub_column, row);
  }
  void select(int row, int column, int end_row, int end_column) {
    song.tracks.select({row, column}, {end_row, end_column});
  }
  const Cell& cell(int row, int column) const { return song.tracks.cell(row, column); }

  Clipboard clipboard{song, flags, dialogs};
};

TEST_F(ClipboardTest, ASingleCellIsABlockOfOne) {
  write(1, 2, 3, "643C99");
  song.tracks.set_cursor(3, 2);
  clipboard.copyproc();
  song.tracks.set_cursor(5, 4);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 4, 5), "643C99");
  EXPECT_EQ(cell(5, 4).text, "C  5");
  EXPECT_EQ(cell(5, 4).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(song.notes.at(1, 5, 5), "");
  EXPECT_EQ(song.notes.at(1, 4, 6), "");
  EXPECT_TRUE(flags.modified);
}

TEST_F(ClipboardTest, CopyingChangesNothing) {
  write(1, 2, 3, "643C99");
  select(3, 2, 6, 5);
  clipboard.copyproc();
  EXPECT_EQ(song.notes.at(1, 2, 3), "643C99");
  EXPECT_FALSE(flags.modified);
}

TEST_F(ClipboardTest, EitherCornerOfTheSelectionMayBeTheLarger) {
  write(1, 2, 3, "643C99");
  write(1, 4, 5, "503D99");
  for (const auto& [from, to] : {std::pair{CellPosition{3, 2}, CellPosition{5, 4}},
                                 {CellPosition{5, 4}, {3, 2}},
                                 {CellPosition{3, 4}, {5, 2}},
                                 {CellPosition{5, 2}, {3, 4}}}) {
    song.tracks.select(from, to);
    clipboard.copyproc();
    song.tracks.set_cursor(10, 5);
    clipboard.pasteproc();
    EXPECT_EQ(song.notes.at(1, 5, 10), "643C99");
    EXPECT_EQ(song.notes.at(1, 7, 12), "503D99");
    write(1, 5, 10, "");
    write(1, 7, 12, "");
  }
}

TEST_F(ClipboardTest, ASelectionAcrossTracksIsRefused) {
  select(1, 8, 1, 10);
  clipboard.copyproc();
  clipboard.cutproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kSelectionRefused, kSelectionRefused));
  EXPECT_FALSE(clipboard.can_paste());
  EXPECT_FALSE(flags.modified);
}

TEST_F(ClipboardTest, ASelectionThatEndsInAnEffectColumnIsRefused) {
  select(1, 7, 1, 9);
  clipboard.copyproc();
  select(1, 9, 1, 7);
  clipboard.cutproc();
  select(1, 9, 1, 9);
  clipboard.copyproc();
  EXPECT_THAT(dialogs.messages,
              ElementsAre(kSelectionRefused, kSelectionRefused, kSelectionRefused));
}

TEST_F(ClipboardTest, ARefusedCopyKeepsTheClipboard) {
  write(1, 1, 1, "643C99");
  clipboard.copyproc();
  select(1, 9, 1, 9);
  clipboard.copyproc();
  song.tracks.set_cursor(2, 1);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 1, 2), "643C99");
}

TEST_F(ClipboardTest, TheNextCopyTakesTheClipboardsPlaceWhateverItsSize) {
  write(1, 1, 1, "643C99");
  write(1, 2, 2, "643D99");
  write(1, 5, 7, "643E99");
  select(1, 1, 3, 3);
  clipboard.copyproc();
  song.tracks.set_cursor(7, 5);
  clipboard.copyproc();
  song.tracks.set_cursor(10, 1);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 1, 10), "643E99");
  EXPECT_EQ(song.notes.at(1, 2, 11), "");
  select(1, 1, 3, 3);
  clipboard.cutproc();
  song.tracks.set_cursor(10, 4);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 4, 10), "643C99");
  EXPECT_EQ(song.notes.at(1, 5, 11), "643D99");
}

TEST_F(ClipboardTest, CuttingEmptiesTextAndEntryAndLeavesTheColour) {
  write(1, 2, 3, "643C99");
  write(1, 3, 4, "stop");
  select(3, 2, 4, 3);
  clipboard.cutproc();
  EXPECT_EQ(song.notes.at(1, 2, 3), "");
  EXPECT_EQ(song.notes.at(1, 3, 4), "");
  EXPECT_EQ(cell(3, 2).text, "");
  EXPECT_EQ(cell(3, 2).text_colour, (Colour{200, 110, 56}));
  EXPECT_TRUE(flags.modified);
  song.tracks.set_cursor(8, 5);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 5, 8), "643C99");
  EXPECT_EQ(song.notes.at(1, 6, 9), "stop");
}

TEST_F(ClipboardTest, CursorAndSelectionStayWhereTheUserLeftThem) {
  select(6, 5, 3, 2);
  clipboard.cutproc();
  clipboard.pasteproc();
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{6, 5}));
  EXPECT_EQ(song.tracks.selection_end(), (CellPosition{3, 2}));
  EXPECT_EQ(song.current_track, 1);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(ClipboardTest, PastedNotesGoOverToTheDestinationTracksChannel) {
  write(1, 1, 1, "643C99");
  write(1, 1, 2, "stop");
  write(1, 2, 1, "503D99");
  select(1, 1, 3, 2);
  clipboard.copyproc();
  song.tracks.set_cursor(4, 10);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(2, 1, 4), "643C90");
  EXPECT_EQ(song.notes.at(2, 1, 5), "stop");
  EXPECT_EQ(song.notes.at(2, 1, 6), "");
  EXPECT_EQ(song.notes.at(2, 2, 4), "503D90");
  EXPECT_EQ(cell(5, 10).text, "stop");
  EXPECT_EQ(song.used_columns.at(2), 2);
}

TEST_F(ClipboardTest, TheChannelDigitIsTheLastOfTheChannelsDecimalText) {
  write(1, 1, 1, "643C99");
  clipboard.copyproc();
  song.channel.at(2) = 12;
  song.tracks.set_cursor(1, 10);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(2, 1, 1), "643C92");
}

TEST_F(ClipboardTest, PastingEmptyCellsClearsWhatWasThere) {
  write(1, 3, 5, "643C99");
  song.tracks.set_cursor(1, 1);
  clipboard.copyproc();
  song.tracks.set_cursor(5, 3);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 3, 5), "");
  EXPECT_EQ(cell(5, 3).text, "");
}

TEST_F(ClipboardTest, TheClipboardSurvivesAPaste) {
  write(1, 1, 1, "643C99");
  clipboard.copyproc();
  for (const int row : {4, 5}) {
    song.tracks.set_cursor(row, 2);
    clipboard.pasteproc();
    EXPECT_EQ(song.notes.at(1, 2, row), "643C99");
  }
}

TEST_F(ClipboardTest, PastingBeforeAnyCopyDoesNothing) {
  EXPECT_FALSE(clipboard.can_paste());
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_FALSE(flags.modified);
}

TEST_F(ClipboardTest, ABlockMayEndOnTheLastLineButNotBeyond) {
  write(1, 1, 3, "643C99");
  select(1, 1, 3, 1);
  clipboard.copyproc();
  song.tracks.set_cursor(14, 2);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(1, 2, 16), "643C99");
  flags.modified = false;
  song.tracks.set_cursor(15, 3);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kNoSpace));
  EXPECT_FALSE(flags.modified);
}

TEST_F(ClipboardTest, PastingIntoAnEffectColumnIsRefused) {
  clipboard.copyproc();
  song.tracks.set_cursor(1, 9);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kNoSpace));
}

TEST_F(ClipboardTest, AWiderBlockIntoAnEffectColumnIsRefusedThoughItWouldEndInANoteColumn) {
  write(1, 2, 1, "643C99");
  select(1, 1, 1, 2);
  clipboard.copyproc();
  song.tracks.set_cursor(1, 9);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kNoSpace));
  EXPECT_EQ(song.notes.at(2, 1, 1), "");
}

TEST_F(ClipboardTest, EightColumnsAtTheSecondNoteColumnWouldEndInTheEffectColumn) {
  select(1, 1, 1, 8);
  clipboard.copyproc();
  song.tracks.set_cursor(2, 2);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kNoSpace));
}

TEST_F(ClipboardTest, EightColumnsAtTheThirdNoteColumnReachTheNextTrack) {
  for (int k = 1; k <= 8; ++k) write(1, k, 1, "6430" + std::string("99"));
  write(1, 7, 1, "643C99");
  write(1, 8, 1, "643D99");
  select(1, 1, 1, 8);
  clipboard.copyproc();
  song.tracks.set_cursor(2, 3);
  const auto pan = values(1, kVolume, 1, 16);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_EQ(song.notes.at(1, 8, 2), "643099");
  EXPECT_EQ(song.notes.at(2, 1, 2), "643D90");
  // The effect column's cell shows the note; the curve is as it was.
  EXPECT_EQ(cell(2, 9).text, "C  5");
  EXPECT_EQ(cell(2, 9).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(song.notes.at(1, 0, 2), "643C99");
  EXPECT_EQ(values(1, kVolume, 1, 16), pan);
  EXPECT_EQ(song.used_columns.at(2), 1);
}

TEST_F(ClipboardTest, FourColumnsAtTheSeventhReachTheNextTracksFirst) {
  write(1, 4, 1, "643C99");
  select(1, 1, 1, 4);
  clipboard.copyproc();
  song.tracks.set_cursor(1, 7);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(2, 1, 1), "643C90");
}

TEST_F(ClipboardTest, ABlockThatWouldRunOutOfTheLastTrackIsRefused) {
  write(2, 4, 1, "643C90");
  select(1, 10, 1, 13);
  clipboard.copyproc();
  song.tracks.set_cursor(1, 16);
  clipboard.pasteproc();
  EXPECT_THAT(dialogs.messages, ElementsAre(kNoSpace));
  EXPECT_EQ(song.notes.at(2, 7, 1), "");
}

TEST_F(ClipboardTest, ABlockIsRedrawnOnce) {
  for (int row = 1; row <= 16; ++row) write(1, 1, row, "643C99");
  select(1, 1, 16, 3);
  clipboard.copyproc();
  song.tracks.set_cursor(1, 4);
  const RecordingGridObserver observer(song.tracks);
  clipboard.pasteproc();
  EXPECT_THAT(observer.regions, ElementsAre(CellRegion{1, 4, 16, 4}));
  select(1, 1, 16, 4);
  clipboard.cutproc();
  EXPECT_THAT(observer.regions, ElementsAre(CellRegion{1, 4, 16, 4}, CellRegion{1, 1, 16, 4}));
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(ClipboardTest, AWholeSongsTrackIsCutAndPasted) {
  resize(3000);
  for (int row = 1; row <= 3000; ++row) write(1, 8, row, "643C99");
  select(3000, 8, 1, 1);
  clipboard.cutproc();
  EXPECT_EQ(song.notes.at(1, 8, 3000), "");
  song.tracks.set_cursor(1, 10);
  clipboard.pasteproc();
  EXPECT_EQ(song.notes.at(2, 8, 1), "643C90");
  EXPECT_EQ(song.notes.at(2, 8, 3000), "643C90");
  EXPECT_EQ(cell(3000, 17).text, "C  5");
}

TEST_F(ClipboardTest, ABlockHasNotesWhenOneOfItsEntriesIsOne) {
  write(1, 3, 4, "stop");
  select(1, 1, 16, 8);
  EXPECT_FALSE(block_has_notes(song));
  write(1, 8, 16, "643C99");
  EXPECT_TRUE(block_has_notes(song));
  select(1, 1, 15, 8);
  EXPECT_FALSE(block_has_notes(song));
  select(1, 1, 16, 9);
  EXPECT_FALSE(block_has_notes(song));
}

}  // namespace
}  // namespace lunavox::test

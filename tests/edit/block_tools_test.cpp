#include "edit/block_tools.h"

#include "grid/note_text.h"
#include "tests/support/recording_grid_observer.h"
#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BlockToolsTest : public SongFixture {
 protected:
  void write(int sub_column, int row, const std::string& entry) {
    song.write_entry(1, sub_column, row, entry);
    song.show_entry(1, sub_column, row);
  }
  void select_track() { song.tracks.select({1, 1}, {16, 8}); }
  void answer(const std::string& text) { dialogs.inputs = {text}; }
  const std::string& entry(int sub_column, int row) const {
    return song.notes.at(1, sub_column, row);
  }
  const Cell& cell(int row, int column) const { return song.tracks.cell(row, column); }

  BlockTools tools{song, flags, dialogs};
};

TEST_F(BlockToolsTest, ASelectionThatIsNoBlockIsRefusedBeforeAnythingIsAsked) {
  song.tracks.select({1, 8}, {1, 10});
  tools.velovalue();
  song.tracks.select({1, 8}, {1, 9});
  tools.velopercent();
  song.tracks.select({1, 9}, {1, 1});
  tools.transproc();
  EXPECT_EQ(dialogs.messages.size(), 3U);
  EXPECT_THAT(
      dialogs.messages,
      Each(error_box("You must select only in the same track, without the effects !", "Error")));
  EXPECT_THAT(dialogs.questions, IsEmpty());
}

TEST_F(BlockToolsTest, EachToolAsksItsQuestion) {
  tools.velovalue();
  tools.velopercent();
  tools.transproc();
  EXPECT_THAT(dialogs.questions,
              ElementsAre(Question{"Notes fixed value (0-127)", "Velocity", "127"},
                          Question{"Percent of original notes velocity (0-400)", "Velocity", "100"},
                          Question{"Level of transpose (12=1 octave) negative values accepted",
                                   "Transpose", "12"}));
}

TEST_F(BlockToolsTest, TheFixedVelocityOfferedIsTheStrength) {
  song.strength.put("90");
  tools.velovalue();
  EXPECT_EQ(dialogs.questions.front().default_text, "90");
}

TEST_F(BlockToolsTest, AnEmptyAnswerChangesNothing) {
  write(1, 1, "643C99");
  select_track();
  tools.velovalue();
  tools.velopercent();
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "643C99");
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_FALSE(flags.modified);
}

TEST_F(BlockToolsTest, AFixedVelocityIsGivenToEveryNoteWithItsColour) {
  write(1, 1, "643C99");
  write(8, 16, "C3D99");
  select_track();
  answer("64");
  tools.velovalue();
  EXPECT_EQ(entry(1, 1), "403C99");
  EXPECT_EQ(entry(8, 16), "403D99");
  EXPECT_EQ(cell(1, 1).text, "C  5");
  EXPECT_EQ(cell(1, 1).text_colour, (Colour{128, 254, 128}));
  EXPECT_TRUE(flags.modified);
}

TEST_F(BlockToolsTest, OnlyTheSelectionIsRewritten) {
  for (int row = 1; row <= 5; ++row) write(2, row, "643C99");
  write(1, 3, "643C99");
  song.tracks.select({4, 3}, {2, 2});
  answer("127");
  tools.velovalue();
  EXPECT_EQ(entry(2, 1), "643C99");
  EXPECT_EQ(entry(2, 2), "7F3C99");
  EXPECT_EQ(entry(2, 4), "7F3C99");
  EXPECT_EQ(entry(2, 5), "643C99");
  EXPECT_EQ(entry(1, 3), "643C99");
}

TEST_F(BlockToolsTest, AFixedVelocityBelow16IsWrittenWithOneDigit) {
  write(1, 1, "643C99");
  answer("5");
  tools.velovalue();
  EXPECT_EQ(entry(1, 1), "53C99");
}

TEST_F(BlockToolsTest, AFixedVelocityIsRoundedHalvesToEven) {
  write(1, 1, "643C99");
  answer("126.5");
  tools.velovalue();
  EXPECT_EQ(entry(1, 1), "7E3C99");
  answer("loud");
  tools.velovalue();
  EXPECT_EQ(entry(1, 1), "03C99");
}

TEST_F(BlockToolsTest, AFixedVelocityOutside0To127IsRefused) {
  write(1, 1, "643C99");
  for (const std::string text : {"128", "-1", "127.5", "1e999"}) {
    answer(text);
    tools.velovalue();
  }
  EXPECT_EQ(dialogs.messages.size(), 4U);
  EXPECT_THAT(dialogs.messages,
              Each(error_box("You must enter a value between 0 and 127 !", "Error")));
  EXPECT_EQ(entry(1, 1), "643C99");
  EXPECT_FALSE(flags.modified);
}

TEST_F(BlockToolsTest, APercentageIsRoundedDownAndHeldAt127) {
  write(1, 1, "643C99");
  write(1, 2, "333C99");
  write(1, 3, "73C99");
  select_track();
  answer("150");
  tools.velopercent();
  EXPECT_EQ(entry(1, 1), "7F3C99");
  EXPECT_EQ(entry(1, 2), "4C3C99");
  EXPECT_EQ(entry(1, 3), "A3C99");
  EXPECT_EQ(cell(2, 1).text_colour, (Colour{152, 206, 104}));
  EXPECT_TRUE(flags.modified);
}

TEST_F(BlockToolsTest, Percent0GivesVelocity0AndLeavesStopsAndEmptyCells) {
  write(1, 1, "643C99");
  write(1, 2, "stop");
  select_track();
  answer("0");
  tools.velopercent();
  EXPECT_EQ(entry(1, 1), "03C99");
  EXPECT_EQ(cell(1, 1).text_colour, (Colour{0, 2, 255}));
  EXPECT_EQ(entry(1, 2), "stop");
  EXPECT_EQ(entry(1, 3), "");
  EXPECT_EQ(cell(2, 1).text, "stop");
}

TEST_F(BlockToolsTest, APercentageOutside0To400IsRefused) {
  for (const std::string text : {"401", "-1", "400.6"}) {
    answer(text);
    tools.velopercent();
  }
  EXPECT_EQ(dialogs.messages.size(), 3U);
  EXPECT_THAT(dialogs.messages,
              Each(error_box("You must enter a value between 0 and 400 !", "Error")));
}

TEST_F(BlockToolsTest, Velocity80At400PercentWorks) {
  write(1, 1, "503C99");
  answer("400");
  tools.velopercent();
  EXPECT_EQ(entry(1, 1), "7F3C99");
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(BlockToolsTest, AnOverflowEndsTheWorkWhereItStands) {
  write(1, 1, "203C99");
  write(1, 2, "643C99");
  write(1, 3, "203C99");
  write(2, 1, "203C99");
  select_track();
  answer("400");
  tools.velopercent();
  EXPECT_THAT(dialogs.messages, ElementsAre(error_box("Overflow", "Error")));
  EXPECT_EQ(entry(1, 1), "7F3C99");
  EXPECT_EQ(entry(1, 2), "643C99");
  EXPECT_EQ(entry(1, 3), "203C99");
  EXPECT_EQ(entry(2, 1), "203C99");
  EXPECT_TRUE(flags.modified);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(BlockToolsTest, TransposingMovesNoteAndNameAndKeepsVelocityStatusAndColour) {
  write(1, 1, "643C99");
  write(1, 2, "C3C90");
  select_track();
  answer("13");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "644999");
  EXPECT_EQ(cell(1, 1).text, "C#6");
  EXPECT_EQ(cell(1, 1).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(entry(1, 2), "C4990");
  EXPECT_EQ(cell(2, 1).text, "C#6");
  EXPECT_TRUE(flags.modified);
}

TEST_F(BlockToolsTest, EachNoteNameHasItsPadding) {
  for (int row = 1; row <= 12; ++row) write(1, row, note_text(100, 59 + row, 9));
  select_track();
  answer("0");
  tools.transproc();
  EXPECT_THAT(texts(1, 1, 12), ElementsAre("C  5", "C#5", "D  5", "D#5", "E  5", "F  5", "F#5",
                                           "G  5", "G#5", "A  5", "A#5", "B  5"));
}

TEST_F(BlockToolsTest, TransposingBelowTheLowestNoteGives16) {
  write(1, 1, "642099");
  answer("-24");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "641099");
  EXPECT_EQ(cell(1, 1).text, "E  1");
}

TEST_F(BlockToolsTest, TransposingAboveTheHighestNoteGives127InOctave0) {
  write(1, 1, "647899");
  answer("12");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "647F99");
  EXPECT_EQ(cell(1, 1).text, "G  0");
}

TEST_F(BlockToolsTest, ALevelWithAFractionIsRoundedDown) {
  write(1, 1, "643C99");
  answer("-1.5");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "643A99");
  answer("1.9");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "643B99");
}

TEST_F(BlockToolsTest, AnyLevelIsAccepted) {
  write(1, 1, "643C99");
  answer("1e999");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "647F99");
  answer("-99999999999");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "641099");
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(BlockToolsTest, StopsAndEmptyCellsAreNotTransposed) {
  write(1, 1, "stop");
  select_track();
  answer("1");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "stop");
  EXPECT_EQ(cell(1, 1).text, "stop");
  EXPECT_EQ(entry(1, 2), "");
  EXPECT_FALSE(flags.modified);
}

TEST_F(BlockToolsTest, EntriesCutShortInAFileDoNoHarm) {
  write(1, 1, "7");
  write(1, 2, "C99");
  select_track();
  answer("5");
  tools.velovalue();
  answer("50");
  tools.velopercent();
  answer("1");
  tools.transproc();
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(BlockToolsTest, CursorAndSelectionStayWhereTheUserLeftThem) {
  write(1, 1, "643C99");
  song.tracks.select({9, 6}, {1, 1});
  for (const std::string text : {"10", "90", "3"}) {
    answer(text);
    if (text == "10") tools.velovalue();
    if (text == "90") tools.velopercent();
    if (text == "3") tools.transproc();
    EXPECT_EQ(song.tracks.cursor(), (CellPosition{9, 6}));
    EXPECT_EQ(song.tracks.selection_end(), (CellPosition{1, 1}));
  }
}

TEST_F(BlockToolsTest, EachToolRedrawsTheBlockOnce) {
  for (int row = 2; row <= 16; ++row) write(3, row, "643C99");
  select_track();
  const RecordingGridObserver observer(song.tracks);
  answer("10");
  tools.velovalue();
  answer("200");
  tools.velopercent();
  answer("1");
  tools.transproc();
  EXPECT_THAT(observer.regions, ElementsAre(CellRegion{2, 3, 16, 3}, CellRegion{2, 3, 16, 3},
                                            CellRegion{2, 3, 16, 3}));
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(BlockToolsTest, AWholeSongsTrackIsTransposed) {
  resize(3000);
  for (int column = 1; column <= 8; ++column) {
    for (int row = 1; row <= 3000; ++row) write(column, row, "643C99");
  }
  song.tracks.select({1, 1}, {3000, 8});
  answer("-12");
  tools.transproc();
  EXPECT_EQ(entry(1, 1), "643099");
  EXPECT_EQ(entry(8, 3000), "643099");
  EXPECT_EQ(cell(3000, 8).text, "C  4");
}

}  // namespace
}  // namespace lunavox::test

#include "files/song_file.h"
#include "tests/support/song_files.h"

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::full_song;
using test::Lines;
using test::two_line_song;

using SongFaults = test::SongFiles;

TEST_F(SongFaults, AFileWithFewerTracksIsReadForAllTracksOfTheSong) {
  open(full_song());
  const Song before = bench.song;
  // The second track's bank is taken from the first line of the settings, and so on to the end.
  EXPECT_EQ(error_of_opening(two_line_song()), RuntimeError::kInputPastEndOfFile);
  EXPECT_EQ(bench.song.track_count, 2);
  EXPECT_EQ(bench.song.bookmarks, before.bookmarks);
}

TEST_F(SongFaults, AMissingFileIsNotFound) {
  bench.file.current_name = folder.file("nowhere.lvx");
  try {
    bench.file.procopen();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::kFileNotFound);
    EXPECT_EQ(error.what(), "File not found: " + folder.file("nowhere.lvx"));
  }
}

TEST_F(SongFaults, AFaultPutsTheSongBackAsItWas) {
  const std::string before = saved();
  bench.flags.modified = true;
  bench.song.tracks.set_cursor(2, 7);
  Lines lines = full_song();
  for (std::size_t length = 1; length < lines.size(); ++length) {
    const Lines cut(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(length));
    ASSERT_EQ(error_of_opening(cut), RuntimeError::kInputPastEndOfFile) << length << " lines";
    ASSERT_TRUE(bench.flags.modified);
    ASSERT_FALSE(bench.flags.song_loading);
    ASSERT_FALSE(bench.progress.visible);
    ASSERT_TRUE(bench.song.tracks.redraw());
    ASSERT_EQ(bench.song.tracks.cursor(), (CellPosition{2, 7}));
    ASSERT_EQ(bench.length.timemin.get(), " 0:00");
  }
  EXPECT_EQ(saved(), before);
}

TEST_F(SongFaults, TheEmptyFileEndsTooEarly) {
  EXPECT_EQ(error_of_opening({}), RuntimeError::kInputPastEndOfFile);
}

TEST_F(SongFaults, MoreThanSixteenTracksBreakTheBound) {
  Lines lines = two_line_song();
  lines[1] = "17";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
  lines[1] = "40000";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow);
  EXPECT_EQ(bench.song.track_count, 1);
}

TEST_F(SongFaults, ARowCountThatNoSongHasBreaksTheBound) {
  for (const char* rows : {"1", "0", "-5", "3002", "2000000000"}) {
    Lines lines = two_line_song();
    lines[2] = rows;
    EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange) << rows;
  }
  Lines lines = two_line_song();
  lines[2] = "1e30";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow);
}

TEST_F(SongFaults, NineUsedNoteColumnsBreakTheBound) {
  Lines lines = two_line_song();
  lines[42] = "9";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

TEST_F(SongFaults, AShownEffectThatIsNoneBreaksTheBound) {
  Lines lines = two_line_song();
  lines[lines.size() - 4] = "12";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

TEST_F(SongFaults, NoLinesPerBeatDivideByZero) {
  Lines lines = two_line_song();
  lines[6] = "none";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kDivisionByZero);
  EXPECT_EQ(bench.song.number.text(), "4");
}

TEST_F(SongFaults, ACommaInATextShiftsWhatFollows) {
  Lines lines = full_song();
  lines[8] = "verse, the second";
  // One field too many: the rest of the file is read a line out of step, up to curves' values that
  // stand where the shown effects should.
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

}  // namespace
}  // namespace lunavox

#include "files/song_writer.h"

#include "tests/support/song_files.h"

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::full_song;
using test::joined;
using test::two_line_song;
using ::testing::ElementsAre;

using SongWriting = test::SongFiles;

TEST_F(SongWriting, ANewSongIsSavedByteForByteAsWrittenByHand) {
  EXPECT_EQ(saved(), joined(two_line_song()));
}

TEST_F(SongWriting, ASongWithNoBookmarksWritesZero) {
  const std::string bytes = saved();
  EXPECT_EQ(bytes.substr(0, 37), "2.0\r\n 1 \r\n 3 \r\n1\r\n120\r\n2\r\n4\r\n 0 \r\n 0 ");
}

TEST_F(SongWriting, ASongWrittenReadAndWrittenAgainIsTheSameFile) {
  open(full_song());
  EXPECT_EQ(saved(), joined(full_song()));
}

TEST_F(SongWriting, SavingShowsItsProgressAndClearsModified) {
  bench.flags.modified = true;
  saved();
  EXPECT_THAT(bench.progress.shown, ElementsAre(test::RecordedProgress::Shown{"saving...", 8, 7}));
  EXPECT_FALSE(bench.progress.visible);
  EXPECT_TRUE(bench.song.tracks.redraw());
  EXPECT_FALSE(bench.flags.modified);
}

TEST_F(SongWriting, TheBarTakesItsStepsWhileTheBoxStandsAndTheGridDoesNotRedraw) {
  bench.progress.values.clear();
  bench.flags.modified = true;
  bench.progress.on_step = [this] {
    EXPECT_TRUE(bench.progress.visible);
    EXPECT_FALSE(bench.song.tracks.redraw());
    EXPECT_TRUE(bench.flags.modified) << "until the file is whole";
  };
  saved();
  EXPECT_THAT(bench.progress.values, ElementsAre(1, 2, 3, 4, 5, 6, 7));
}

TEST_F(SongWriting, AnUnusedTrackContributesNoNotes) {
  bench.tracks.addinstrutrack();
  bench.song.write_entry(2, 1, 2, "643C90");
  bench.file.current_name = folder.file("song.lvx");
  bench.file.procsave();
  // The used columns of both tracks, the second track's one column, the channels.
  EXPECT_NE(folder.read("song.lvx").find("\r\n 0 \r\n 1 \r\n\r\n643C90\r\n 9 \r\n 0 \r\n"),
            std::string::npos);
}

TEST_F(SongWriting, EmptyNoteCellsAreEmptyLinesAndReadBackEmpty) {
  bench.song.write_entry(1, 2, 2, "642499");
  const std::string bytes = saved();
  // Two used columns: the first has two empty lines, the second one.
  EXPECT_NE(bytes.find("\r\n 2 \r\n\r\n\r\n\r\n642499\r\n 9 \r\n"), std::string::npos);
  open_bytes(bytes);
  EXPECT_EQ(bench.song.notes.at(1, 1, 1), "");
  EXPECT_EQ(bench.song.notes.at(1, 2, 1), "");
  EXPECT_EQ(bench.song.notes.at(1, 2, 2), "642499");
}

TEST_F(SongWriting, TheCurrentNameStays) {
  saved();
  EXPECT_EQ(bench.file.current_name.get(), folder.file("saved.lvx"));
}

TEST_F(SongWriting, AnOldFileOfThatNameIsReplacedWhole) {
  folder.write("saved.lvx", std::string(10000, 'x'));
  EXPECT_EQ(saved(), joined(two_line_song()));
}

TEST_F(SongWriting, TextsAreWrittenExactlyAsHeld) {
  bench.song.bookmarks = std::vector<Bookmark>{{"verse, \"two\"", 2}};
  EXPECT_NE(saved().find("\r\n 1 \r\nverse, \"two\"\r\n 2 \r\n"), std::string::npos);
}

TEST_F(SongWriting, AFailedSaveKeepsTheOldFileAndTheModifiedMark) {
  bench.flags.modified = true;
  bench.file.current_name = folder.file("no folder/song.lvx");
  EXPECT_THROW(bench.file.procsave(), RuntimeError);
  EXPECT_TRUE(bench.flags.modified);
  EXPECT_FALSE(bench.progress.visible);
}

}  // namespace
}  // namespace lunavox

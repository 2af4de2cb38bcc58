#include "tests/support/song_files.h"
#include "window_bench.h"

#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_of;
using test::full_song;
using test::joined;
using test::Lines;
using test::two_line_song;
using test::WindowBench;

/// Songs that cannot be read, opened while the window shows another one.
struct SongFaultsWindowTest : testing::Test {
  SongFaultsWindowTest() {
    song.write_entry(2, 1, 5, "642490");
    song.show_entry(2, 1, 5);
  }

  std::optional<RuntimeError::Number> error_of_opening(const Lines& lines) {
    bench.editor.song_file.current_name = folder.write("damaged.lvx", joined(lines));
    return error_of([this] { bench.editor.song_file.procopen(); });
  }
  std::string shown(const char* label) { return bench.find<QLabel>(label).text().toStdString(); }

  test::TempFolder folder;
  WindowBench bench{2};
  Song& song = bench.editor.song;
};

TEST_F(SongFaultsWindowTest, AFileThatEndsEarlyLeavesTheSongAndWhatIsShownOfItAsTheyWere) {
  const Lines lines = full_song();
  for (const CellPosition cursor :
       {CellPosition{5, 10}, CellPosition{60, 18}, CellPosition{2, 1}}) {
    song.tracks.set_cursor(cursor.row, cursor.column);
    const Song before = song;
    const std::string line = shown("statusline");
    const std::string cell = shown("statuscell");
    for (std::size_t length = 1; length < lines.size(); ++length) {
      const Lines cut(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(length));
      ASSERT_EQ(error_of_opening(cut), RuntimeError::kInputPastEndOfFile) << length << " lines";
      ASSERT_TRUE(song == before) << length << " lines";
      ASSERT_FALSE(bench.editor.flags.song_loading);
      ASSERT_EQ(shown("statusline"), line);
      ASSERT_EQ(shown("statuscell"), cell);
    }
  }
}

TEST_F(SongFaultsWindowTest, ANumberThatNoFieldCanShowIsAnOverflow) {
  song.tracks.set_cursor(5, 10);
  const Song before = song;
  for (const std::size_t field : {3U, 4U, 5U, 6U}) {
    Lines lines = two_line_song();
    lines[field] = "1e30";
    EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow) << "line " << field + 1;
    EXPECT_TRUE(song == before) << "line " << field + 1;
  }
  EXPECT_EQ(bench.find<QLineEdit>("number").text().toStdString(), "4");
}

TEST_F(SongFaultsWindowTest, TheCursorsPlaceIsShownOfTheSongThatWasOpened) {
  bench.editor.song_file.current_name = folder.write("short.lvx", joined(full_song()));
  bench.editor.song_file.procopen();
  EXPECT_EQ(shown("statusline"), "Line 0 of 2   Beat 1");
  EXPECT_EQ(shown("statuscell"), "Track 1 #1: C3 velocity 100");
}

}  // namespace
}  // namespace lunavox

#include "tests/support/song_bench.h"
#include "tests/support/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

namespace fs = std::filesystem;
using test::SongBench;
using test::TempFolder;

const fs::path kExamples = LUNAVOX_EXAMPLES;

std::string bytes_of(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

class Examples : public ::testing::TestWithParam<const char*> {
 protected:
  Examples() {
    bench_.file.current_name = (kExamples / GetParam()).string();
    bench_.file.procopen();
  }

  SongBench bench_;
};

TEST_P(Examples, ComeOutOfASaveByteForByteTheSame) {
  const TempFolder folder;
  bench_.file.current_name = folder.file("again.lvx");
  bench_.file.procsave();
  EXPECT_TRUE(folder.read("again.lvx") == bytes_of(kExamples / GetParam()));
}

TEST_P(Examples, FitTheFieldsAndMarkLinesThatExist) {
  const Song& song = bench_.song;
  EXPECT_EQ(song.length.text(), std::to_string(song.last_row()));
  EXPECT_EQ(song.bpm.text(), std::to_string(song.bpm.value()));
  EXPECT_EQ(song.number.text(), std::to_string(song.number.value()));
  for (const Bookmark& bookmark : song.bookmarks.get()) {
    EXPECT_GE(bookmark.row, 1) << bookmark.name;
    EXPECT_LE(bookmark.row, song.last_row()) << bookmark.name;
  }
}

INSTANTIATE_TEST_SUITE_P(Songs, Examples,
                         ::testing::Values("first-steps.lvx", "mountain-king.lvx",
                                           "prelude-in-c.lvx", "two-jigs.lvx"));

}  // namespace
}  // namespace lunavox

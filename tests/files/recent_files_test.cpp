#include "files/recent_files.h"

#include "tests/support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::TempFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(RecentFiles, TheLatestSongComesFirstAndOnce) {
  const TempFolder folder;
  RecentFiles recent(folder.file("recent"));
  recent.add("/songs/a.lvx");
  recent.add("/songs/b.lvx");
  recent.add("/songs/x/../a.lvx");
  EXPECT_THAT(recent.names.get(), ElementsAre("/songs/a.lvx", "/songs/b.lvx"));
  EXPECT_EQ(recent.last_folder(), "/songs");
}

TEST(RecentFiles, EightAreKept) {
  const TempFolder folder;
  RecentFiles recent(folder.file("recent"));
  for (int i = 1; i <= 9; ++i) recent.add("/" + std::to_string(i));
  EXPECT_THAT(recent.names.get(), ElementsAre("/9", "/8", "/7", "/6", "/5", "/4", "/3", "/2"));
}

TEST(RecentFiles, TheLastFolderIsThatOfTheLatestFileOfAnyKind) {
  const TempFolder folder;
  RecentFiles recent(folder.file("recent"));
  EXPECT_EQ(recent.last_folder(), "");
  recent.add("/songs/a.lvx");
  EXPECT_EQ(recent.last_folder(), "/songs");
  recent.set_last_folder("/exports/a.mid");
  EXPECT_EQ(recent.last_folder(), "/exports");
  recent.add("/songs/a.lvx");
  EXPECT_EQ(recent.last_folder(), "/songs");
}

TEST(RecentFiles, AreThereAtTheNextStart) {
  const TempFolder folder;
  RecentFiles(folder.file("settings/recent")).add("/songs/a, b.lvx");
  RecentFiles next(folder.file("settings/recent"));
  next.load();
  EXPECT_THAT(next.names.get(), ElementsAre("/songs/a, b.lvx"));
  next.remove("/songs/a, b.lvx");
  RecentFiles last(folder.file("settings/recent"));
  last.load();
  EXPECT_THAT(last.names.get(), IsEmpty());
}

TEST(RecentFiles, AListThatCannotBeReadOrWrittenIsForgotten) {
  const TempFolder folder;
  folder.write("file", "");
  RecentFiles recent(folder.file("file/recent"));
  recent.load();
  EXPECT_THAT(recent.names.get(), IsEmpty());
  EXPECT_EQ(recent.last_folder(), "");
  recent.add("/a");
  EXPECT_THAT(recent.names.get(), ElementsAre("/a"));
}

}  // namespace
}  // namespace lunavox

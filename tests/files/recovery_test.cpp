#include "files/recovery.h"

#include "files/song_writer.h"
#include "tests/support/song_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lunavox {
namespace {

using test::SongBench;
using test::TempFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// An editor with its recovery file.
struct Desk {
  explicit Desk(const std::filesystem::path& folder)
      : recovery(bench.song, bench.flags, bench.file, clock, folder) {
    recovery.on_due([this] { ++due; });
  }

  /// Enters a note, as recording does: the store, the cell, then the flag.
  void edit(int row = 1) {
    bench.song.write_entry(1, 1, row, "642499");
    bench.song.show_entry(1, 1, row);
    bench.flags.modified = true;
  }
  void pass_after(std::uint32_t ms) {
    clock.advance(ms);
    recovery.pass(clock.timeGetTime());
    recovery.wait();
  }
  bool written() const { return std::filesystem::exists(recovery.file()); }

  SongBench bench{16};
  ManualClock clock{4'294'966'000U};  // wraps around soon
  int due = 0;
  RecoveryFile recovery;
};

class Recovery : public ::testing::Test {
 protected:
  TempFolder folder;
  std::filesystem::path state = folder.path() / "state";
};

TEST_F(Recovery, TheSongIsWrittenSomeSecondsAfterAChange) {
  Desk desk(state);
  EXPECT_EQ(desk.recovery.next_due(), std::nullopt);
  desk.edit();
  EXPECT_EQ(desk.due, 1);
  EXPECT_EQ(desk.recovery.next_due(), 4'294'966'000U + 3000U);
  desk.pass_after(2999);
  EXPECT_FALSE(desk.written());
  desk.pass_after(1);
  EXPECT_TRUE(desk.written());
  EXPECT_EQ(desk.recovery.next_due(), std::nullopt);
  EXPECT_EQ(desk.recovery.problem(), "");
}

TEST_F(Recovery, FurtherChangesDoNotPutTheWritingOff) {
  Desk desk(state);
  desk.edit();
  desk.clock.advance(2000);
  desk.edit(2);
  desk.pass_after(1000);
  EXPECT_TRUE(desk.written());
}

TEST_F(Recovery, EachChangeIsWrittenInItsTurn) {
  Desk desk(state);
  desk.edit();
  desk.pass_after(3000);
  std::filesystem::remove(desk.recovery.file());
  desk.pass_after(3000);
  EXPECT_FALSE(desk.written()) << "nothing has changed since";
  desk.edit(2);
  desk.pass_after(3000);
  EXPECT_TRUE(desk.written());
}

TEST_F(Recovery, FieldsBookmarksAndListsAreChangesToo) {
  Desk desk(state);
  desk.bench.flags.modified = true;
  desk.pass_after(3000);
  const auto expect_due = [&](const char* what) {
    EXPECT_NE(desk.recovery.next_due(), std::nullopt) << what;
    desk.pass_after(3000);
  };
  desk.bench.song.bpm.put("99");
  expect_due("bpm");
  desk.bench.song.bookmarks = std::vector<Bookmark>{{"verse", 1}};
  expect_due("bookmark");
  desk.bench.song.variation = 3;
  expect_due("variation");
  desk.bench.song.effects.set_text(2, 1, "yes");
  expect_due("active");
}

TEST_F(Recovery, WhatIsOnlyShownIsNoChange) {
  Desk desk(state);
  desk.bench.song.tracks.set_text(1, 9, " 127");
  desk.pass_after(5000);
  EXPECT_FALSE(desk.written());
  EXPECT_EQ(desk.due, 0);
}

TEST_F(Recovery, NothingIsWrittenWhileTheSongPlays) {
  Desk desk(state);
  desk.bench.flags.playing = true;
  desk.edit();
  EXPECT_EQ(desk.recovery.next_due(), std::nullopt);
  desk.pass_after(60000);
  EXPECT_FALSE(desk.written());
  desk.due = 0;
  desk.bench.flags.playing = false;
  EXPECT_EQ(desk.due, 1);
  desk.pass_after(0);
  EXPECT_TRUE(desk.written());
}

/// It may play for long.
TEST_F(Recovery, WhatHasChangedBeforeTheSongPlaysIsWrittenAsItBegins) {
  Desk desk(state);
  desk.edit();
  desk.clock.advance(100);
  desk.bench.flags.playing = true;
  desk.recovery.wait();
  EXPECT_TRUE(desk.written());
  desk.due = 0;
  desk.bench.flags.playing = false;
  EXPECT_EQ(desk.due, 0) << "nothing has changed since";
}

TEST_F(Recovery, SavingTheSongRemovesTheFile) {
  Desk desk(state);
  desk.edit();
  desk.pass_after(3000);
  desk.bench.file.current_name = folder.file("song.lvx");
  desk.bench.file.procsave();
  EXPECT_FALSE(desk.written());
  EXPECT_EQ(desk.recovery.next_due(), std::nullopt);
}

TEST_F(Recovery, AnEndInOrderLeavesNothing) {
  Desk desk(state);
  desk.edit();
  desk.pass_after(3000);
  desk.recovery.end();
  EXPECT_TRUE(std::filesystem::is_empty(state));
  desk.edit(2);
  desk.pass_after(3000);
  EXPECT_TRUE(std::filesystem::is_empty(state));
}

TEST_F(Recovery, ARunningEditorsFileIsNoOrphan) {
  Desk first(state);
  first.edit();
  first.pass_after(3000);
  Desk second(state);
  EXPECT_NE(first.recovery.file(), second.recovery.file());
  EXPECT_THAT(second.recovery.find_orphans(), IsEmpty());
  EXPECT_THAT(first.recovery.find_orphans(), IsEmpty());
}

TEST_F(Recovery, AnEditorThatIsGoneLeavesAnOrphan) {
  {
    Desk gone(state);
    gone.edit();
    gone.pass_after(3000);
  }
  Desk desk(state);
  const std::vector<OrphanedSong> orphans = desk.recovery.find_orphans();
  EXPECT_THAT(orphans, SizeIs(1));
  Desk third(state);
  EXPECT_THAT(third.recovery.find_orphans(), IsEmpty()) << "one editor at a time offers it";
}

TEST_F(Recovery, AKilledEditorsSongIsRestoredUnderItsNameAndUnsaved) {
  const std::string name = folder.file("my song, \"100%\".lvx");
  const pid_t child = ::fork();
  if (child == 0) {
    Desk killed(state);
    killed.bench.file.current_name = name;
    killed.bench.song.bookmarks = std::vector<Bookmark>{{"verse, two", 3}, {"\"x\" ", 4}};
    killed.edit(7);
    killed.pass_after(3000);
    ::_exit(0);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  Desk desk(state);
  desk.bench.dialogs.answers = {Answer::kYes};
  desk.recovery.offer_orphans(desk.bench.dialogs);
  EXPECT_EQ(desk.bench.song.notes.at(1, 1, 7), "642499");
  EXPECT_THAT(desk.bench.song.bookmarks.get(),
              ElementsAre(Bookmark{"verse, two", 3}, Bookmark{"'x' ", 4}));
  EXPECT_EQ(desk.bench.file.current_name.get(), name);
  EXPECT_TRUE(desk.bench.flags.modified);
  EXPECT_TRUE(desk.written()) << "it is kept anew before the orphan goes";
  EXPECT_THAT(desk.recovery.find_orphans(), IsEmpty());
}

TEST_F(Recovery, AnOrphanThatNobodyWantsIsDiscarded) {
  {
    Desk gone(state);
    gone.edit();
    gone.pass_after(3000);
  }
  Desk desk(state);
  desk.bench.dialogs.answers = {Answer::kNo};
  desk.recovery.offer_orphans(desk.bench.dialogs);
  EXPECT_THAT(desk.bench.dialogs.messages, SizeIs(1));
  EXPECT_EQ(desk.bench.song.notes.at(1, 1, 1), "");
  EXPECT_THAT(desk.recovery.find_orphans(), IsEmpty());
}

TEST_F(Recovery, CancelLeavesAnOrphanForTheNextStart) {
  {
    Desk gone(state);
    gone.edit();
    gone.pass_after(3000);
  }
  Desk desk(state);
  desk.recovery.offer_orphans(desk.bench.dialogs);
  EXPECT_THAT(desk.recovery.find_orphans(), SizeIs(1));
}

TEST_F(Recovery, OneSongIsRestoredAndTheOthersStay) {
  {
    Desk gone(state);
    gone.edit();
    gone.pass_after(3000);
  }
  {
    Desk gone(state);
    gone.edit(2);
    gone.pass_after(3000);
  }
  Desk desk(state);
  desk.bench.dialogs.answers = {Answer::kYes, Answer::kNo};
  desk.recovery.offer_orphans(desk.bench.dialogs);
  EXPECT_THAT(desk.bench.dialogs.messages, SizeIs(1));
  EXPECT_THAT(desk.recovery.find_orphans(), SizeIs(1));
}

TEST_F(Recovery, AnOrphanThatCannotBeReadIsSetAside) {
  std::filesystem::create_directories(state);
  folder.write("state/recovery-1-1.lvx", "2.0\r\n 1 \r\n");
  Desk desk(state);
  desk.bench.dialogs.answers = {Answer::kYes};
  desk.recovery.offer_orphans(desk.bench.dialogs);
  EXPECT_THAT(desk.bench.dialogs.messages, SizeIs(2));
  EXPECT_TRUE(folder.has("state/recovery-1-1.lvx.damaged"));
  EXPECT_THAT(desk.recovery.find_orphans(), IsEmpty());
  EXPECT_EQ(desk.bench.song.length.text(), "16");
}

TEST_F(Recovery, ARestoredSongOfOlderKindHasNoName) {
  Desk desk(state);
  folder.write("state/recovery-1-1.lvx", song_text(desk.bench.song));
  auto orphans = desk.recovery.find_orphans();
  ASSERT_THAT(orphans, SizeIs(1));
  EXPECT_TRUE(desk.recovery.restore(orphans[0]));
  EXPECT_EQ(desk.bench.file.current_name.get(), "");
}

TEST_F(Recovery, AnEndingProgramWritesAtOnce) {
  Desk desk(state);
  EXPECT_FALSE(desk.recovery.write_now()) << "nothing is unsaved";
  desk.edit();
  desk.bench.flags.playing = true;
  EXPECT_TRUE(desk.recovery.write_now());
  EXPECT_TRUE(desk.written());
}

TEST_F(Recovery, AStateFolderThatCannotBeMadeIsToldAndHoldsNothingUp) {
  folder.write("file", "");
  Desk desk(folder.path() / "file");
  desk.edit();
  desk.pass_after(3000);
  EXPECT_FALSE(desk.recovery.write_now());
  EXPECT_EQ(desk.recovery.problem(), "No file can be made in " + folder.file("file"));
  desk.recovery.end();
}

TEST_F(Recovery, AFailedWritingIsTold) {
  Desk desk(state);
  desk.edit();
  std::filesystem::remove_all(state);
  desk.pass_after(3000);
  EXPECT_EQ(desk.recovery.problem(), "Path/File access error: " + desk.recovery.file().string());
}

TEST_F(Recovery, AnEndingProgramThatCannotWriteSaysSo) {
  Desk desk(state);
  desk.edit();
  std::filesystem::remove_all(state);
  EXPECT_FALSE(desk.recovery.write_now());
  EXPECT_EQ(desk.recovery.problem(), "Path/File access error: " + desk.recovery.file().string());
}

}  // namespace
}  // namespace lunavox

#include "files/song_file.h"
#include "files/song_writer.h"
#include "tests/support/song_files.h"

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::append;
using test::full_song;
using test::joined;
using test::Lines;
using test::SongBench;
using test::two_line_song;
using ::testing::ElementsAre;

using SongVersions = test::SongFiles;

/// A file of version 1.1 with one track of two lines: no bank, ten curves, no XG lists.
Lines old_song(const std::string& version) {
  Lines lines = {version, "1", "3", "1", "120", "2", "4", "0"};
  append(lines, {"yes", "yes", "no", "no", "no", "no", "no", "no", "no", "no"});
  append(lines, {"standard 1", "100", "64", "1", "64", "40", "1", "1", "64", "64"});
  append(lines, {"no", "yes", "no", "no", "no", "no", "no", "no", "no", "no"});
  append(lines, {"1", "ignored", "ignored"});  // used columns, then lines without meaning
  append(lines, {"642499", "stop", "9"});
  for (int kind = 1; kind <= 10; ++kind) append(lines, {"5", "-1", "6", "-1"});
  append(lines, {"2"});
  return lines;
}

TEST_F(SongVersions, AVersionAboveTwoIsRefused) {
  const std::string before = song_text(bench.song);
  bench.song.tracks.set_cursor(2, 3);
  bench.flags.modified = true;
  open({"2.5", " 3 "});
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(Message{"This file has been created with Lunavox 0 Please download a "
                                  "more recent version of Lunavox at https://lunavox.example/",
                                  ""}));
  EXPECT_EQ(song_text(bench.song), before);
  EXPECT_EQ(bench.song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_EQ(bench.starteffects, 0);
  EXPECT_EQ(bench.file.current_name.get(), folder.file("song.lvx"));
}

TEST_F(SongVersions, TheRefusalShowsTheLoopIndexOfTheSongRoutines) {
  open(full_song());
  open({"2.01"});
  EXPECT_EQ(bench.dialogs.messages.at(0).text,
            "This file has been created with Lunavox 3 Please download a more recent version of "
            "Lunavox at https://lunavox.example/");
}

TEST_F(SongVersions, TheLoopIndexStandsPastTheLastTrackAfterASaveToo) {
  saved();
  open({"2.01"});
  EXPECT_THAT(bench.dialogs.messages.at(0).text,
              ::testing::StartsWith("This file has been created with Lunavox 2 Please"));
}

TEST_F(SongVersions, AVersionBelowOnePointOneIsRefused) {
  const Message refusal = {"Sorry incompatibility with Lunavox 1.0 alpha files !", ""};
  bench.song.tracks.set_cursor(2, 3);
  bench.flags.modified = true;
  open({"1.05"});
  EXPECT_EQ(bench.song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_FALSE(bench.flags.modified);
  open({"MThd"});
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(refusal, refusal));
}

class OldSong : public SongVersions, public ::testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Versions, OldSong, ::testing::Values("1.1", "1.15"));

TEST_P(OldSong, IsReadByTheOldRules) {
  open(old_song(GetParam()));
  const Song& song = bench.song;
  EXPECT_EQ(song.notes.at(1, 1, 1), "642499");
  EXPECT_EQ(song.notes.at(1, 1, 2), "stop");
  EXPECT_EQ(song.effects.text(11, 1), "no");
  EXPECT_EQ(song.effects.text(11, 2), "64");
  EXPECT_EQ(song.effects.text(11, 3), "no");
  EXPECT_TRUE(song.active.at(1)[2]);
  EXPECT_FALSE(song.active.at(1)[11]);
  EXPECT_EQ(song.values.at(1, 2, 1), 5);
  EXPECT_EQ(song.values.at(1, 2, 2), 6);
  EXPECT_EQ(song.values.at(1, 8, 2), 1);
  EXPECT_EQ(song.values.at(1, 9, 1), 40);
  EXPECT_EQ(song.values.at(1, 10, 2), 40);
  EXPECT_EQ(song.values.at(1, 11, 1), 0);
  EXPECT_EQ(song.key_attributes.at(1, 2, 1), 1);
  EXPECT_EQ(song.key_attributes.at(1, 2, 2), 0) << "old files mark keys on the first line only";
}

TEST_F(SongVersions, WhatOldFilesSayOfVariationAttackAndReleaseIsNotLookedAt) {
  Lines lines = old_song("1.1");
  const std::size_t curves = lines.size() - 41;
  for (const std::size_t kind : {7U, 8U, 9U}) lines[curves + 4 * kind] = "99999";
  open(lines);
  EXPECT_EQ(bench.song.values.at(1, kVariation, 1), 1);
  EXPECT_EQ(bench.song.values.at(1, kAttack, 1), 40);
  EXPECT_EQ(bench.song.values.at(1, kRelease, 1), 40);
  lines[curves + 4 * 6] = "99999";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow) << "Chorus is";
}

TEST_F(SongVersions, OldFilesHaveTheFirstXgEffectsAndNoBanks) {
  bench.song.reverb = 4;
  bench.song.chorus = 4;
  bench.song.variation = 4;
  bench.song.bank.at(1) = 7;
  open(old_song("1.15"));
  EXPECT_EQ(bench.song.reverb.get(), 0);
  EXPECT_EQ(bench.song.chorus.get(), 0);
  EXPECT_EQ(bench.song.variation.get(), 0);
  EXPECT_EQ(bench.song.bank.at(1), 0);
}

TEST_F(SongVersions, VersionsFromOnePointTwoLackTheBanksOnly) {
  for (const char* version : {"1.2", "1.9"}) {
    Lines lines = two_line_song();
    lines[0] = version;
    lines.erase(lines.begin() + 8);
    bench.song.bank.at(1) = 7;
    open(lines);
    EXPECT_EQ(bench.song.bank.at(1), 0);
    EXPECT_EQ(saved(), joined(two_line_song())) << "saving upgrades to version 2.0";
  }
}

TEST_F(SongVersions, OldFilesAreUpgradedBySaving) {
  open(old_song("1.1"));
  const std::string bytes = saved();
  EXPECT_EQ(bytes.substr(0, 5), "2.0\r\n");
  SongBench again(2);
  again.file.current_name = folder.file("saved.lvx");
  again.file.procopen();
  EXPECT_EQ(again.song.values, bench.song.values);
  EXPECT_EQ(again.song.notes, bench.song.notes);
}

}  // namespace
}  // namespace lunavox

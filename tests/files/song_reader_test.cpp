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

using SongReading = test::SongFiles;

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

TEST_F(SongReading, AnEmptyNoteColumnContributesNoLine) {
  open(full_song());
  EXPECT_EQ(bench.song.used_columns.at(1), 2);
  EXPECT_EQ(bench.song.used_columns.at(2), 1);
  EXPECT_EQ(bench.song.notes.at(1, 3, 1), "");
}

TEST_F(SongReading, OpeningAddsTheMissingTracks) {
  open(full_song());
  EXPECT_EQ(bench.song.track_count, 2);
  EXPECT_EQ(bench.song.tracks.columns(), 19);
  EXPECT_EQ(bench.song.effects.columns(), 7);
  EXPECT_EQ(bench.song.channels.columns(), 3);
  EXPECT_EQ(bench.song.channels.text(0, 2), "INTRUMENT TRACK  2");
  EXPECT_EQ(bench.song.tracks.text(0, 10), "# 1");
  EXPECT_EQ(bench.song.tracks.text(0, 18), "Effect");
  EXPECT_EQ(bench.song.effects.text(0, 4), "Active");
}

TEST_F(SongReading, OpeningTakesFieldsBanksChannelsAndLists) {
  open(full_song());
  EXPECT_EQ(bench.song.step.text(), "0");
  EXPECT_EQ(bench.song.bpm.text(), "96");
  EXPECT_EQ(bench.song.length.text(), "2");
  EXPECT_EQ(bench.song.number.text(), "3");
  EXPECT_EQ(bench.song.bank.at(2), 18);
  EXPECT_EQ(bench.song.channel.at(1), 9);
  EXPECT_EQ(bench.song.channel.at(2), 0);
  EXPECT_EQ(bench.song.shown_effect.at(2), 3);
  EXPECT_EQ(bench.song.reverb.get(), 8);
  EXPECT_EQ(bench.song.chorus.get(), -1);
  EXPECT_EQ(bench.song.variation.get(), 22);
  EXPECT_THAT(bench.song.bookmarks.get(), ElementsAre(Bookmark{"verse", 1}, Bookmark{"é", 2}));
  EXPECT_EQ(bench.song.effects.text(1, 5), "MelloGrP");
  EXPECT_TRUE(bench.song.active.at(2)[1]);
  EXPECT_FALSE(bench.song.active.at(2)[2]);
}

TEST_F(SongReading, OpeningShowsTheNotesInTheirVelocitysColour) {
  open(full_song());
  const CellGrid& tracks = bench.song.tracks;
  EXPECT_EQ(tracks.text(1, 1), "C  3");
  EXPECT_EQ(tracks.cell(1, 1).text_colour, (Colour{200, 110, 56}));
  EXPECT_EQ(tracks.text(2, 1), "stop");
  EXPECT_EQ(tracks.text(1, 2), "");
  EXPECT_EQ(tracks.text(2, 2), "D  3");
  EXPECT_EQ(tracks.text(1, 10), "A  16") << "a soft note reads as its entry's third and fourth";
}

TEST_F(SongReading, OpeningClearsTheCellsThatHoldNoEntry) {
  bench.song.write_entry(1, 5, 1, "642499");
  bench.song.show_entry(1, 5, 1);
  open(two_line_song());
  EXPECT_EQ(bench.song.tracks.text(1, 5), "");
  EXPECT_EQ(bench.song.notes.at(1, 5, 1), "");
}

TEST_F(SongReading, OpeningFillsTheEffectColumns) {
  Lines lines = two_line_song();
  lines[48] = " 100 ";  // Volume on the first line
  open(lines);
  const CellGrid& tracks = bench.song.tracks;
  EXPECT_EQ(tracks.text(1, 9), " 100");
  EXPECT_EQ(tracks.cell(1, 9).text_colour, kKeyValue);
  EXPECT_EQ(tracks.cell(1, 9).background, (Colour{240, 240, 240}));
  EXPECT_EQ(tracks.text(2, 9), " 127");
  EXPECT_EQ(tracks.cell(2, 9).text_colour, kBlack);
}

TEST_F(SongReading, OpeningNumbersTheLinesAndMarksTheBeats) {
  SongBench longer("64");
  longer.file.current_name = folder.file("long.lvx");
  longer.song.number.put("3");
  longer.file.procsave();
  bench.file.current_name = folder.file("long.lvx");
  bench.file.procopen();
  EXPECT_EQ(bench.song.tracks.rows(), 65);
  EXPECT_EQ(bench.song.tracks.text(64, 0), "3F");
  EXPECT_EQ(bench.song.tracks.cell(61, 0).background, kBeat);
  EXPECT_EQ(bench.song.tracks.cell(62, 0).background, kBlack);
  EXPECT_EQ(bench.length.timemin.get(), " 0:11");
}

TEST_F(SongReading, OpeningEndsWithTheVoicesSentAndTheCursorHome) {
  bench.flags.modified = true;
  bench.song.tracks.set_cursor(2, 4);
  bool loading = false;
  bench.file.set_starteffect([&] { loading = bench.flags.song_loading; });
  open(full_song());
  EXPECT_TRUE(loading) << "the flag is lowered after the voices are sent";
  EXPECT_FALSE(bench.flags.song_loading);
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_EQ(bench.song.tracks.cursor(), (CellPosition{1, 1}));
}

TEST_F(SongReading, OpeningShowsItsProgress) {
  open(full_song());
  EXPECT_THAT(bench.progress.shown,
              ElementsAre(test::RecordedProgress::Shown{"adding instrument track...", 2, 2},
                          test::RecordedProgress::Shown{"opening...", 8, 7},
                          test::RecordedProgress::Shown{"numeroting lines...", 3, 2},
                          test::RecordedProgress::Shown{"preparing beats...", 3, 0},
                          test::RecordedProgress::Shown{"showing effect... track  2", 2, 2}));
  EXPECT_FALSE(bench.progress.visible);
  EXPECT_TRUE(bench.song.tracks.redraw());
}

TEST_F(SongReading, TheBarTakesItsStepsGroupByGroup) {
  bench.progress.values.clear();
  open(full_song());
  // Track 2 is added; opening itself; the lines are numbered; both curves are shown.
  EXPECT_THAT(bench.progress.values, ElementsAre(2, 2, 3, 5, 7, 2, 1, 2));
}

TEST_F(SongReading, TheLoadingFlagStandsAndTheGridDoesNotRedrawFromTheFirstTrackToTheLastCurve) {
  bench.progress.on_step = [this] {
    EXPECT_TRUE(bench.flags.song_loading);
    EXPECT_TRUE(bench.progress.visible);
    EXPECT_FALSE(bench.song.tracks.redraw());
  };
  open(full_song());
  EXPECT_FALSE(bench.flags.song_loading);
}

TEST_F(SongReading, MissingTracksAreAddedToAGridOfThreeRows) {
  SongBench longer("64");
  std::vector<int> rows;
  longer.progress.on_step = [&] { rows.push_back(longer.song.tracks.rows()); };
  longer.file.current_name = folder.write("song.lvx", joined(full_song()));
  longer.file.procopen();
  EXPECT_EQ(rows.at(0), 3);
}

TEST_F(SongReading, FilesOfBothExtensionsAreReadAlike) {
  bench.file.current_name = folder.write("song.lvo", joined(full_song()));
  EXPECT_TRUE(bench.file.procopen());
  EXPECT_EQ(saved(), joined(full_song()));
}

TEST_F(SongReading, ACurveIsActiveExactlyWhereItsTrimmedTextIsYes) {
  Lines lines = two_line_song();
  // Instrument to Brightness of the first "Active" column.
  lines[9] = "  yes  ";
  lines[10] = "\" yes \"";
  lines[11] = "Yes";
  lines[12] = "yes!";
  open(lines);
  EXPECT_TRUE(bench.song.active.at(1)[kInstrument]);
  EXPECT_TRUE(bench.song.active.at(1)[kVolume]);
  EXPECT_FALSE(bench.song.active.at(1)[kPan]);
  EXPECT_FALSE(bench.song.active.at(1)[kModulation]);
  EXPECT_EQ(bench.song.effects.text(kPan, 1), "Yes") << "the cell shows what the file says";
}

TEST_F(SongReading, OpeningDoesNotResetTheSongFirst) {
  open(full_song());
  open(full_song());
  EXPECT_EQ(bench.song.bookmarks.get().size(), 4U) << "the file's bookmarks join the song's";
}

TEST_F(SongReading, AFileWithFewerTracksIsReadForAllTracksOfTheSong) {
  open(full_song());
  const Song before = bench.song;
  // The second track's bank is taken from the first line of the settings, and so on to the end.
  EXPECT_EQ(error_of_opening(two_line_song()), RuntimeError::kInputPastEndOfFile);
  EXPECT_EQ(bench.song.track_count, 2);
  EXPECT_EQ(bench.song.bookmarks, before.bookmarks);
}

TEST_F(SongReading, AVersionAboveTwoIsRefused) {
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

TEST_F(SongReading, TheRefusalShowsTheLoopIndexOfTheSongRoutines) {
  open(full_song());
  open({"2.01"});
  EXPECT_EQ(bench.dialogs.messages.at(0).text,
            "This file has been created with Lunavox 3 Please download a more recent version of "
            "Lunavox at https://lunavox.example/");
}

TEST_F(SongReading, TheLoopIndexStandsPastTheLastTrackAfterASaveToo) {
  saved();
  open({"2.01"});
  EXPECT_THAT(bench.dialogs.messages.at(0).text,
              ::testing::StartsWith("This file has been created with Lunavox 2 Please"));
}

TEST_F(SongReading, AVersionBelowOnePointOneIsRefused) {
  const Message refusal = {"Sorry incompatibility with Lunavox 1.0 alpha files !", ""};
  bench.song.tracks.set_cursor(2, 3);
  bench.flags.modified = true;
  open({"1.05"});
  EXPECT_EQ(bench.song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_FALSE(bench.flags.modified);
  open({"MThd"});
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(refusal, refusal));
}

class OldSong : public SongReading, public ::testing::WithParamInterface<const char*> {};

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

TEST_F(SongReading, WhatOldFilesSayOfVariationAttackAndReleaseIsNotLookedAt) {
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

TEST_F(SongReading, OldFilesHaveTheFirstXgEffectsAndNoBanks) {
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

TEST_F(SongReading, VersionsFromOnePointTwoLackTheBanksOnly) {
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

TEST_F(SongReading, OldFilesAreUpgradedBySaving) {
  open(old_song("1.1"));
  const std::string bytes = saved();
  EXPECT_EQ(bytes.substr(0, 5), "2.0\r\n");
  SongBench again("2");
  again.file.current_name = folder.file("saved.lvx");
  again.file.procopen();
  EXPECT_EQ(again.song.values, bench.song.values);
  EXPECT_EQ(again.song.notes, bench.song.notes);
}

TEST_F(SongReading, AnIndexOutsideAnXgListSelectsNothing) {
  Lines lines = two_line_song();
  lines[lines.size() - 3] = "11";
  lines[lines.size() - 2] = "-5";
  lines[lines.size() - 1] = "23";
  open(lines);
  EXPECT_EQ(bench.song.reverb.get(), -1);
  EXPECT_EQ(bench.song.chorus.get(), -1);
  EXPECT_EQ(bench.song.variation.get(), -1);
}

TEST_F(SongReading, AMissingFileIsNotFound) {
  bench.file.current_name = folder.file("nowhere.lvx");
  try {
    bench.file.procopen();
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), RuntimeError::kFileNotFound);
    EXPECT_EQ(error.what(), "File not found: " + folder.file("nowhere.lvx"));
  }
}

TEST_F(SongReading, AFaultPutsTheSongBackAsItWas) {
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

TEST_F(SongReading, TheEmptyFileEndsTooEarly) {
  EXPECT_EQ(error_of_opening({}), RuntimeError::kInputPastEndOfFile);
}

TEST_F(SongReading, MoreThanSixteenTracksBreakTheBound) {
  Lines lines = two_line_song();
  lines[1] = "17";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
  lines[1] = "40000";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow);
  EXPECT_EQ(bench.song.track_count, 1);
}

TEST_F(SongReading, ARowCountThatNoSongHasBreaksTheBound) {
  for (const char* rows : {"1", "0", "-5", "3002", "2000000000"}) {
    Lines lines = two_line_song();
    lines[2] = rows;
    EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange) << rows;
  }
  Lines lines = two_line_song();
  lines[2] = "1e30";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kOverflow);
}

TEST_F(SongReading, NineUsedNoteColumnsBreakTheBound) {
  Lines lines = two_line_song();
  lines[42] = "9";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

TEST_F(SongReading, AShownEffectThatIsNoneBreaksTheBound) {
  Lines lines = two_line_song();
  lines[lines.size() - 4] = "12";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

TEST_F(SongReading, NoLinesPerBeatDivideByZero) {
  Lines lines = two_line_song();
  lines[6] = "none";
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kDivisionByZero);
  EXPECT_EQ(bench.song.number.text(), "4");
}

TEST_F(SongReading, ACommaInATextShiftsWhatFollows) {
  Lines lines = full_song();
  lines[8] = "verse, the second";
  // One field too many: the rest of the file is read a line out of step, up to curves' values that
  // stand where the shown effects should.
  EXPECT_EQ(error_of_opening(lines), RuntimeError::kSubscriptOutOfRange);
}

TEST_F(SongReading, OtherLineEndsReadTheSame) {
  for (const char* line_end : {"\n", "\r"}) {
    SongBench fresh("2");
    fresh.file.current_name = folder.write("other.lvx", joined(full_song(), line_end));
    fresh.file.procopen();
    fresh.file.current_name = folder.file("saved.lvx");
    fresh.file.procsave();
    EXPECT_EQ(folder.read("saved.lvx"), joined(full_song()));
  }
}

TEST_F(SongReading, WhatFollowsTheLastGroupIsNotRead) {
  Lines lines = two_line_song();
  append(lines, {"more", "and more"});
  open(lines);
  EXPECT_EQ(saved(), joined(two_line_song()));
}

}  // namespace
}  // namespace lunavox

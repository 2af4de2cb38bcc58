#include "files/song_file.h"
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
  SongBench longer(64);
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
  SongBench longer(64);
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

TEST_F(SongReading, OtherLineEndsReadTheSame) {
  for (const char* line_end : {"\n", "\r"}) {
    SongBench fresh(2);
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

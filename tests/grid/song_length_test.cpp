#include "grid/song_length.h"

#include "grid/runtime_error.h"
#include "grid/tracks.h"
#include "tests/support/error_of.h"
#include "tests/support/recorded_progress.h"
#include "tests/support/recording_grid_observer.h"
#include "tests/support/scripted_dialogs.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::RecordedProgress;
using test::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

class SongLengthTest : public testing::Test {
 protected:
  SongLengthTest() {
    Tracks tracks(song, flags, screen, dialogs, progress);
    tracks.adddrumtrack();
    tracks.addinstrutrack();
    song.length.put("16");
    length.lengthchange();
    flags.modified = false;
    progress.shown.clear();
    length.set_addfxs([this](int first_row) {
      addfxs.push_back(first_row);
      captions_before_addfxs = captions();
    });
  }

  std::vector<std::string> captions() const {
    std::vector<std::string> found;
    for (const auto& shown : progress.shown) found.push_back(shown.caption);
    return found;
  }
  /// The lines that carry the beat mark.
  std::vector<int> beat_lines() const {
    std::vector<int> lines;
    for (int row = 1; row < song.tracks.rows(); ++row) {
      const Colour background = song.tracks.cell(row, 0).background;
      if (background == Colour{240, 0, 0}) {
        lines.push_back(row - 1);
      } else {
        EXPECT_EQ(background, (Colour{0, 0, 0})) << "line " << row - 1;
      }
    }
    return lines;
  }
  std::vector<int> curve(int track, int effect) const {
    std::vector<int> values;
    for (int row = 1; row <= song.last_row(); ++row) {
      values.push_back(song.values.at(track, effect, row));
    }
    return values;
  }

  Song song;
  Flags flags;
  Screen screen{800, 600};
  ScriptedDialogs dialogs;
  RecordedProgress progress;
  SongLength length{song, flags, dialogs, progress};

  std::vector<int> addfxs;
  std::vector<std::string> captions_before_addfxs;
};

TEST_F(SongLengthTest, ASongOfTwoLinesHasThreeRowsNumberedZeroAndOne) {
  EXPECT_TRUE(length.length_validate("2"));
  EXPECT_EQ(song.tracks.rows(), 3);
  EXPECT_EQ(song.tracks.text(1, 0), "0");
  EXPECT_EQ(song.tracks.text(2, 0), "1");
}

TEST_F(SongLengthTest, ASongOf3000LinesEndsWithLineBB7) {
  EXPECT_TRUE(length.length_validate("3000"));
  EXPECT_EQ(song.tracks.rows(), 3001);
  EXPECT_EQ(song.tracks.text(3000, 0), "BB7");
}

TEST_F(SongLengthTest, LinesAreNumberedInUpperCaseHexadecimal) {
  length.length_validate("300");
  EXPECT_EQ(song.tracks.text(0, 0), "Note");
  EXPECT_EQ(song.tracks.text(10, 0), "9");
  EXPECT_EQ(song.tracks.text(11, 0), "A");
  EXPECT_EQ(song.tracks.text(16, 0), "F");
  EXPECT_EQ(song.tracks.text(17, 0), "10");
  EXPECT_EQ(song.tracks.text(256, 0), "FF");
  EXPECT_EQ(song.tracks.text(257, 0), "100");
}

TEST_F(SongLengthTest, LineNumbersAreLeftAligned) {
  for (int row = 1; row <= 16; ++row) song.tracks.set_alignment(row, 0, Alignment::kRight);
  length.numero();
  for (int row = 1; row <= 16; ++row) {
    EXPECT_EQ(song.tracks.cell(row, 0).alignment, Alignment::kLeft) << row;
  }
}

TEST_F(SongLengthTest, EveryThirdLineIsABeatAtThreeLinesPerBeat) {
  EXPECT_TRUE(length.number_change("3"));
  EXPECT_THAT(beat_lines(), ElementsAre(0, 3, 6, 9, 12, 15));
}

TEST_F(SongLengthTest, EveryLineIsABeatAtOneLinePerBeat) {
  EXPECT_TRUE(length.number_change("1"));
  EXPECT_EQ(beat_lines().size(), 16U);
}

TEST_F(SongLengthTest, EightLinesPerBeatMarkEveryEighthOf64Lines) {
  length.length_validate("64");
  EXPECT_TRUE(length.number_change("8"));
  EXPECT_THAT(beat_lines(), ElementsAre(0, 8, 16, 24, 32, 40, 48, 56));
}

TEST_F(SongLengthTest, ALastLineThatIsABeatIsMarked) {
  length.length_validate("17");
  EXPECT_THAT(beat_lines(), ElementsAre(0, 4, 8, 12, 16));
}

TEST_F(SongLengthTest, GrowingContinuesEveryCurveAtItsLastValue) {
  for (int e = 1; e <= 11; ++e) {
    song.values.at(1, e, 16) = static_cast<std::int16_t>(e);
    song.values.at(2, e, 16) = static_cast<std::int16_t>(100 + e);
  }
  EXPECT_TRUE(length.length_validate("32"));
  for (int row = 17; row <= 32; ++row) {
    for (int e = 1; e <= 11; ++e) {
      EXPECT_EQ(song.values.at(1, e, row), e) << row;
      EXPECT_EQ(song.values.at(2, e, row), 100 + e) << row;
    }
  }
  EXPECT_EQ(song.values.at(1, 2, 15), 127);
}

TEST_F(SongLengthTest, GrowingByOneLineContinuesTheCurve) {
  song.values.at(1, 2, 16) = 44;
  length.length_validate("17");
  EXPECT_EQ(song.values.at(1, 2, 17), 44);
}

TEST_F(SongLengthTest, NewLinesHoldNoNotesAndNoKeyAttributes) {
  song.write_entry(1, 1, 16, "643C99");
  song.key_attributes.at(1, 2, 16) = 1;
  length.length_validate("32");
  EXPECT_EQ(song.notes.at(1, 1, 16), "643C99");
  EXPECT_EQ(song.key_attributes.at(1, 2, 16), 1);
  for (int row = 17; row <= 32; ++row) {
    EXPECT_EQ(song.notes.at(1, 1, row), "");
    EXPECT_EQ(song.key_attributes.at(1, 2, row), 0);
    EXPECT_EQ(song.tracks.text(row, 1), "");
  }
}

TEST_F(SongLengthTest, ShorteningKeepsTheLinesThatRemain) {
  song.write_entry(1, 1, 8, "643C99");
  song.show_entry(1, 1, 8);
  song.values.at(1, 2, 8) = 44;
  length.length_validate("8");
  EXPECT_EQ(song.tracks.rows(), 9);
  EXPECT_EQ(song.notes.last_row(), 9);
  EXPECT_EQ(song.values.last_row(), 9);
  EXPECT_EQ(song.key_attributes.last_row(), 9);
  EXPECT_EQ(song.notes.at(1, 1, 8), "643C99");
  EXPECT_EQ(song.tracks.text(8, 1), "C  5");
  EXPECT_EQ(song.values.at(1, 2, 8), 44);
}

TEST_F(SongLengthTest, LinesBeyondAShortenedLengthAreGone) {
  for (int row = 1; row <= 16; ++row) {
    song.write_entry(1, 1, row, "643C99");
    song.show_entry(1, 1, row);
    song.values.at(1, 2, row) = static_cast<std::int16_t>(row);
    song.key_attributes.at(1, 2, row) = 1;
  }
  length.length_validate("8");
  length.length_validate("16");
  for (int row = 9; row <= 16; ++row) {
    EXPECT_EQ(song.notes.at(1, 1, row), "") << row;
    EXPECT_EQ(song.tracks.text(row, 1), "") << row;
    EXPECT_EQ(song.values.at(1, 2, row), 8) << row;
    EXPECT_EQ(song.key_attributes.at(1, 2, row), 0) << row;
  }
}

TEST_F(SongLengthTest, WhileASongIsBuiltEveryLineIsFilledFromTheFirst) {
  song.values.at(2, 3, 1) = 10;
  song.values.at(2, 3, 16) = 90;
  flags.song_building = true;
  song.length.put("18");
  length.lengthchange();
  EXPECT_EQ(curve(2, 3), std::vector<int>(18, 10));
  EXPECT_THAT(addfxs, ElementsAre(2));
}

TEST_F(SongLengthTest, WhileASongIsLoadedEveryLineIsFilledFromTheFirst) {
  song.values.at(2, 3, 1) = 10;
  song.values.at(2, 3, 16) = 90;
  flags.song_loading = true;
  song.length.put("8");
  length.lengthchange();
  EXPECT_EQ(curve(2, 3), std::vector<int>(8, 10));
  EXPECT_THAT(addfxs, ElementsAre(2));
}

TEST_F(SongLengthTest, TracksBeyondTheTrackCountAreNotFilled) {
  song.values.at(3, 2, 16) = 55;
  length.length_validate("18");
  EXPECT_EQ(song.values.at(3, 2, 17), 0);
}

TEST_F(SongLengthTest, ALengthChangeNumbersMarksAndThenRedrawsTheEffectColumns) {
  length.length_validate("32");
  EXPECT_THAT(captions_before_addfxs,
              ElementsAre("enlarging effects...", "numeroting lines...", "preparing beats..."));
  EXPECT_THAT(addfxs, ElementsAre(17));
}

TEST_F(SongLengthTest, AShorterSongHasNoNewEffectRowsToRedraw) {
  length.length_validate("8");
  ASSERT_EQ(addfxs.size(), 1U);
  EXPECT_GT(addfxs[0], song.last_row());
}

TEST_F(SongLengthTest, ALengthChangeShowsItsProgress) {
  length.length_validate("32");
  ASSERT_EQ(progress.shown.size(), 3U);
  EXPECT_EQ(progress.shown[0], (RecordedProgress::Shown{"enlarging effects...", 2, 2}));
  EXPECT_EQ(progress.shown[1], (RecordedProgress::Shown{"numeroting lines...", 33, 32}));
  EXPECT_EQ(progress.shown[2].caption, "preparing beats...");
  EXPECT_FALSE(progress.visible);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST_F(SongLengthTest, NumberingAndMarkingAreReportedToTheGridsObserversOnceEach) {
  for (int row = 1; row <= 16; ++row) song.tracks.set_cell(row, 0, {});
  const test::RecordingGridObserver seen(song.tracks);
  length.numero();
  EXPECT_THAT(seen.calls, ElementsAre("cells"));
  EXPECT_EQ(seen.regions.back(), (CellRegion{1, 0, 16, 0}));
  length.numberchange();
  EXPECT_THAT(seen.calls, ElementsAre("cells", "cells"));
}

TEST_F(SongLengthTest, WorksWithoutTheRedrawingOfEffectColumns) {
  length.set_addfxs(nullptr);
  EXPECT_TRUE(length.length_validate("20"));
  EXPECT_EQ(song.last_row(), 20);
}

TEST_F(SongLengthTest, BpmTakesThirtyToThreeHundred) {
  EXPECT_FALSE(length.bpm_change("301"));
  EXPECT_FALSE(length.bpm_change("29"));
  EXPECT_THAT(dialogs.messages, ElementsAre(error_box("Invalid value (30-300)"),
                                            error_box("Invalid value (30-300)")));
  EXPECT_EQ(song.bpm.text(), "120");
  EXPECT_TRUE(length.bpm_change("300"));
  EXPECT_TRUE(length.bpm_change("30"));
  EXPECT_EQ(song.bpm.text(), "30");
}

TEST_F(SongLengthTest, ABadEntryShowsItsMessageAndChangesNothing) {
  length.calcultime();
  const Song before = song;
  EXPECT_FALSE(length.bpm_change("x"));
  EXPECT_FALSE(length.length_validate("1"));
  EXPECT_FALSE(length.length_validate("3001"));
  EXPECT_FALSE(length.number_change("9"));
  EXPECT_FALSE(length.step_change("17"));
  EXPECT_FALSE(length.strength_change("128"));
  EXPECT_THAT(dialogs.messages,
              ElementsAre(error_box("Invalid value (30-300)"), error_box("Invalid value (2-3000)"),
                          error_box("Invalid value (2-3000)"), error_box("Invalid value (1-8)"),
                          error_box("Invalid value (0-16)"), error_box("Invalid value (1-127)")));
  EXPECT_EQ(song, before);
  EXPECT_FALSE(flags.modified);
  EXPECT_THAT(progress.shown, IsEmpty());
  EXPECT_THAT(addfxs, IsEmpty());
  EXPECT_EQ(length.timemin.get(), " 0:02");
}

TEST_F(SongLengthTest, TempoLengthAndLinesPerBeatAreEdits) {
  EXPECT_TRUE(length.bpm_change("90"));
  EXPECT_TRUE(flags.modified);
  flags.modified = false;
  EXPECT_TRUE(length.length_validate("20"));
  EXPECT_TRUE(flags.modified);
  flags.modified = false;
  EXPECT_TRUE(length.number_change("2"));
  EXPECT_TRUE(flags.modified);
}

TEST_F(SongLengthTest, StepAndStrengthAreNotPartOfTheSong) {
  EXPECT_TRUE(length.step_change("4"));
  EXPECT_TRUE(length.strength_change("100"));
  EXPECT_EQ(song.step.text(), "4");
  EXPECT_EQ(song.strength.text(), "100");
  EXPECT_FALSE(flags.modified);
}

TEST_F(SongLengthTest, LeavingAFieldAsItWasIsNoEdit) {
  EXPECT_TRUE(length.bpm_change("120"));
  EXPECT_TRUE(length.length_validate("16"));
  EXPECT_TRUE(length.number_change("4"));
  EXPECT_FALSE(flags.modified);
}

TEST_F(SongLengthTest, TheDurationFollowsTempoLengthAndLinesPerBeat) {
  length.length_validate("64");
  EXPECT_EQ(length.timemin.get(), " 0:08");
  length.bpm_change("60");
  EXPECT_EQ(length.timemin.get(), " 0:16");
  length.number_change("1");
  EXPECT_EQ(length.timemin.get(), " 1:04");
  length.bpm_change("30");
  length.length_validate("3000");
  EXPECT_EQ(length.timemin.get(), " 100:00");
}

TEST_F(SongLengthTest, LinesPerBeatOfZeroFromADamagedFileDivideByZero) {
  song.number.put("none");
  for (const auto& procedure : {&SongLength::calcultime, &SongLength::numberchange}) {
    EXPECT_EQ(test::error_of([&] { (length.*procedure)(); }), RuntimeError::kDivisionByZero);
  }
  EXPECT_FALSE(progress.visible);
  EXPECT_TRUE(song.tracks.redraw());
}

TEST(DurationText, HasMinutesWithALeadingBlankAndTwoDigitsOfSeconds) {
  EXPECT_EQ(duration_text(64, 4, 120), " 0:08");
  EXPECT_EQ(duration_text(3000, 1, 30), " 100:00");
  EXPECT_EQ(duration_text(2, 8, 300), " 0:00");
  EXPECT_EQ(duration_text(61, 1, 60), " 1:01");
}

TEST(DurationText, SecondsAreRoundedHalfToEven) {
  EXPECT_EQ(duration_text(5, 2, 60), " 0:02");  // 2.5 s
  EXPECT_EQ(duration_text(7, 2, 60), " 0:04");  // 3.5 s
  EXPECT_EQ(duration_text(1, 2, 60), " 0:00");  // 0.5 s
}

TEST(DurationText, SecondsThatRoundUpToAMinuteLeaveTheMinutesAsTheyAre) {
  EXPECT_EQ(duration_text(479, 8, 60), " 0:00");  // 59.875 s
  EXPECT_EQ(duration_text(959, 8, 60), " 1:00");  // 119.875 s
  EXPECT_EQ(duration_text(475, 8, 60), " 0:59");  // 59.375 s
  EXPECT_EQ(duration_text(119, 2, 60), " 0:00");  // 59.5 s, to the even 60
}

TEST(DurationText, ATempoOfZeroDividesByZero) {
  EXPECT_THROW(duration_text(64, 4, 0), RuntimeError);
  EXPECT_THROW(duration_text(64, 0, 120), RuntimeError);
}

TEST(LinePeriod, IsInWholeMilliseconds) {
  EXPECT_EQ(line_period_ms(120, 4), 125);
  EXPECT_EQ(line_period_ms(300, 8), 25);
  EXPECT_EQ(line_period_ms(30, 1), 2000);
  EXPECT_EQ(line_period_ms(130, 4), 115);  // 115.38
  EXPECT_EQ(line_period_ms(96, 2), 312);   // 312.5, to the even neighbour
  EXPECT_THROW(line_period_ms(120, 0), RuntimeError);
  EXPECT_THROW(line_period_ms(0, 4), RuntimeError);
}

}  // namespace
}  // namespace lunavox

#include "midi/play_loop.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;
using test::Studio;

// One line is 125 ms; the first sounds 126 ms after the start, each further one 125 ms later.

class PlayLoopTest : public testing::Test {
 protected:
  void note(int track, int column, int row, const std::string& entry) {
    studio.song.write_entry(track, column, row, entry);
  }

  void activate(int track, int effect, bool on = true) {
    studio.song.active.at(track)[static_cast<std::size_t>(effect)] = on;
  }

  /// Plays from the cursor and runs until the first line has sounded.
  Messages first_line() {
    studio.play_loop.start();
    studio.run(126);
    return studio.sent();
  }

  Messages next_line() {
    studio.run(125);
    return studio.sent();
  }

  Studio studio;
};

TEST_F(PlayLoopTest, StartingSetsPlayingAndMakesTheLoopCurrent) {
  studio.play_loop.start();
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_TRUE(studio.current.is(studio.play_loop));
  EXPECT_EQ(studio.play_loop.next_due(), 1126U);
}

TEST_F(PlayLoopTest, ALineSoundsWhenItsPeriodIsOver) {
  note(2, 1, 1, "643C90");
  studio.play_loop.start();
  studio.run(125);
  EXPECT_EQ(studio.sent(), Messages{});
  EXPECT_EQ(studio.row(), 1);
  studio.run(1);
  EXPECT_EQ(studio.sent(), (Messages{0, 0x643C90}));
  EXPECT_EQ(studio.row(), 2);
}

TEST_F(PlayLoopTest, ThePeriodIsRoundedHalfToEven) {
  studio.song.bpm.put("130");  // 115.38 ms
  studio.play_loop.start();
  EXPECT_EQ(studio.play_loop.next_due(), 1116U);
  studio.song.bpm.put("300");
  studio.song.number.put("8");  // 25 ms
  studio.play_loop.start();
  EXPECT_EQ(studio.play_loop.next_due(), 1026U);
  studio.song.bpm.put("32");
  studio.song.number.put("6");  // 312.5 ms
  studio.play_loop.start();
  EXPECT_EQ(studio.play_loop.next_due(), 1313U);
}

TEST_F(PlayLoopTest, TheTempoIsReadAtTheStart) {
  studio.play_loop.start();
  studio.song.bpm.put("60");
  studio.run(126 + 125);
  EXPECT_EQ(studio.row(), 3);
}

TEST_F(PlayLoopTest, ALatePassIsCaughtUpLineByLine) {
  studio.play_loop.start();
  studio.clock.advance(501);  // four lines late
  studio.pass();
  EXPECT_EQ(studio.row(), 2);
  for (int i = 0; i < 5; ++i) studio.pass();
  EXPECT_EQ(studio.row(), 5);
  EXPECT_EQ(studio.play_loop.next_due(), 1626U);
}

TEST_F(PlayLoopTest, PlaybackRunsOnWhereTheClockWrapsAround) {
  studio.clock.set(0xFFFFFFFF - 60);
  note(2, 1, 1, "643C90");
  EXPECT_EQ(first_line(), (Messages{0, 0x643C90}));
}

TEST_F(PlayLoopTest, EveryActiveCurveIsSentOnEveryLine) {
  for (int effect = kVolume; effect <= kPitch; ++effect) {
    activate(2, effect);
    studio.song.values.at(2, effect, 1) = static_cast<std::int16_t>(effect);
    studio.song.values.at(2, effect, 2) = static_cast<std::int16_t>(effect);
  }
  const Messages line = {0x0207B0, 0x030AB0, 0x0401B0, 0x054AB0, 0x065BB0,
                         0x075DB0, 0x085EB0, 0x0949B0, 0x0A48B0, 0x0B00E0};
  EXPECT_EQ(first_line(), line);
  EXPECT_EQ(next_line(), line);
}

TEST_F(PlayLoopTest, OnlyActiveCurvesAreSentOnTheTracksChannel) {
  activate(1, kPan);
  activate(2, kVolume);
  studio.song.values.at(1, kPan, 1) = 0;
  studio.song.values.at(2, kVolume, 1) = 100;
  EXPECT_EQ(first_line(), (Messages{0x0AB9, 0x6407B0}));
}

TEST_F(PlayLoopTest, EffectsComeBeforeTheNotesOfTheirTrackAndTracksInOrder) {
  activate(1, kVolume);
  activate(2, kVolume);
  note(1, 8, 1, "402699");
  note(1, 2, 1, "402499");
  note(2, 1, 1, "643C90");
  EXPECT_EQ(first_line(), (Messages{0x7F07B9, 0, 0x402499, 0, 0x402699, 0x7F07B0, 0, 0x643C90}));
}

TEST_F(PlayLoopTest, ANoteCutsTheOneBeforeItInItsColumn) {
  note(2, 1, 1, "643C90");
  note(2, 1, 2, "504090");
  note(2, 2, 2, "504390");
  EXPECT_EQ(first_line(), (Messages{0, 0x643C90}));
  EXPECT_EQ(next_line(), (Messages{0x3C90, 0x504090, 0, 0x504390}));
}

TEST_F(PlayLoopTest, StopEndsTheNoteThatSoundsInItsColumnOnce) {
  note(2, 1, 1, "643C90");
  note(2, 1, 2, "stop");
  note(2, 1, 3, "stop");
  EXPECT_EQ(first_line(), (Messages{0, 0x643C90}));
  EXPECT_EQ(next_line(), (Messages{0x3C90}));
  EXPECT_EQ(next_line(), (Messages{0}));
}

TEST_F(PlayLoopTest, StopWithNothingSoundingSendsTheMessage0) {
  note(2, 5, 1, "stop");
  EXPECT_EQ(first_line(), (Messages{0}));
}

TEST_F(PlayLoopTest, EmptyCellsAndCellsThatAreNoNumberSendNothing) {
  note(2, 1, 1, "");
  note(2, 2, 1, "xyz");
  note(2, 3, 1, "0");
  EXPECT_EQ(first_line(), Messages{});
}

TEST_F(PlayLoopTest, ATrackWhoseInstrumentIsOffIsSilentAndItsNotesKeepSounding) {
  note(2, 1, 1, "643C90");
  note(2, 1, 2, "stop");
  note(2, 2, 2, "504090");
  activate(2, kVolume);
  EXPECT_EQ(first_line(), (Messages{0x7F07B0, 0, 0x643C90}));
  activate(2, kInstrument, false);
  EXPECT_EQ(next_line(), Messages{});
  studio.transport.playnotes_mouseup();
  EXPECT_EQ(studio.sent()[16], 0x3C90U);  // the reset's entry of track 2, column 1
}

TEST_F(PlayLoopTest, TheEndOfTheSongStopsResetsAndReturnsToTheInputLoopOnce) {
  int listens = 0;
  studio.current.on_change([&] { listens += studio.current.is(studio.listen) ? 1 : 0; });
  studio.song.tracks.set_row(16);
  note(2, 1, 16, "643C90");
  studio.pictures.playnotes = "stop1";
  studio.pictures.recordnotes = "stoprec1";
  const Messages sent = first_line();
  ASSERT_EQ(sent.size(), 2U + 120 + 165);
  EXPECT_EQ(sent[2 + 16], 0x3C90U);
  EXPECT_EQ(sent.back(), 0x4048BEU);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
  EXPECT_EQ(studio.pictures.recordnotes.get(), "stoprec1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  EXPECT_EQ(studio.row(), 16);
  EXPECT_EQ(studio.port.pending_note_off(2, 1), "");
  studio.run(500);
  EXPECT_EQ(listens, 1);
  EXPECT_EQ(studio.sent(), Messages{});
}

TEST_F(PlayLoopTest, MovingTheCursorMovesPlayback) {
  note(2, 1, 9, "643C90");
  first_line();
  studio.song.tracks.set_row(9);
  EXPECT_EQ(next_line(), (Messages{0, 0x643C90}));
  EXPECT_EQ(studio.row(), 10);
}

TEST_F(PlayLoopTest, EditsWhilePlayingAreHeard) {
  first_line();
  note(2, 1, 2, "643C90");
  EXPECT_EQ(next_line(), (Messages{0, 0x643C90}));
  note(2, 1, 3, "stop");
  EXPECT_EQ(next_line(), (Messages{0x3C90}));
}

TEST_F(PlayLoopTest, ASongThatIsShortenedUnderTheCursorEndsAtItsNewLastLine) {
  studio.song.tracks.set_row(15);
  studio.play_loop.start();
  studio.song.tracks.set_rows(5);
  studio.song.resize_stores();
  note(2, 1, 4, "643C90");
  studio.run(126);
  EXPECT_EQ(studio.sent()[1], 0x643C90U);
  EXPECT_FALSE(studio.flags.playing);
}

TEST_F(PlayLoopTest, ATrackThatIsRemovedWhilePlayingIsSilent) {
  note(2, 1, 2, "643C90");
  first_line();
  studio.tracks.menudeltrack_click();
  EXPECT_EQ(next_line(), Messages{});
}

TEST_F(PlayLoopTest, WherePlayingHasBeenClearedTheInputLoopTakesOverWithoutAReset) {
  studio.play_loop.start();
  studio.flags.playing = false;
  studio.pass();
  EXPECT_TRUE(studio.current.is(studio.listen));
  EXPECT_EQ(studio.sent(), Messages{});
}

TEST_F(PlayLoopTest, WhatArrivesWhilePlayingWaitsForTheInputLoop) {
  studio.play_loop.start();
  studio.queue.write(0x643C90);
  studio.run(130);
  EXPECT_EQ(studio.sent(), Messages{});
  EXPECT_EQ(studio.queue.front(), 0x643C90U);
}

/// Shows a message box when the cursor leaves its cell, as the commit of a typed value does; while
/// it is up, passes go on coming.
class BoxOnLeaving : public CellGridObserver {
 public:
  explicit BoxOnLeaving(Studio& studio) : studio_(studio) { studio.song.tracks.add_observer(this); }
  void leaving_cell() override {
    if (!armed) return;
    armed = false;
    due_in_box = studio_.play_loop.next_due();
    studio_.run(1000);
  }

  bool armed = true;
  std::optional<std::uint32_t> due_in_box = 0;

 private:
  Studio& studio_;
};

TEST_F(PlayLoopTest, AMessageBoxShownByTheCursorsMoveHoldsPlaybackUp) {
  BoxOnLeaving box(studio);
  note(2, 1, 1, "643C90");
  EXPECT_EQ(first_line(), (Messages{0, 0x643C90}));
  EXPECT_EQ(box.due_in_box, std::nullopt);
  EXPECT_EQ(studio.row(), 2);
  for (int i = 0; i < 20; ++i) studio.pass();
  EXPECT_EQ(studio.row(), 10);  // caught up
}

TEST_F(PlayLoopTest, ManyStartsAndStopsLeaveTheInputLoopCurrent) {
  for (int i = 0; i < 1000; ++i) {
    studio.transport.playnotes_mouseup();
    studio.run(3);
    studio.transport.playnotes_mouseup();
    ASSERT_TRUE(studio.current.is(studio.listen));
  }
}

TEST_F(PlayLoopTest, ATempoOfNothingIsADivisionByZero) {
  studio.song.bpm.put("0");
  EXPECT_THROW(studio.play_loop.start(), RuntimeError);
}

}  // namespace
}  // namespace lunavox

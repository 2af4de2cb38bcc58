#include "midi/realtime_record_loop.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;
using test::Studio;

constexpr std::uint32_t kClick = 0x602599;
constexpr std::uint32_t kLine = 125;

class RealtimeRecordTest : public testing::Test {
 protected:
  RealtimeRecordTest() {
    studio.options.realtime = true;
    studio.options.velocity = true;
    studio.options.metronome = true;
    studio.options.before.put("2");
  }

  void record() { studio.recorder.recordnotes_click(); }

  /// Records without a count-in.
  void record_at_once() {
    studio.options.before.put("0");
    record();
  }

  /// The millisecond, counted from now, of each click during a number of milliseconds.
  std::vector<std::uint32_t> clicks(std::uint32_t ms) {
    std::vector<std::uint32_t> times;
    for (std::uint32_t t = 1; t <= ms; ++t) {
      studio.run(1);
      for (const std::uint32_t message : studio.sent()) {
        EXPECT_EQ(message, kClick);
        times.push_back(t);
      }
    }
    return times;
  }

  const std::string& entry(int row) const { return studio.song.notes.at(2, 1, row); }

  Studio studio;
};

TEST_F(RealtimeRecordTest, TheCountInCountsBeatsDownAndHidesItsWindow) {
  record();
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_TRUE(studio.realtime.counting_in());
  EXPECT_TRUE(studio.current.is(studio.realtime));
  studio.run(8 * kLine + 1);
  EXPECT_EQ(studio.count_in.calls,
            (std::vector<std::string>{
                "show Record start in  2", "Record start in  2", "Record start in  2",
                "Record start in  2", "Record start in  2", "Record start in  1",
                "Record start in  1", "Record start in  1", "Record start in  1", "hide"}));
  EXPECT_FALSE(studio.realtime.counting_in());
  EXPECT_TRUE(studio.realtime.running());
  EXPECT_EQ(studio.row(), 1);
}

TEST_F(RealtimeRecordTest, TheSongCountsAsModifiedWhenTheCountInIsOver) {
  record();
  studio.run(8 * kLine);
  EXPECT_FALSE(studio.flags.modified);
  studio.run(1);
  EXPECT_TRUE(studio.flags.modified);
}

TEST_F(RealtimeRecordTest, TheMetronomeClicksOnTheBeatsOfTheCountInAndGoesOn) {
  record();
  EXPECT_EQ(clicks(14 * kLine), (std::vector<std::uint32_t>{126, 626, 1126, 1626}));
}

TEST_F(RealtimeRecordTest, WithoutTheMetronomeNothingClicks) {
  studio.options.metronome = false;
  record();
  EXPECT_EQ(clicks(14 * kLine), std::vector<std::uint32_t>{});
}

TEST_F(RealtimeRecordTest, ClicksFallOnTheStartLineAndEveryBeatAfterIt) {
  studio.song.tracks.set_row(3);
  record_at_once();
  std::vector<int> rows;
  for (int line = 0; line < 12; ++line) {
    const int row = studio.row();
    studio.run(line == 0 ? kLine + 1 : kLine);
    if (!studio.sent().empty()) rows.push_back(row);
  }
  EXPECT_EQ(rows, (std::vector<int>{3, 7, 11}));
}

TEST_F(RealtimeRecordTest, NoBeatsBeforeTheStartMeansNoCountIn) {
  record_at_once();
  EXPECT_TRUE(studio.realtime.running());
  EXPECT_FALSE(studio.realtime.counting_in());
  EXPECT_EQ(studio.count_in.calls, std::vector<std::string>{});
  EXPECT_TRUE(studio.flags.modified);
}

TEST_F(RealtimeRecordTest, TheCursorGoesDownOneLineAPeriod) {
  record_at_once();
  studio.run(kLine);
  EXPECT_EQ(studio.row(), 1);
  studio.run(1);
  EXPECT_EQ(studio.row(), 2);
  studio.run(3 * kLine);
  EXPECT_EQ(studio.row(), 5);
  EXPECT_EQ(studio.realtime.next_due(), 1000U + 5 * kLine + 1);
}

TEST_F(RealtimeRecordTest, NotesAreWrittenOnTheLineThatTheClockHasReached) {
  studio.options.metronome = false;
  record_at_once();
  studio.run(kLine + 1);
  studio.receive(0x643C95);
  studio.run(10);
  EXPECT_EQ(entry(2), "643C90");
  EXPECT_EQ(studio.song.tracks.text(2, Studio::kTrack2), "C  5");
  EXPECT_EQ(studio.row(), 2);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E0, 0x643C90}));
  studio.run(kLine);
  studio.receive(0x403C85);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E0, 0x3C90}));
  EXPECT_EQ(entry(3), "");
}

TEST_F(RealtimeRecordTest, WhatArrivesDuringTheCountInWaitsForTheStartLine) {
  studio.options.metronome = false;
  record();
  studio.receive(0x643C90);
  studio.run(8 * kLine);
  EXPECT_EQ(studio.sent(), Messages{});
  studio.run(2);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E0, 0x643C90}));
  EXPECT_EQ(entry(1), "643C90");
}

TEST_F(RealtimeRecordTest, TheEndOfTheGridEndsTheRecording) {
  studio.song.tracks.set_row(15);
  record_at_once();
  studio.run(kLine + 1);
  EXPECT_EQ(studio.row(), 16);
  EXPECT_TRUE(studio.flags.recording);
  studio.run(kLine);
  EXPECT_EQ(studio.row(), 16);
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  EXPECT_EQ(studio.realtime.next_due(), std::nullopt);
}

TEST_F(RealtimeRecordTest, TheButtonEndsTheRecording) {
  record_at_once();
  studio.run(300);
  record();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  const int row = studio.row();
  studio.run(500);
  EXPECT_EQ(studio.row(), row);
}

TEST_F(RealtimeRecordTest, AKeyHeldOverTheEndIsReleasedByTheInputLoop) {
  studio.options.metronome = false;
  record_at_once();
  studio.receive(0x643C90);
  record();
  studio.sent();
  studio.receive(0x403C80);
  EXPECT_EQ(studio.sent(), (Messages{0x4000E0, 0x3C90}));
}

TEST_F(RealtimeRecordTest, CancelEndsTheCountIn) {
  record();
  studio.run(300);
  studio.realtime.cancel();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_FALSE(studio.flags.modified);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_EQ(studio.count_in.calls.back(), "hide");
  EXPECT_TRUE(studio.current.is(studio.listen));
  studio.realtime.cancel();
  EXPECT_EQ(studio.count_in.calls.size(), 4U);
}

TEST_F(RealtimeRecordTest, TheSpaceBarEndsItToo) {
  record();
  studio.recorder.space_bar();
  EXPECT_FALSE(studio.realtime.running());
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
}

TEST_F(RealtimeRecordTest, ARecordingCanBeStartedAgain) {
  record();
  studio.realtime.cancel();
  studio.song.tracks.set_row(5);
  record();
  studio.run(8 * kLine + 1 + kLine);
  EXPECT_EQ(studio.row(), 6);
}

TEST_F(RealtimeRecordTest, EachCountInBeginsAnew) {
  record();
  studio.run(5 * kLine + 1);
  studio.realtime.cancel();
  studio.count_in.calls.clear();
  record();
  EXPECT_EQ(studio.count_in.calls, (std::vector<std::string>{"show Record start in  2"}));
  studio.run(8 * kLine);
  EXPECT_TRUE(studio.realtime.counting_in());
  studio.run(1);
  EXPECT_FALSE(studio.realtime.counting_in());
}

TEST_F(RealtimeRecordTest, MovingTheCursorMovesTheRecording) {
  record_at_once();
  studio.song.tracks.set_row(10);
  studio.run(kLine + 1);
  EXPECT_EQ(studio.row(), 11);
}

TEST_F(RealtimeRecordTest, AShortenedSongEndsAtItsNewLastLine) {
  studio.song.tracks.set_row(15);
  record_at_once();
  studio.song.tracks.set_rows(4);
  studio.song.resize_stores();
  studio.run(kLine + 1);
  EXPECT_EQ(studio.row(), 3);
  EXPECT_FALSE(studio.realtime.running());
}

TEST_F(RealtimeRecordTest, ANoteOnAnEffectColumnIsRefusedAndTheRecordingGoesOn) {
  record_at_once();
  studio.song.tracks.set_column(Studio::kEffect2);
  studio.receive(0x643C90);
  EXPECT_EQ(studio.dialogs.messages,
            std::vector<Message>{test::error_box("Cannot record notes on effects !", "Error")});
  studio.run(kLine + 1);
  EXPECT_EQ(studio.row(), 2);
}

TEST_F(RealtimeRecordTest, LateLinesAreCaughtUpOneAPass) {
  record_at_once();
  studio.clock.advance(3 * kLine + 1);
  studio.pass();
  EXPECT_EQ(studio.row(), 2);
  studio.pass();
  studio.pass();
  studio.pass();
  EXPECT_EQ(studio.row(), 4);
}

TEST_F(RealtimeRecordTest, ThreeLinesABeatCountInThreesToo) {
  studio.song.number.put("3");  // a line is 167 ms
  studio.options.before.put("1");
  record();
  studio.run(3 * 167);
  EXPECT_TRUE(studio.realtime.counting_in());
  studio.run(1);
  EXPECT_FALSE(studio.realtime.counting_in());
  EXPECT_EQ(studio.sent(), (Messages{kClick}));
}

}  // namespace
}  // namespace lunavox

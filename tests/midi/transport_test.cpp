#include "midi/transport.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;
using test::Studio;

constexpr int kCtrl = 17;

TEST(Transport, TheButtonShowsItsPressedPicture) {
  Studio studio;
  studio.transport.playnotes_mousedown();
  EXPECT_EQ(studio.pictures.playnotes.get(), "play2");
  studio.transport.playnotes_mouseup();
  EXPECT_EQ(studio.pictures.playnotes.get(), "stop1");
  studio.transport.playnotes_mousedown();
  EXPECT_EQ(studio.pictures.playnotes.get(), "stop2");
  studio.transport.playnotes_mouseup();
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
}

TEST(Transport, PlaybackStartsAtTheCursor) {
  Studio studio;
  studio.song.tracks.set_row(7);
  studio.transport.playnotes_mouseup();
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_EQ(studio.row(), 7);
}

TEST(Transport, PlayFromBeginningStartsAtTheFirstLine) {
  Studio studio;
  studio.options.begin = true;
  studio.song.tracks.set_cursor(7, 12);
  studio.transport.playnotes_mouseup();
  EXPECT_EQ(studio.row(), 1);
  EXPECT_EQ(studio.song.tracks.column(), 12);
}

TEST(Transport, StoppingResetsTheChannelsAndReturnsToTheInputLoop) {
  Studio studio;
  studio.song.write_entry(2, 1, 1, "643C90");
  studio.transport.playnotes_mouseup();
  studio.run(130);
  studio.sent();
  studio.pictures.recordnotes = "stoprec1";
  studio.transport.playnotes_mouseup();
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  const Messages sent = studio.sent();
  ASSERT_EQ(sent.size(), 120U + 165);
  EXPECT_EQ(sent[16], 0x3C90U);
  EXPECT_EQ(studio.port.pending_note_off(2, 1), "");
}

TEST(Transport, TheCtrlKeyStartsPlayback) {
  Studio studio;
  studio.options.begin = true;
  studio.song.tracks.set_row(7);
  studio.transport.key_down(kCtrl);
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.playnotes.get(), "stop1");
  EXPECT_EQ(studio.row(), 1);
}

TEST(Transport, TheCtrlKeyDoesNothingWhilePlaying) {
  Studio studio;
  studio.transport.key_down(kCtrl);
  studio.run(300);
  const auto due = studio.play_loop.next_due();
  studio.transport.key_down(kCtrl);
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_EQ(studio.play_loop.next_due(), due);
}

TEST(Transport, OtherKeysDoNotStartPlayback) {
  Studio studio;
  studio.transport.key_down(16);
  studio.transport.key_down(32);
  EXPECT_FALSE(studio.flags.playing);
}

TEST(Transport, StoppingEndsRealtimeRecordingToo) {
  Studio studio;
  studio.options.realtime = true;
  studio.recorder.recordnotes_click();
  studio.transport.playnotes_mousedown();
  EXPECT_EQ(studio.pictures.playnotes.get(), "stop2");
  studio.transport.playnotes_mouseup();
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_FALSE(studio.realtime.running());
  EXPECT_EQ(studio.count_in.calls.back(), "hide");
  EXPECT_TRUE(studio.current.is(studio.listen));
}

TEST(Transport, StoppingLeavesStepRecordingEngaged) {
  Studio studio;
  studio.recorder.recordnotes_click();
  studio.transport.playnotes_mouseup();
  studio.run(130);
  studio.transport.playnotes_mouseup();
  EXPECT_TRUE(studio.flags.recording);
  studio.receive(0x643C90);
  EXPECT_EQ(studio.song.notes.at(2, 1, 2), "7F3C90");
}

}  // namespace
}  // namespace lunavox

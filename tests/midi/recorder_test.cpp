#include "midi/recorder.h"

#include "tests/support/studio.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Messages;
using test::Studio;

const Messages kAllNotesOff = {0x7BB0, 0x7BB1, 0x7BB2, 0x7BB3, 0x7BB4, 0x7BB5, 0x7BB6, 0x7BB7,
                               0x7BB8, 0x7BB9, 0x7BBA, 0x7BBB, 0x7BBC, 0x7BBD, 0x7BBE, 0x7BBF};

class RecorderTest : public testing::Test {
 protected:
  RecorderTest() {
    studio.recorder.set_focus_tracks([this] { ++focused; });
  }

  void play() {
    studio.song.write_entry(2, 1, 1, "643C90");
    studio.transport.playnotes_mouseup();
    studio.run(130);
    studio.sent();
  }

  Studio studio;
  int focused = 0;
};

TEST_F(RecorderTest, TheButtonShowsItsPressedPicture) {
  studio.recorder.recordnotes_mousedown();
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record2");
  studio.recorder.recordnotes_click();
  EXPECT_EQ(studio.pictures.recordnotes.get(), "stoprec1");
  studio.recorder.recordnotes_mousedown();
  EXPECT_EQ(studio.pictures.recordnotes.get(), "stoprec2");
  studio.recorder.recordnotes_click();
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
}

TEST_F(RecorderTest, TheButtonStartsAndStopsStepRecording) {
  studio.recorder.recordnotes_click();
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_TRUE(studio.current.is(studio.listen));
  studio.recorder.recordnotes_click();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_EQ(studio.sent(), Messages{});
}

TEST_F(RecorderTest, RecordingNeedsANoteColumnToStartIn) {
  for (const int column : {0, 9, Studio::kEffect2}) {
    studio.song.tracks.set_column(column);
    studio.recorder.recordnotes_mousedown();
    studio.recorder.recordnotes_click();
    EXPECT_FALSE(studio.flags.recording);
    EXPECT_EQ(studio.dialogs.messages.back(),
              test::error_box("select a start position for record"));
    EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  }
  EXPECT_EQ(studio.dialogs.messages.size(), 3U);
}

TEST_F(RecorderTest, TheButtonStopsPlaybackWithAllNotesOff) {
  play();
  studio.recorder.recordnotes_click();
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
  EXPECT_EQ(studio.pictures.recordnotes.get(), "stoprec1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  EXPECT_EQ(studio.sent(), kAllNotesOff);
  EXPECT_EQ(studio.port.pending_note_off(2, 1), "3C90");
}

TEST_F(RecorderTest, TheButtonGoesFromPlaybackToRealtimeRecording) {
  play();
  studio.options.realtime = true;
  studio.recorder.recordnotes_click();
  EXPECT_EQ(studio.sent(), kAllNotesOff);
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_TRUE(studio.current.is(studio.realtime));
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
}

TEST_F(RecorderTest, TheButtonStopsRecordingOnAnyColumn) {
  studio.recorder.recordnotes_click();
  studio.song.tracks.set_column(Studio::kEffect2);
  studio.recorder.recordnotes_click();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_TRUE(studio.dialogs.messages.empty());
}

TEST_F(RecorderTest, TheButtonEndsStepRecordingWhilePlaybackGoesOn) {
  studio.recorder.recordnotes_click();
  play();
  studio.recorder.recordnotes_click();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_TRUE(studio.current.is(studio.play_loop));
}

TEST_F(RecorderTest, TheSpaceBarStartsAndStopsStepRecording) {
  studio.recorder.space_bar();
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "stoprec1");
  studio.recorder.space_bar();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_EQ(focused, 2);
}

TEST_F(RecorderTest, TheSpaceBarStartsStepRecordingEvenWhereRealtimeIsChecked) {
  studio.options.realtime = true;
  studio.recorder.space_bar();
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_TRUE(studio.current.is(studio.listen));
}

TEST_F(RecorderTest, TheSpaceBarStopsPlaybackWithAllNotesOff) {
  play();
  studio.recorder.space_bar();
  EXPECT_TRUE(studio.flags.recording);
  EXPECT_FALSE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.playnotes.get(), "play1");
  EXPECT_TRUE(studio.current.is(studio.listen));
  EXPECT_EQ(studio.sent(), kAllNotesOff);
}

TEST_F(RecorderTest, TheSpaceBarEndsStepRecordingWhilePlaybackGoesOn) {
  studio.recorder.space_bar();
  play();
  studio.recorder.space_bar();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_TRUE(studio.flags.playing);
}

TEST_F(RecorderTest, TheSpaceBarInAnEffectColumnChangesNothing) {
  studio.song.tracks.set_column(Studio::kEffect2);
  play();
  studio.recorder.space_bar();
  EXPECT_FALSE(studio.flags.recording);
  EXPECT_TRUE(studio.flags.playing);
  EXPECT_EQ(studio.pictures.recordnotes.get(), "record1");
  EXPECT_EQ(studio.dialogs.messages,
            std::vector<Message>{test::error_box("select a start position for record")});
  EXPECT_EQ(focused, 1);
}

}  // namespace
}  // namespace lunavox

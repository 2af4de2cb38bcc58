#include "app/editor.h"

#include "tests/support/editor_bench.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::EditorBench;

TEST(Editor, ClosingStopsAndResetsTheInputThenTheOutputAndClosesBoth) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys"};
  bench.folder.write("lvconfig.ini", "input=0\r\nboot=1\r\n");
  bench.start();
  bench.inputs.calls.clear();
  bench.output.calls.clear();
  std::vector<std::size_t> output_calls_before;
  bench.inputs.on_call = [&] { output_calls_before.push_back(bench.output.calls.size()); };
  bench.editor.close_ports();
  EXPECT_EQ(bench.inputs.calls, (std::vector<std::string>{"stop", "reset", "close"}));
  EXPECT_EQ(output_calls_before, (std::vector<std::size_t>{0, 0, 1}))
      << "the output is reset before the input closes, and closes last";
  using Call = test::RecordingOutput::Call;
  ASSERT_EQ(bench.output.calls.size(), 2U);
  EXPECT_EQ(bench.output.calls[0].kind, Call::kReset);
  EXPECT_EQ(bench.output.calls[1].kind, Call::kClose);
}

TEST(Editor, ANoteIsEndedWhenTheInputThatItIsHeldOnGoesAway) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys"};
  bench.folder.write("lvconfig.ini", "input=0\r\nboot=1\r\n");
  bench.start();
  bench.inputs.play(0x643C90);
  bench.editor.listen.pass(bench.clock.timeGetTime());
  bench.output.calls.clear();
  bench.inputs.trouble = "Keys is gone.";
  bench.editor.input.look_after();
  bench.editor.input.look_after();
  EXPECT_EQ(bench.output.shorts(), (std::vector<std::uint32_t>{0x3C99}));
}

TEST(Editor, ATrackThatIsAddedShowsItsCurveAndSendsItsVoice) {
  EditorBench bench;
  bench.start();
  bench.output.calls.clear();
  bench.editor.tracks.addinstrutrack();
  EXPECT_EQ(bench.editor.song.tracks.text(64, 18), "127");
  const auto sent = bench.output.shorts();
  // Track 1, then track 2: bank select, program, silent note.
  const std::vector<std::uint32_t> expected = {0x7F00B9, 0x20B9, 0xC9, 0x3099,
                                               0x0000B0, 0x20B0, 0xC0, 0x3090};
  EXPECT_EQ(sent, expected);
}

TEST(Editor, TheVoiceNameFollowsTheCursorsTrack) {
  EditorBench bench;
  bench.start();
  EXPECT_EQ(bench.editor.voice_name.text.get(), "kit 0");
  bench.editor.tracks.addinstrutrack();
  EXPECT_EQ(bench.editor.voice_name.text.get(), "GrandPno");
  bench.editor.song.tracks.set_cursor(1, 1);
  EXPECT_EQ(bench.editor.voice_name.text.get(), "kit 0");
}

TEST(Editor, TheVoiceCellOpensTheDialogOfTheTracksKind) {
  EditorBench bench;
  bench.start();
  std::string opened;
  bench.editor.shell.choose_drum_kit = [&] { opened += "kit "; };
  bench.editor.shell.choose_instrument = [&] { opened += "voice "; };
  bench.editor.tracks.addinstrutrack();
  bench.editor.curves.effects_click(2, 1);
  bench.editor.curves.effects_click(5, 1);
  EXPECT_EQ(opened, "kit voice ");
  EXPECT_EQ(bench.editor.song.tracks.column(), 10);
}

TEST(Editor, ACursorThatEntersAnEffectCellEndsTheNotesThatKeysHold) {
  EditorBench bench;
  bench.start();
  bench.editor.note_keys.keystart(81);  // Q
  bench.editor.song.tracks.set_column(9);
  EXPECT_EQ(bench.editor.note_keys.lastkey(), 0);
}

TEST(Editor, GridsScrollByWholeTracks) {
  EditorBench bench(Screen(800, 600));
  bench.start();
  Editor& editor = bench.editor;
  for (int i = 0; i < 3; ++i) editor.tracks.addinstrutrack();
  EXPECT_EQ(editor.screen.defilchan_max.get(), 3);
  editor.screen.defilchan = 2;
  EXPECT_EQ(editor.song.tracks.left_column(), 10);
  EXPECT_EQ(editor.song.effects.left_column(), 4);
  EXPECT_EQ(editor.song.channels.left_column(), 2);
}

TEST(Editor, ALongerSongContinuesItsCurvesInStoreAndColumn) {
  EditorBench bench;
  bench.start();
  bench.editor.song.values.at(1, kVolume, 64) = 33;
  bench.editor.song_length.length_validate("80");
  EXPECT_EQ(bench.editor.song.values.at(1, kVolume, 80), 33);
  EXPECT_EQ(bench.editor.song.tracks.text(80, 9), "33");
}

TEST(Editor, ATypedNoteSoundsAndIsRecordedStepByStep) {
  EditorBench bench;
  bench.start();
  Editor& editor = bench.editor;
  editor.note_keys.keystart(32);  // the space bar engages step recording
  editor.note_keys.keystart(81);  // Q
  bench.output.calls.clear();
  editor.current_loop.get()->pass(bench.clock.timeGetTime());
  const std::vector<std::uint32_t> expected = {0x4000E9, 0x3099, 0x4000E9, 0x7F3099};
  EXPECT_EQ(bench.output.shorts(), expected);
  EXPECT_EQ(editor.song.notes.at(1, 1, 1), "7F3099");
  EXPECT_EQ(editor.song.tracks.text(1, 1), "C  4");
  EXPECT_EQ(editor.song.tracks.row(), 2);
}

TEST(Editor, TheSpaceBarGivesTheKeysToTheNotesWhateverItDid) {
  EditorBench bench;
  bench.start();
  int focused = 0;
  bench.editor.shell.focus_tracks = [&] { ++focused; };
  bench.editor.note_keys.keystart(32);  // starts recording
  bench.editor.note_keys.keystart(32);  // stops it
  bench.editor.song.tracks.set_column(9);
  bench.editor.note_keys.keystart(32);  // is refused
  EXPECT_EQ(focused, 3);
  EXPECT_EQ(bench.dialogs.messages.size(), 1U);
}

TEST(Editor, ADriverThatRefusesSystemExclusiveIsToldAndEverythingElseGoesOn) {
  EditorBench bench;
  bench.output.long_result = 11;
  bench.output.error = "The driver takes no System Exclusive messages.";
  bench.start();
  const Message refusal{
      "Error in sending long message\r\nThe driver takes no System Exclusive messages.", "",
      Icon::kNone, Buttons::kOk};
  EXPECT_EQ(bench.dialogs.messages, std::vector<Message>(4, refusal));  // the module's set-up
  EXPECT_TRUE(bench.ready);

  Editor& editor = bench.editor;
  bench.dialogs.messages.clear();
  editor.xg_effects.reverb_click(2);
  EXPECT_EQ(bench.dialogs.messages, std::vector<Message>(1, refusal));
  EXPECT_EQ(editor.song.reverb, 2);

  editor.song.notes.at(1, 1, 1) = "7F3099";
  bench.output.calls.clear();
  bench.dialogs.messages.clear();
  editor.transport.playnotes_mouseup();
  bench.clock.advance(126);
  editor.current_loop.get()->pass(bench.clock.timeGetTime());
  const std::vector<std::uint32_t> sent = bench.output.shorts();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), 0x7F3099U), 1);
  EXPECT_TRUE(bench.dialogs.messages.empty());
}

}  // namespace
}  // namespace lunavox

#include "app/start_up.h"

#include "tests/support/editor_bench.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::EditorBench;
using test::error_box;

const Message kScreenNotice{
    "Lunavox won't run correctly with this resolution. Supported resolution are: 800*600, "
    "1024*768, 1280*1024, 1600*1200",
    "error", Icon::kCritical, Buttons::kOk, "screen size"};

TEST(StartUp, EndsReadyInTheInputLoopWithTheDrumTrackAlone) {
  EditorBench bench;
  bench.start();
  const Editor& editor = bench.editor;
  EXPECT_TRUE(bench.ready);
  EXPECT_TRUE(editor.current_loop.is(editor.listen));
  EXPECT_EQ(editor.song.track_count, 1);
  EXPECT_EQ(editor.song.tracks.rows(), 65);
  EXPECT_EQ(editor.song.tracks.columns(), 10);
  EXPECT_EQ(editor.song.channels.text(0, 1), "DRUM TRACK  1");
  EXPECT_EQ(editor.song_length.timemin.get(), " 0:08");
  EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(editor.song.current_track, 1);
  EXPECT_EQ(editor.song.current_sub_column, 1);
  EXPECT_FALSE(editor.flags.song_building);
  EXPECT_TRUE(editor.song.tracks.redraw());
  EXPECT_TRUE(bench.dialogs.messages.empty());
}

TEST(StartUp, TheProgressBoxIsShownFromTheBanksToTheBeatMarks) {
  EditorBench bench;
  bench.start();
  std::vector<std::string> captions;
  for (const auto& shown : bench.progress.shown) captions.push_back(shown.caption);
  EXPECT_EQ(captions, (std::vector<std::string>{"reading banks...", "adding drum track...",
                                                "showing effect...", "enlarging effects...",
                                                "numeroting lines...", "preparing beats...",
                                                "showing effect..."}));
  EXPECT_FALSE(bench.progress.visible);
}

TEST(StartUp, TheFirstCurvesAreFlatAndShownOnEveryLine) {
  EditorBench bench;
  bench.start();
  const Song& song = bench.editor.song;
  EXPECT_EQ(song.values.at(1, kVolume, 1), 127);
  EXPECT_EQ(song.values.at(1, kVolume, 64), 127);
  EXPECT_EQ(song.values.at(1, kAttack, 64), 1);
  EXPECT_EQ(song.tracks.text(1, 9), "127");
  EXPECT_EQ(song.tracks.text(64, 9), "127");
  EXPECT_EQ(song.tracks.cell(1, 9).text_colour, kKeyValue);
  EXPECT_EQ(song.tracks.cell(2, 9).text_colour, kBlack);
}

TEST(StartUp, TheFixedCaptionsStandInTheGrids) {
  EditorBench bench;
  bench.start();
  const Song& song = bench.editor.song;
  EXPECT_EQ(song.tracks.text(0, 0), "Note");
  EXPECT_EQ(song.channels.text(0, 0), "Track");
  EXPECT_EQ(song.effects.text(0, 0), "Effect");
  EXPECT_EQ(song.effects.text(1, 0), "Instrument");
  EXPECT_EQ(song.effects.text(11, 0), "Pitch");
}

TEST(StartUp, AnUnchangedSongIsNotModified) {
  EditorBench bench;
  bench.start();
  EXPECT_FALSE(bench.editor.flags.modified);
}

TEST(StartUp, TheOutputIsDevice0AndItsItemIsChecked) {
  EditorBench bench;
  bench.start();
  EXPECT_EQ(bench.editor.output.current_device(), 0);
  const std::vector<OutputItem> expected = {
      {"System default", false}, {"Synth", true}, {"Module", false}};
  EXPECT_EQ(bench.editor.outputdev.items.get(), expected);
  EXPECT_EQ(bench.output.sysexes().size(), 4U);
}

TEST(StartUp, AtASupportedSizeNoNoticeIsShown) {
  for (const auto& [width, height] :
       {std::pair{800, 600}, {1024, 768}, {1280, 1024}, {1600, 1200}}) {
    EditorBench bench(Screen(width, height));
    bench.start();
    EXPECT_TRUE(bench.dialogs.messages.empty()) << width;
  }
}

TEST(StartUp, AnUnsupportedWidthIsToldOnceAndTolerated) {
  EditorBench bench(Screen(1152, 864));
  bench.start();
  EXPECT_EQ(bench.dialogs.messages, std::vector<Message>{kScreenNotice});
  EXPECT_TRUE(bench.ready);
}

TEST(StartUp, ALowScreenIsToldToo) {
  EditorBench bench(Screen(1024, 599));
  bench.start();
  EXPECT_EQ(bench.dialogs.messages, std::vector<Message>{kScreenNotice});
  EditorBench small(Screen(640, 480));
  small.start();
  EXPECT_EQ(small.dialogs.messages, (std::vector<Message>{kScreenNotice, kScreenNotice}));
}

TEST(StartUp, WithoutAnInputDeviceTheEditorRunsAndSaysNothing) {
  EditorBench bench;
  bench.start();
  EXPECT_TRUE(bench.editor.flags.no_input);
  EXPECT_FALSE(bench.editor.input.is_open());
  EXPECT_TRUE(bench.dialogs.messages.empty());
}

TEST(StartUp, AnInputThatWasNeverChosenIsAskedFor) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys", "Pads"};
  bench.start();
  EXPECT_EQ(bench.offered, (std::vector<std::string>{"Keys", "Pads"}));
  EXPECT_FALSE(bench.ready);

  bench.start_up.getinputid(1);
  EXPECT_TRUE(bench.ready);
  EXPECT_EQ(bench.inputs.opened, 1);
  EXPECT_EQ(bench.folder.read("lvconfig.ini"), "input=1\r\nboot=1\r\n");
}

TEST(StartUp, TheRememberedInputIsOpenedAndStarted) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys", "Pads"};
  bench.folder.write("lvconfig.ini", "input=1\r\nboot=1\r\n");
  bench.start();
  EXPECT_TRUE(bench.offered.empty());
  EXPECT_EQ(bench.inputs.opened, 1);
  EXPECT_EQ(bench.inputs.calls, (std::vector<std::string>{"start"}));
}

TEST(StartUp, OfAStoredInputTwelveOnlyTheTwoCounts) {
  EditorBench bench;
  bench.inputs.device_names = {"a", "b", "c", "d"};
  bench.folder.write("lvconfig.ini", "input=12\r\nboot=1\r\n");
  bench.start();
  EXPECT_EQ(bench.inputs.opened, 2);
}

TEST(StartUp, ARememberedInputThatIsGoneEndsTheProgramAfterItsMessage) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys"};
  bench.folder.write("lvconfig.ini", "input=3\r\nboot=1\r\n");
  bench.start();
  EXPECT_EQ(bench.dialogs.messages,
            std::vector<Message>{error_box("No Midi input device found", "Error")});
  EXPECT_EQ(bench.end_status, 1);
  EXPECT_FALSE(bench.ready);
}

TEST(StartUp, AnOutputThatCannotBeOpenedEndsTheProgram) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys"};
  bench.folder.write("lvconfig.ini", "input=0\r\nboot=1\r\n");
  bench.output.opens = false;
  bench.start();
  EXPECT_EQ(bench.dialogs.messages.back(), error_box("No Midi output device found", "Error"));
  EXPECT_EQ(bench.inputs.calls, (std::vector<std::string>{"close"}));
  EXPECT_EQ(bench.end_status, 1);
  EXPECT_FALSE(bench.ready);
}

TEST(StartUp, DevicesWishedOnTheCommandLineAreTaken) {
  EditorBench bench;
  bench.inputs.device_names = {"Keys", "Pads"};
  StartUp start_up(bench.editor, bench.config, bench.folders, {"mod", "pads", LayoutSet::kQwerty});
  start_up.load();
  EXPECT_EQ(bench.editor.output.current_device(), 1);
  EXPECT_EQ(bench.inputs.opened, 1);
}

TEST(StartUp, AWishedOutputThatIsNotThereIsToldAndTheFirstOneTaken) {
  EditorBench bench;
  StartUp start_up(bench.editor, bench.config, bench.folders,
                   {"organ", std::nullopt, LayoutSet::kQwerty});
  start_up.load();
  EXPECT_EQ(bench.dialogs.messages,
            std::vector<Message>{error_box("There is no MIDI output \"organ\".", "Error")});
  EXPECT_EQ(bench.editor.output.current_device(), 0);
}

TEST(StartUp, AMissingBankFileIsARuntimeError) {
  EditorBench bench;
  std::filesystem::remove(bench.folders.drum_bank());
  EXPECT_THROW(bench.start(), RuntimeError);
}

}  // namespace
}  // namespace lunavox

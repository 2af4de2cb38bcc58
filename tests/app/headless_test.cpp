#include "app/headless.h"

#include "app/console.h"
#include "files/song_file.h"
#include "midi/ports/null_device.h"
#include "tests/support/recording_output.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <unistd.h>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

/// A run without a window in a folder of its own.
class HeadlessRun : public testing::Test {
 protected:
  HeadlessRun() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::temp_directory_path() /
              ("lunavox-headless-" + std::string(test->name()) + std::to_string(getpid()));
    fs::create_directories(folder_);
  }
  ~HeadlessRun() override { fs::remove_all(folder_); }

  int run(const std::vector<std::string>& arguments) {
    return run_headless(read_command_line(arguments),
                        {outputs_, inputs_, results_, errors_, stop_});
  }

  std::string path(const std::string& name) const { return (folder_ / name).string(); }

  static std::string contents(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// A drum track of two lines at 300 beats a minute and 8 lines a beat: a line lasts 25 ms.
  void write_song(const std::string& name) const {
    std::ofstream out(path(name), std::ios::binary);
    const auto line = [&](const std::string& text) { out << text << "\r\n"; };
    line("2.0");
    line(" 1 ");
    line(" 3 ");
    for (const char* field : {"1", "300", "2", "8"}) line(field);
    line(" 0 ");
    line(" 0 ");
    for (int e = 1; e <= 11; ++e) line(e == 1 ? "yes" : "no");
    for (int e = 1; e <= 11; ++e) line(e == 1 ? "standard 1" : "64");
    for (int e = 1; e <= 11; ++e) line(e == 2 ? "yes" : "no");
    line(" 1 ");
    line("643C99");
    line("stop");
    line(" 9 ");
    for (int e = 1; e <= 11; ++e) {
      for (int row = 1; row <= 2; ++row) {
        line(e == 1 ? " 0 " : " 64 ");
        line(row == 1 ? "-1 " : " 0 ");
      }
    }
    line(" 2 ");
    for (int list = 0; list < 3; ++list) line(" 0 ");
  }

  test::RecordingOutput outputs_;
  NullInputDevices inputs_;
  std::ostringstream results_;
  std::ostringstream errors_;
  std::atomic<bool> stop_{false};

 private:
  fs::path folder_;
};

TEST_F(HeadlessRun, ConvertingASongOfThisVersionGivesTheSameFile) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--convert", path("out.lvx"), path("in.lvx")}), 0) << errors_.str();
  EXPECT_EQ(contents(path("out.lvx")), contents(path("in.lvx")));
}

TEST_F(HeadlessRun, ExportingWritesAStandardMidiFileOfFormatOne) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--export", path("out.mid"), path("in.lvx")}), 0) << errors_.str();
  // Format 1, one track, 8 ticks a quarter note.
  EXPECT_EQ(contents(path("out.mid")).substr(0, 18),
            std::string("MThd\0\0\0\6\0\1\0\1\0\10MTrk", 18));
}

TEST_F(HeadlessRun, AMissingSongIsOneLineAndStatusOne) {
  EXPECT_EQ(run({"--convert", path("out.lvx"), path("none.lvx")}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: File not found: " + path("none.lvx") + "\n");
  EXPECT_FALSE(fs::exists(path("out.lvx")));
}

TEST_F(HeadlessRun, ARefusedSongIsToldAndNothingIsWritten) {
  std::ofstream(path("new.lvx")) << "2.5\r\n";
  EXPECT_EQ(run({"--convert", path("out.lvx"), path("new.lvx")}), 1);
  EXPECT_NE(errors_.str().find("This file has been created with Lunavox "), std::string::npos);
  EXPECT_FALSE(fs::exists(path("out.lvx")));
}

TEST_F(HeadlessRun, PlayingSendsTheSongAndResetsTheChannelsAtItsEnd) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--play", path("in.lvx"), "--output", "module"}), 0) << errors_.str();
  const auto sent = outputs_.shorts();
  const auto note = std::find(sent.begin(), sent.end(), 0x643C99U);
  ASSERT_NE(note, sent.end());
  EXPECT_EQ(note[1], 0x3C99U);        // "stop" on the second line
  EXPECT_EQ(sent.back(), 0x4048BEU);  // the last controller of channel 14
}

TEST_F(HeadlessRun, AStopBeforeTheFirstLineStillResetsTheChannels) {
  write_song("in.lvx");
  stop_ = true;
  EXPECT_EQ(run({"--play", path("in.lvx")}), 0);
  const auto sent = outputs_.shorts();
  EXPECT_EQ(std::count(sent.begin(), sent.end(), 0x643C99U), 0);
  EXPECT_EQ(sent.back(), 0x4048BEU);
}

TEST_F(HeadlessRun, AnOutputThatIsLostWhileASongPlaysIsOneLineAndStatusOne) {
  write_song("in.lvx");
  outputs_.on_short = [this](std::uint32_t packed) {
    if (packed == 0x643C99) outputs_.status = "The module is gone.";
  };
  EXPECT_EQ(run({"--play", path("in.lvx")}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: The module is gone.\n");
  EXPECT_EQ(outputs_.shorts().back(), 0x4048BEU);  // played to its end all the same
}

TEST_F(HeadlessRun, AnOutputThatIsSilentFromTheStartIsToldAndPlayedTo) {
  write_song("in.lvx");
  outputs_.status = "There is no sound.";
  EXPECT_EQ(run({"--play", path("in.lvx")}), 0);
  EXPECT_EQ(errors_.str(), "lunavox: There is no sound.\n");
}

TEST_F(HeadlessRun, AStopEndsARenderingToo) {
  write_song("in.lvx");
  stop_ = true;
  EXPECT_EQ(run({"--render", path("out.wav"), path("in.lvx")}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: interrupted\n");
  EXPECT_FALSE(fs::exists(path("out.wav")));
  std::ofstream(path("out.wav")) << "an earlier one";
  EXPECT_EQ(run({"--render", path("out.wav"), path("in.lvx")}), 1);
  EXPECT_EQ(contents(path("out.wav")), "an earlier one");
}

TEST_F(HeadlessRun, AnOutputThatIsNotThereIsOneLine) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--play", path("in.lvx"), "--output", "organ"}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: there is no MIDI output 'organ'\n");
}

TEST_F(HeadlessRun, ASoundFontThatIsMissingOrBrokenIsOneLine) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--render", path("out.wav"), path("in.lvx"), "--soundfont", "/no/such.sf2"}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: The SoundFont \"/no/such.sf2\" does not exist.\n");
  EXPECT_FALSE(fs::exists(path("out.wav")));
  errors_.str("");
  EXPECT_EQ(run({"--render", path("out.wav"), path("in.lvx"), "--soundfont", path("in.lvx")}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: The file \"" + path("in.lvx") + "\" is not a SoundFont.\n");
  EXPECT_FALSE(fs::exists(path("out.wav")));
}

TEST_F(HeadlessRun, RenderingWritesSoundAndTheLogSaysWhatWasSent) {
  write_song("in.lvx");
  EXPECT_EQ(run({"--render", path("out.wav"), path("in.lvx"), "--midi-log", path("log.txt")}), 0)
      << errors_.str();
  EXPECT_GT(fs::file_size(path("out.wav")), 44U * 100);
  // Lines are due when more than a period has passed: 25 ms and one.
  EXPECT_NE(contents(path("log.txt")).find("26.000\tshort\t00643C99\n"), std::string::npos)
      << contents(path("log.txt"));
}

TEST_F(HeadlessRun, TheDevicesAreListedWithTheirNumbers) {
  EXPECT_EQ(run({"--list-devices"}), 0);
  EXPECT_EQ(results_.str(),
            "MIDI outputs:\n  0  Synth\n  1  Module\nMIDI inputs:\n  0  No input\n");
}

TEST_F(HeadlessRun, TheVersionIsPrinted) {
  EXPECT_EQ(run({"--version"}), 0);
  EXPECT_EQ(results_.str(), "Lunavox 2.1\n");
}

TEST_F(HeadlessRun, TheHelpSaysHowTheProgramIsCalled) {
  EXPECT_EQ(run({"--help"}), 0);
  EXPECT_EQ(results_.str().substr(0, 6), "Usage:");
  EXPECT_EQ(errors_.str(), "");
}

TEST_F(HeadlessRun, EditingNeedsAWindow) {
  EXPECT_EQ(run({path("in.lvx")}), 1);
  EXPECT_EQ(errors_.str(), "lunavox: a window is needed to edit\n");
}

TEST(ConsoleDialogs, NobodyAnswersAQuestionWithoutAWindow) {
  std::ostringstream errors;
  ConsoleDialogs dialogs(errors);
  EXPECT_EQ(dialogs.input({}), "");
  EXPECT_EQ(dialogs.open_file({}), "");
  EXPECT_EQ(dialogs.save_file({}), "");
  EXPECT_FALSE(dialogs.told());
}

}  // namespace
}  // namespace lunavox

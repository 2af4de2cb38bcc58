#include "app/command_line.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

std::string error_of(const std::vector<std::string>& arguments) {
  try {
    read_command_line(arguments);
  } catch (const CommandLineError& error) {
    return error.what();
  }
  return "accepted";
}

TEST(CommandLine, NothingGivenOpensTheEditorOnANewSong) {
  const CommandLine line = read_command_line({});
  EXPECT_EQ(line.mode, Mode::kEdit);
  EXPECT_EQ(line.song, "");
}

TEST(CommandLine, ASongAloneOpensTheEditorOnIt) {
  const CommandLine line = read_command_line({"tune.lvx"});
  EXPECT_EQ(line.mode, Mode::kEdit);
  EXPECT_EQ(line.song, "tune.lvx");
}

TEST(CommandLine, ExportConvertAndRenderTakeTheResultAndTheSong) {
  EXPECT_EQ(read_command_line({"--export", "a.mid", "a.lvx"}).mode, Mode::kExport);
  EXPECT_EQ(read_command_line({"--export", "a.mid", "a.lvx"}).result_file, "a.mid");
  EXPECT_EQ(read_command_line({"--convert", "b.lvx", "a.lvo"}).mode, Mode::kConvert);
  EXPECT_EQ(read_command_line({"a.lvx", "--render=c.flac"}).result_file, "c.flac");
  EXPECT_EQ(read_command_line({"a.lvx", "--render=c.flac"}).song, "a.lvx");
}

TEST(CommandLine, PlayTakesTheSong) {
  const CommandLine line = read_command_line({"--play", "a.lvx", "--output", "2"});
  EXPECT_EQ(line.mode, Mode::kPlay);
  EXPECT_EQ(line.output, "2");
}

TEST(CommandLine, DevicesSoundFontKeyboardAndLogAreRead) {
  const CommandLine line = read_command_line({"--input", "Keystation", "--soundfont", "gm.sf2",
                                              "--keyboard", "azerty", "--midi-log", "log.txt"});
  EXPECT_EQ(line.input, "Keystation");
  EXPECT_EQ(line.soundfont, "gm.sf2");
  EXPECT_EQ(line.keyboard, "azerty");
  EXPECT_EQ(line.midi_log, "log.txt");
  EXPECT_EQ(line.output, std::nullopt);
}

TEST(CommandLine, AfterTwoDashesEverythingIsASong) {
  EXPECT_EQ(read_command_line({"--", "--strange.lvx"}).song, "--strange.lvx");
}

TEST(CommandLine, WhatIsWrongIsSaidInOneSentence) {
  EXPECT_EQ(error_of({"--loud"}), "unknown option '--loud'");
  EXPECT_EQ(error_of({"--export", "a.mid"}), "--export needs a song");
  EXPECT_EQ(error_of({"--play"}), "--play needs a song");
  EXPECT_EQ(error_of({"--render"}), "--render needs a value");
  EXPECT_EQ(error_of({"--midi-log="}), "--midi-log needs a value");
  EXPECT_EQ(error_of({"--play=a.lvx"}), "--play takes no value");
  EXPECT_EQ(error_of({"--play", "--export", "a.mid", "a.lvx"}),
            "--play and --export cannot go together");
  EXPECT_EQ(error_of({"--keyboard", "dvorak"}),
            "--keyboard is qwerty, qwertz or azerty, not 'dvorak'");
  EXPECT_EQ(error_of({"a.lvx", "b.lvx"}), "only one song can be given, not 'a.lvx' and 'b.lvx'");
  EXPECT_EQ(error_of({""}), "the song's name is empty");
}

TEST(CommandLine, TheHelpNamesEveryOption) {
  for (const char* option :
       {"--export", "--convert", "--render", "--play", "--output", "--input", "--soundfont",
        "--keyboard", "--midi-log", "--list-devices", "-V", "--version", "-h", "--help"}) {
    EXPECT_NE(help_text().find(option), std::string::npos) << option;
  }
}

}  // namespace
}  // namespace lunavox

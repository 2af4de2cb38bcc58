#include "midi/ports/audio_file.h"

#include "midi/ports/port_error.h"
#include "tests/support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sndfile.h>

namespace lunavox {
namespace {

using test::TempFolder;

struct Sound {
  SF_INFO info{};
  std::vector<float> samples;
};

Sound read_sound(const std::filesystem::path& path) {
  Sound sound;
  SNDFILE* file = sf_open(path.c_str(), SFM_READ, &sound.info);
  if (!file) return sound;
  sound.samples.resize(static_cast<std::size_t>(sound.info.frames * sound.info.channels));
  sf_readf_float(file, sound.samples.data(), sound.info.frames);
  sf_close(file);
  return sound;
}

std::string refusal(const std::filesystem::path& path) {
  try {
    AudioFile file(path, 44100);
  } catch (const PortError& error) {
    return error.what();
  }
  return "no error";
}

TEST(AudioFile, AWaveFileIsReadBackAsItWasWritten) {
  const TempFolder folder;
  const auto path = folder.file("song.wav");
  AudioFile file(path, 48000);
  file.write({0.5F, -0.5F, 0.25F, -0.25F});
  file.write({0.0F, 0.125F});
  file.close();

  const Sound sound = read_sound(path);
  EXPECT_EQ(sound.info.samplerate, 48000);
  EXPECT_EQ(sound.info.channels, 2);
  EXPECT_EQ(sound.info.format & SF_FORMAT_TYPEMASK, SF_FORMAT_WAV);
  EXPECT_EQ(sound.info.format & SF_FORMAT_SUBMASK, SF_FORMAT_PCM_16);
  EXPECT_THAT(sound.samples, testing::Pointwise(testing::FloatNear(1e-4F),
                                                {0.5F, -0.5F, 0.25F, -0.25F, 0.0F, 0.125F}));
}

TEST(AudioFile, SoundBeyondFullScaleIsClippedNotWrapped) {
  const TempFolder folder;
  const auto path = folder.file("loud.wav");
  AudioFile file(path, 44100);
  file.write({1.5F, -1.5F});
  file.close();
  EXPECT_THAT(read_sound(path).samples,
              testing::Pointwise(testing::FloatNear(1e-3F), {1.0F, -1.0F}));
}

TEST(AudioFile, TheEndingPicksTheKindOfFileInAnyCase) {
  const TempFolder folder;
  const std::vector<float> silence(2000);
  for (const auto& [name, kind] :
       {std::pair{"song.FLAC", SF_FORMAT_FLAC}, std::pair{"song.ogg", SF_FORMAT_OGG}}) {
    AudioFile file(folder.file(name), 44100);
    file.write(silence);
    file.close();
    const Sound sound = read_sound(folder.file(name));
    EXPECT_EQ(sound.info.format & SF_FORMAT_TYPEMASK, kind);
    EXPECT_EQ(sound.info.frames, 1000);
  }
}

TEST(AudioFile, AnotherEndingIsRefused) {
  EXPECT_EQ(refusal("song.mp3"), "The sound file \"song.mp3\" must end in .wav, .flac or .ogg.");
  EXPECT_EQ(refusal("song"), "The sound file \"song\" must end in .wav, .flac or .ogg.");
}

TEST(AudioFile, APlaceThatCannotBeWrittenIsTold) {
  EXPECT_EQ(refusal("/no/such/folder/song.wav"),
            "The sound file \"/no/such/folder/song.wav\" cannot be written.");
}

TEST(AudioFile, UntilItIsClosedAFileOfThatNameStaysAsItWas) {
  const TempFolder folder;
  const std::string path = folder.write("song.wav", "old");
  {
    AudioFile file(path, 44100);
    file.write({0.5F, -0.5F});
    EXPECT_EQ(folder.read("song.wav"), "old");
  }
  EXPECT_EQ(folder.read("song.wav"), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(AudioFile, ItTakesThePlaceOfAFileThatALinkLeadsToWithItsPermissions) {
  namespace fs = std::filesystem;
  const TempFolder folder;
  const std::string path = folder.write("song.wav", "old");
  const fs::perms perms = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(path, perms);
  fs::create_symlink("song.wav", folder.file("link.wav"));
  AudioFile file(folder.file("link.wav"), 44100);
  file.write({0.5F, -0.5F});
  file.close();
  EXPECT_TRUE(fs::is_symlink(folder.file("link.wav")));
  EXPECT_EQ(read_sound(path).info.frames, 1);
  EXPECT_EQ(fs::status(path).permissions(), perms);
  EXPECT_EQ(folder.entries(), 2);
}

TEST(AudioFile, AFullDiskIsTold) {
  const TempFolder folder;
  std::filesystem::create_symlink("/dev/full", folder.file("song.wav"));
  EXPECT_NE(refusal(folder.file("song.wav")), "no error");
}

}  // namespace
}  // namespace lunavox

#include "midi/ports/soundfont_search.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::TempFolder;
using namespace std::string_view_literals;

constexpr auto kSoundFontHead = "RIFF\x04\0\0\0sfbk"sv;
constexpr auto kWaveHead = "RIFF\x04\0\0\0WAVE"sv;

TEST(SoundFontSearch, TheWantedOneIsTakenWhateverElseThereIs) {
  const TempFolder folder;
  const auto wanted = folder.write("wanted.sf2", kSoundFontHead);
  const auto usual = folder.write("usual.sf2", kSoundFontHead);
  EXPECT_EQ(choose_soundfont(wanted, {usual}), (SoundFontChoice{wanted, ""}));
}

TEST(SoundFontSearch, AWantedOneThatIsMissingIsToldAndNotReplaced) {
  const TempFolder folder;
  const auto usual = folder.write("usual.sf2", kSoundFontHead);
  EXPECT_EQ(choose_soundfont("/no/such.sf2", {usual}),
            (SoundFontChoice{{}, "The SoundFont \"/no/such.sf2\" does not exist."}));
}

TEST(SoundFontSearch, AnotherKindOfFileIsTold) {
  const TempFolder folder;
  const auto wave = folder.write("wave.sf2", kWaveHead);
  EXPECT_EQ(choose_soundfont(wave, {}).problem, "The file \"" + wave + "\" is not a SoundFont.");
  const auto empty = folder.write("empty.sf2", "");
  EXPECT_EQ(choose_soundfont(empty, {}).problem, "The file \"" + empty + "\" is not a SoundFont.");
}

TEST(SoundFontSearch, AFolderIsNoSoundFont) {
  const TempFolder folder;
  EXPECT_EQ(choose_soundfont(folder.file(""), {}).problem,
            "The file \"" + folder.file("") + "\" is not a SoundFont.");
}

TEST(SoundFontSearch, WithNoneWantedTheFirstUsualOneThatIsOneIsTaken) {
  const TempFolder folder;
  const auto wave = folder.write("wave.sf2", kWaveHead);
  const auto second = folder.write("second.sf2", kSoundFontHead);
  const auto third = folder.write("third.sf2", kSoundFontHead);
  EXPECT_EQ(choose_soundfont({}, {"/no/such.sf2", wave, second, third}),
            (SoundFontChoice{second, ""}));
}

TEST(SoundFontSearch, AMachineWithoutOneIsToldWhatToInstall) {
  EXPECT_EQ(choose_soundfont({}, {"/no/such.sf2"}).problem,
            "No SoundFont was found: install one, such as the package timgm6mb-soundfont.");
}

}  // namespace
}  // namespace lunavox

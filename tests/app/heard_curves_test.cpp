#include "app/headless.h"
#include "midi/ports/null_device.h"
#include "tests/support/editor_bench.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using Messages = std::vector<std::uint32_t>;

constexpr int kControlKey = 17;
constexpr int kActive2 = 4;  // columns of track 2 in `effects`
constexpr int kStart2 = 5;
constexpr int kShow2 = 6;
constexpr int kEffect2 = 18;  // its effect column in `tracks`

/// A song of nine lines whose track 2, on channel 1, fades its volume, sweeps its pan and bends its
/// pitch. Every curve is drawn as a user draws it: switched on, started, shown, typed into.
struct BentSong {
  BentSong() {
    bench.start();
    editor.song_length.length_validate("9");
    editor.tracks.addinstrutrack();
    draw(kVolume, "100", {{9, "0"}});
    draw(kPan, "1", {{5, "127"}, {9, "0"}});
    draw(kPitch, "64", {{5, "127"}, {7, "64"}});
    editor.song.tracks.set_cursor(1, 1);
    bench.output.calls.clear();
  }

  struct Key {
    int row;
    std::string text;
  };

  void draw(int effect, const std::string& start, const std::vector<Key>& keys) {
    editor.curves.effects_click(kActive2, effect);
    bench.dialogs.inputs = {start};
    editor.curves.effects_click(kStart2, effect);
    editor.curves.effects_click(kShow2, effect);
    for (const Key& key : keys) type(key);
  }

  void type(const Key& key) {
    editor.song.tracks.set_cursor(1, 1);
    editor.song.tracks.set_cursor(key.row, kEffect2);
    while (!editor.song.tracks.text(key.row, kEffect2).empty()) editor.typing_mode.key_press("\b");
    for (const char c : key.text + '\r') editor.typing_mode.key_press(std::string(1, c));
  }

  /// What goes out until the clock has come past the next line.
  Messages next_line() {
    bench.clock.advance(126);
    editor.current_loop.get()->pass(bench.clock.timeGetTime());
    return bench.output.take_shorts();
  }

  test::EditorBench bench;
  Editor& editor = bench.editor;
};

/// Volume, pan and pitch of each line.
const std::vector<Messages>& bent_lines() {
  // Volume falls by 12.5 a line, pan climbs by 31.5 and falls by 31.75, pitch climbs by 15.75,
  // falls by 31.5 and holds. Halves go to the even number: 87.5 to 88, 62.5 to 62.
  static const std::vector<Messages> kLines = {
      {0x6407B0, 0x010AB0, 0x4000E0},  // 100,   1,  64
      {0x5807B0, 0x200AB0, 0x5000E0},  //  88,  32,  80
      {0x4B07B0, 0x400AB0, 0x6000E0},  //  75,  64,  96
      {0x3E07B0, 0x600AB0, 0x6F00E0},  //  62,  96, 111
      {0x3207B0, 0x7F0AB0, 0x7F00E0},  //  50, 127, 127
      {0x2607B0, 0x5F0AB0, 0x6000E0},  //  38,  95,  96
      {0x1907B0, 0x400AB0, 0x4000E0},  //  25,  64,  64
      {0x0C07B0, 0x200AB0, 0x4000E0},  //  12,  32,  64
      {0x0007B0, 0x000AB0, 0x4000E0},  //   0,   0,  64
  };
  return kLines;
}

TEST(HeardCurves, AFadeASweepAndABendAreSentLineByLine) {
  BentSong song;
  song.editor.transport.key_down(kControlKey);
  for (int line = 0; line < 8; ++line) {
    EXPECT_EQ(song.next_line(), bent_lines().at(static_cast<std::size_t>(line))) << line;
  }
  // On the last line the song ends, which resets the channels.
  const Messages last = song.next_line();
  ASSERT_GT(last.size(), 3U);
  EXPECT_EQ(Messages(last.begin(), last.begin() + 3), bent_lines().back());
  EXPECT_FALSE(song.editor.flags.playing);
}

TEST(HeardCurves, ACurveThatIsSwitchedOffWhilePlayingIsSilentFromTheNextLineOn) {
  BentSong song;
  song.editor.transport.key_down(kControlKey);
  EXPECT_EQ(song.next_line(), bent_lines()[0]);
  song.editor.curves.effects_click(kActive2, kPan);
  EXPECT_EQ(song.next_line(), (Messages{0x5807B0, 0x5000E0}));
  song.editor.curves.effects_click(kActive2, kPan);
  EXPECT_EQ(song.next_line(), bent_lines()[2]);
}

/// The short messages that a log holds, in order.
Messages shorts_in(const std::string& log) {
  Messages found;
  std::istringstream lines(log);
  std::string time;
  std::string kind;
  std::string digits;
  while (lines >> time >> kind >> digits) {
    if (kind != "short") continue;
    found.push_back(static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16)));
  }
  return found;
}

TEST(HeardCurves, TheSavedSongPlayedWithoutAWindowIsLoggedWithTheSameValues) {
  BentSong song;
  song.editor.song.bpm.put("300");
  song.editor.song.number.put("8");
  song.editor.song_file.current_name = song.bench.folder.file("bent.lvx");
  song.editor.song_file.procsave();
  test::RecordingOutput outputs;
  NullInputDevices inputs;
  std::ostringstream results;
  std::ostringstream errors;
  std::atomic<bool> stop{false};
  const std::string log = song.bench.folder.file("log.txt");
  ASSERT_EQ(run_headless(read_command_line({"--play", song.bench.folder.file("bent.lvx"),
                                            "--output", "module", "--midi-log", log}),
                         {outputs, inputs, results, errors, stop}),
            0)
      << errors.str();
  Messages expected;
  for (const Messages& line : bent_lines())
    expected.insert(expected.end(), line.begin(), line.end());
  const Messages logged = shorts_in(song.bench.folder.read("log.txt"));
  const auto first = std::search(logged.begin(), logged.end(), expected.begin(), expected.end());
  EXPECT_NE(first, logged.end()) << song.bench.folder.read("log.txt");
  EXPECT_EQ(logged, outputs.shorts());
}

}  // namespace
}  // namespace lunavox

// What is exported is what is played: the notes and controllers of exported files, line by line,
// beside what the play loop sends.

#include "files/midi_export.h"
#include "grid/note_text.h"
#include "tests/support/studio.h"

#include <algorithm>
#include <map>
#include <random>
#include <string_view>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Studio;

/// Packed short messages of a line, by channel.
using Line = std::map<int, std::vector<std::uint32_t>>;

/// Reads the events of a Standard MIDI File as the standard has it.
class MidiReader {
 public:
  explicit MidiReader(std::string_view bytes) : rest_(bytes) {}

  /// The channel messages of all tracks by their tick, those of tick 0 left out.
  std::map<int, Line> lines() {
    EXPECT_EQ(take(4), "MThd");
    take(10);
    std::map<int, Line> lines;
    while (!rest_.empty()) {
      EXPECT_EQ(take(4), "MTrk");
      take(4);
      read_track(lines);
    }
    return lines;
  }

 private:
  void read_track(std::map<int, Line>& lines) {
    int tick = 0;
    while (true) {
      tick += variable_length();
      const int status = byte();
      if (status == 0xFF) {
        const bool end = byte() == 0x2F;
        take(static_cast<std::size_t>(variable_length()));
        if (end) return;
      } else if (status == 0xF0) {
        take(static_cast<std::size_t>(variable_length()));
      } else {
        std::uint32_t message = static_cast<std::uint32_t>(status | byte() << 8);
        if (status / 16 != 0xC) message |= static_cast<std::uint32_t>(byte()) << 16;
        if (tick > 0) lines[tick][status % 16].push_back(message);
      }
    }
  }

  std::string_view take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  int byte() { return static_cast<unsigned char>(take(1).at(0)); }
  int variable_length() {
    int value = 0;
    while (true) {
      const int next = byte();
      value = value * 128 + next % 128;
      if (next < 128) return value;
    }
  }

  std::string_view rest_;
};

/// A song of some tracks with random notes and curves.
void fill(Studio& studio, std::mt19937& random) {
  Song& song = studio.song;
  for (auto more = random() % 9; more > 0; --more) studio.tracks.addinstrutrack();
  for (int track = 1; track <= song.track_count; ++track) {
    for (int e = kFirstEffect; e <= kLastEffect; ++e) {
      const bool active = random() % 4 == 0 || (e == kInstrument && random() % 8 != 0);
      song.active.at(track)[static_cast<std::size_t>(e)] = active;
      for (int row = 1; row <= song.last_row(); ++row) {
        song.values.at(track, e, row) = static_cast<std::int16_t>(random() % 128);
      }
    }
    for (int column = 1; column <= kNoteColumns; ++column) {
      for (int row = 1; row <= song.last_row(); ++row) {
        const auto kind = random() % 4;
        if (kind == 0) song.write_entry(track, column, row, std::string(kStop));
        if (kind != 1) continue;
        const int velocity = 1 + static_cast<int>(random() % 127);
        song.write_entry(
            track, column, row,
            note_text(velocity, static_cast<int>(random() % 128), song.channel.at(track)));
      }
    }
  }
}

/// What the play loop sends on its next line. Empty pending note-offs, which it sends as 0, say
/// nothing.
Line played_line(Studio& studio) {
  studio.run(125);
  Line line;
  for (const std::uint32_t message : studio.sent()) {
    if (message != 0) line[static_cast<int>(message % 16)].push_back(message);
  }
  return line;
}

/// The channels of tracks that play but have no active curve.
std::vector<int> channels_without_curves(const Song& song) {
  std::vector<int> channels;
  for (int track = 1; track <= song.track_count; ++track) {
    const auto& active = song.active.at(track);
    if (!active[kInstrument]) continue;
    if (std::none_of(active.begin() + kFirstCurve, active.end(), [](bool on) { return on; })) {
      channels.push_back(song.channel.at(track));
    }
  }
  return channels;
}

/// Takes out the volume that stands in a file on each line of a track without curves.
void take_out_volume(Line& line, const std::vector<int>& channels) {
  for (const int channel : channels) {
    auto& messages = line[channel];
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.front(), 0x7F07B0U + static_cast<std::uint32_t>(channel));
    messages.erase(messages.begin());
    if (messages.empty()) line.erase(channel);
  }
}

TEST(ExportAndPlayback, SendTheSameOnEveryLineOfRandomSongs) {
  constexpr int kLines = 24;
  std::size_t compared = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937 random(seed);
    Studio studio(kLines);
    studio.song.length.put(std::to_string(kLines));
    fill(studio, random);
    std::map<int, Line> exported = MidiReader(midi_file_bytes(studio.song)).lines();
    studio.song.tracks.set_cursor(1, 1);
    studio.play_loop.start();
    studio.clock.advance(1);
    studio.output.calls.clear();
    // The song's last line is played but not exported.
    for (int row = 1; row < kLines; ++row) {
      take_out_volume(exported[row], channels_without_curves(studio.song));
      ASSERT_EQ(played_line(studio), exported[row]) << "seed " << seed << ", row " << row;
      for (const auto& [channel, messages] : exported[row]) compared += messages.size();
    }
  }
  EXPECT_GT(compared, 10000U);
}

}  // namespace
}  // namespace lunavox

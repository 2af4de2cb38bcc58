#include "files/midi_export.h"

#include "grid/runtime_error.h"
#include "tests/support/song_bench.h"

#include <array>
#include <cstdio>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::SongBench;
using test::TempFolder;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The bytes that hexadecimal pairs stand for; blanks and line ends between them are for the eye.
std::string bytes(const std::string& pairs) {
  std::istringstream in(pairs);
  std::string result;
  for (std::string pair; in >> pair;) {
    result += static_cast<char>(std::stoi(pair, nullptr, 16));
  }
  return result;
}

/// The XG set-up with the first items of the lists.
const char* const kXgSetup =
    "00 F0 08 43 10 4C 00 00 7E 00 F7 "
    "00 F0 08 43 10 4C 02 01 58 40 F7 "
    "00 F0 08 43 10 4C 02 01 59 40 F7 "
    "00 F0 08 43 10 4C 02 01 5A 01 F7 "
    "00 F0 09 43 10 4C 02 01 00 01 00 F7 "
    "00 F0 09 43 10 4C 02 01 20 41 00 F7 "
    "00 F0 09 43 10 4C 02 01 40 05 00 F7 ";

const char* const kHeaderOfOneTrack = "4D 54 68 64 00 00 00 06 00 01 00 01 00 04 4D 54 72 6B ";

/// Set-up of a new drum track.
const std::string kDrumSetup =
    std::string("00 FF 51 03 07 A1 20 00 B9 00 7F 00 B9 20 00 00 C9 00 ") + kXgSetup;

void set_active(Song& song, int track, int effect, bool active) {
  song.active.at(track)[static_cast<std::size_t>(effect)] = active;
}

/// What a program prints; the test fails where it cannot be run.
std::string output_of(const std::string& command) {
  std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return {};
  std::string output;
  std::array<char, 4096> part;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
    output.append(part.data(), count);
  }
  EXPECT_EQ(::pclose(pipe), 0) << command << "\n" << output;
  return output;
}

TEST(MidiExport, ANewSongIsExportedByteForByteAsWrittenByHand) {
  const SongBench bench(3);
  EXPECT_EQ(midi_file_bytes(bench.song), bytes(kHeaderOfOneTrack + std::string("00 00 00 6E ") +
                                               kDrumSetup + "01 B9 07 7F 01 B9 07 7F 00 FF 2F 00"));
}

TEST(MidiExport, TheSongsLastLineIsNotExported) {
  SongBench bench(3);
  bench.song.write_entry(1, 1, 3, "642499");
  EXPECT_EQ(midi_file_bytes(bench.song), midi_file_bytes(SongBench(3).song));
}

TEST(MidiExport, NotesOfAColumnEndBeforeTheNextOneAndAtAStop) {
  SongBench bench(5);
  bench.song.write_entry(1, 1, 1, "642499");
  bench.song.write_entry(1, 1, 2, "A2699");
  bench.song.write_entry(1, 1, 3, "stop");
  bench.song.write_entry(1, 1, 4, "stop");
  bench.song.write_entry(1, 8, 2, "7F2A99");
  bench.song.write_entry(1, 8, 4, "stop");
  EXPECT_EQ(midi_file_bytes(bench.song),
            bytes(kHeaderOfOneTrack + std::string("00 00 00 8E ") + kDrumSetup +
                  "01 B9 07 7F 00 99 24 64 "
                  "01 B9 07 7F 00 99 24 00 00 99 26 0A 00 99 2A 7F "
                  "01 B9 07 7F 00 99 26 00 "
                  "01 B9 07 7F 00 99 2A 00 "
                  "00 FF 2F 00"));
}

TEST(MidiExport, NotesStillSoundingAreEndedColumnByColumn) {
  SongBench bench(2);
  bench.song.write_entry(1, 2, 1, "642499");
  bench.song.write_entry(1, 5, 1, "642699");
  bench.song.write_entry(1, 7, 1, "642A99");
  EXPECT_THAT(midi_file_bytes(bench.song),
              ::testing::EndsWith(bytes("01 B9 07 7F 00 99 24 64 00 99 26 64 00 99 2A 64 "
                                        "01 99 24 00 00 99 26 00 00 99 2A 00 00 FF 2F 00")));
}

TEST(MidiExport, ActiveCurvesAreWrittenOnEveryLineInOrder) {
  SongBench bench(3);
  for (int e = 2; e <= 11; ++e) {
    set_active(bench.song, 1, e, true);
    bench.song.values.at(1, e, 1) = static_cast<std::int16_t>(e);
    bench.song.values.at(1, e, 2) = static_cast<std::int16_t>(10 * e);
  }
  bench.song.write_entry(1, 1, 2, "642499");
  bench.song.write_entry(1, 1, 3, "stop");
  EXPECT_THAT(
      midi_file_bytes(bench.song),
      ::testing::EndsWith(bytes("01 B9 07 02 00 B9 0A 03 00 B9 01 04 00 B9 4A 05 00 B9 5B 06 "
                                "00 B9 5D 07 00 B9 5E 08 00 B9 49 09 00 B9 48 0A 00 E9 00 0B "
                                "01 B9 07 14 00 B9 0A 1E 00 B9 01 28 00 B9 4A 32 00 B9 5B 3C "
                                "00 B9 5D 46 00 B9 5E 50 00 B9 49 5A 00 B9 48 64 00 E9 00 6E "
                                "00 99 24 64 01 99 24 00 00 FF 2F 00")));
}

TEST(MidiExport, ValuesBeyondADataByteAreWrittenAsTheyCome) {
  SongBench bench(2);
  set_active(bench.song, 1, kVolume, true);
  bench.song.values.at(1, kVolume, 1) = 200;
  EXPECT_THAT(midi_file_bytes(bench.song), ::testing::EndsWith(bytes("01 B9 07 C8 00 FF 2F 00")));
  bench.song.values.at(1, kVolume, 1) = 300;  // 12C: the first of an odd number of digits is lost
  EXPECT_THAT(midi_file_bytes(bench.song), ::testing::EndsWith(bytes("01 B9 07 2C 00 FF 2F 00")));
}

TEST(MidiExport, AnInactiveInstrumentYieldsOnlyTheSetUp) {
  SongBench bench(64);
  set_active(bench.song, 1, kInstrument, false);
  set_active(bench.song, 1, kVolume, true);
  bench.song.write_entry(1, 1, 1, "642499");
  EXPECT_EQ(midi_file_bytes(bench.song),
            bytes(kHeaderOfOneTrack + std::string("00 00 00 66 ") + kDrumSetup + "00 FF 2F 00"));
}

TEST(MidiExport, EachTrackIsAChunkOnItsChannel) {
  SongBench bench(2);
  bench.tracks.addinstrutrack();
  bench.song.bank.at(2) = 18;
  bench.song.values.at(2, kInstrument, 1) = 33;
  bench.song.write_entry(2, 1, 1, "643C95");
  const std::string setup =
      std::string("00 FF 51 03 07 A1 20 00 B0 00 00 00 B0 20 12 00 C0 21 ") + kXgSetup;
  EXPECT_EQ(midi_file_bytes(bench.song),
            bytes("4D 54 68 64 00 00 00 06 00 01 00 02 00 04 "
                  "4D 54 72 6B 00 00 00 6A " +
                  kDrumSetup + "01 B9 07 7F 00 FF 2F 00 4D 54 72 6B 00 00 00 72 " + setup +
                  "01 B0 07 7F 00 90 3C 64 01 90 3C 00 00 FF 2F 00"))
      << "the track's channel counts, not the message's";
}

TEST(MidiExport, TempoAndLinesPerBeatAreTheSongs) {
  SongBench bench(2);
  bench.song.bpm.put("130");
  bench.song.number.put("6");
  const std::string file = midi_file_bytes(bench.song);
  EXPECT_EQ(file.substr(8, 6), bytes("00 01 00 01 00 06"));
  EXPECT_EQ(file.substr(22, 7), bytes("00 FF 51 03 07 0A E2"));
}

TEST(MidiExport, TheEffectTypesAreThoseOfTheLists) {
  SongBench bench(2);
  bench.song.reverb = 8;
  bench.song.chorus = -1;
  bench.song.variation = 16;
  EXPECT_THAT(midi_file_bytes(bench.song),
              HasSubstr(bytes("00 F0 09 43 10 4C 02 01 00 10 00 F7 00 F0 06 43 10 4C 02 01 F7 "
                              "00 F0 09 43 10 4C 02 01 40 48 08 F7")));
}

TEST(MidiExport, ALengthBeyondTheSongBreaksTheBound) {
  SongBench bench(2);
  bench.song.length.put("2000000000");
  EXPECT_THROW(midi_file_bytes(bench.song), RuntimeError);
}

TEST(MidiExport, ShowsItsProgressTrackByTrack) {
  const TempFolder folder;
  SongBench bench(2);
  bench.tracks.addinstrutrack();
  bench.progress.shown.clear();
  MidiExport exporter(bench.song, bench.progress);
  exporter.export_name = folder.file("song.mid");
  exporter.procexport();
  EXPECT_THAT(bench.progress.shown,
              ElementsAre(test::RecordedProgress::Shown{"exporting...", 2, 2}));
  EXPECT_FALSE(bench.progress.visible);
  EXPECT_EQ(folder.read("song.mid"), midi_file_bytes(bench.song));
}

TEST(MidiExport, AFailedExportKeepsTheOldFile) {
  const TempFolder folder;
  SongBench bench(2);
  MidiExport exporter(bench.song, bench.progress);
  exporter.export_name = folder.write("song.mid", "old");
  bench.song.bpm.put("0");
  EXPECT_THROW(exporter.procexport(), RuntimeError);
  EXPECT_EQ(folder.read("song.mid"), "old");
  EXPECT_EQ(folder.entries(), 1);
}

class ExportedFile : public ::testing::Test {
 protected:
  ExportedFile() {
    bench.tracks.addinstrutrack();
    bench.song.write_entry(1, 1, 1, "642499");
    bench.song.write_entry(2, 1, 1, "643C90");
    bench.song.write_entry(2, 1, 2, "stop");
    set_active(bench.song, 2, kPitch, true);
    bench.song.values.at(2, kPitch, 2) = 100;
    MidiExport exporter(bench.song, bench.progress);
    exporter.export_name = folder.file("song.mid");
    exporter.procexport();
  }

  TempFolder folder;
  SongBench bench{3};
};

TEST_F(ExportedFile, IsReadByMidicsv) {
  const std::string xg =
      "System_exclusive, 8, 67, 16, 76, 0, 0, 126, 0, 247\n"
      "System_exclusive, 8, 67, 16, 76, 2, 1, 88, 64, 247\n"
      "System_exclusive, 8, 67, 16, 76, 2, 1, 89, 64, 247\n"
      "System_exclusive, 8, 67, 16, 76, 2, 1, 90, 1, 247\n"
      "System_exclusive, 9, 67, 16, 76, 2, 1, 0, 1, 0, 247\n"
      "System_exclusive, 9, 67, 16, 76, 2, 1, 32, 65, 0, 247\n"
      "System_exclusive, 9, 67, 16, 76, 2, 1, 64, 5, 0, 247\n";
  const auto setup = [&](const std::string& track) {
    std::string lines;
    std::istringstream in(xg);
    for (std::string line; std::getline(in, line);) lines += track + ", 0, " + line + "\n";
    return lines;
  };
  EXPECT_EQ(output_of("midicsv " + folder.file("song.mid")),
            "0, 0, Header, 1, 2, 4\n"
            "1, 0, Start_track\n"
            "1, 0, Tempo, 500000\n"
            "1, 0, Control_c, 9, 0, 127\n"
            "1, 0, Control_c, 9, 32, 0\n"
            "1, 0, Program_c, 9, 0\n" +
                setup("1") +
                "1, 1, Control_c, 9, 7, 127\n"
                "1, 1, Note_on_c, 9, 36, 100\n"
                "1, 2, Control_c, 9, 7, 127\n"
                "1, 3, Note_on_c, 9, 36, 0\n"
                "1, 3, End_track\n"
                "2, 0, Start_track\n"
                "2, 0, Tempo, 500000\n"
                "2, 0, Control_c, 0, 0, 0\n"
                "2, 0, Control_c, 0, 32, 0\n"
                "2, 0, Program_c, 0, 0\n" +
                setup("2") +
                "2, 1, Pitch_bend_c, 0, 8192\n"
                "2, 1, Note_on_c, 0, 60, 100\n"
                "2, 2, Pitch_bend_c, 0, 12800\n"
                "2, 2, Note_on_c, 0, 60, 0\n"
                "2, 2, End_track\n"
                "0, 0, End_of_file\n");
}

TEST_F(ExportedFile, IsReadByMido) {
  const std::string script =
      "/usr/bin/python3 -c 'import mido,sys\n"
      "f=mido.MidiFile(sys.argv[1])\n"
      "print(f.type,f.ticks_per_beat,len(f.tracks))\n"
      "for m in f.tracks[1]:\n"
      "  if m.type!=\"sysex\": print(m.type,m.time,*(m.bytes()))' ";
  EXPECT_EQ(output_of(script + folder.file("song.mid")),
            "1 4 2\n"
            "set_tempo 0 255 81 3 7 161 32\n"
            "control_change 0 176 0 0\n"
            "control_change 0 176 32 0\n"
            "program_change 0 192 0\n"
            "pitchwheel 1 224 0 64\n"
            "note_on 0 144 60 100\n"
            "pitchwheel 1 224 0 100\n"
            "note_on 0 144 60 0\n"
            "end_of_track 0 255 47 0\n");
}

}  // namespace
}  // namespace lunavox

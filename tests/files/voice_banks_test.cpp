#include "files/voice_banks.h"

#include "grid/runtime_error.h"
#include "tests/support/song_bench.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// Records of one program, named after it and the voice.
std::string program_of(int program, int voices) {
  std::string records;
  for (int voice = 1; voice <= voices; ++voice) {
    records += "P" + std::to_string(program) + "V" + std::to_string(voice) + "," +
               std::to_string(10 * voice) + "," + std::to_string(program) + "\r\n";
  }
  return records;
}

RuntimeError::Number error_of_voices(const std::string& bytes) {
  try {
    VoiceBanks::parse(bytes);
  } catch (const RuntimeError& error) {
    return error.number();
  }
  ADD_FAILURE() << "no error";
  return RuntimeError::kFileNotFound;
}

TEST(VoiceBanks, AFirstRecordOfProgramZeroFillsRowZeroFromColumnZero) {
  const VoiceBanks banks = VoiceBanks::parse("GrandPno,0,0\r\nDream,41,0\r\nBritePno,0,1\r\n");
  EXPECT_EQ(banks.name(0, 0), "GrandPno");
  EXPECT_EQ(banks.name(0, 1), "Dream");
  EXPECT_EQ(banks.bank(1, 0), 41);
  EXPECT_EQ(banks.name(1, 0), "BritePno");
  for (int column = 2; column < 9; ++column) EXPECT_EQ(banks.name(0, column), "--------");
}

TEST(VoiceBanks, AFirstRecordOfAnotherProgramLeavesRowZeroWithoutAVoice) {
  const VoiceBanks banks = VoiceBanks::parse("Five,3,5\r\n");
  for (int column = 0; column < 9; ++column) EXPECT_EQ(banks.name(0, column), "--------");
  EXPECT_EQ(banks.name(1, 0), "Five");
  EXPECT_EQ(banks.bank(0, 1), 3);
}

TEST(VoiceBanks, ProgramsWithNineVoicesFillTheirRows) {
  const VoiceBanks banks = VoiceBanks::parse(program_of(0, 9) + program_of(1, 9));
  EXPECT_EQ(banks.name(0, 8), "P0V9");
  EXPECT_EQ(banks.name(1, 0), "P1V1");
  EXPECT_EQ(banks.name(1, 8), "P1V9");
}

TEST(VoiceBanks, ATenthVoiceIsReadAndDropped) {
  const VoiceBanks banks = VoiceBanks::parse(program_of(0, 12) + program_of(1, 1));
  EXPECT_EQ(banks.name(0, 8), "P0V9");
  EXPECT_EQ(banks.bank(8, 0), 90);
  EXPECT_EQ(banks.bank(9, 0), 0);
  EXPECT_EQ(banks.name(1, 0), "P1V1");
}

TEST(VoiceBanks, TheCellsAfterTheLastVoiceOfAllAreEmpty) {
  const VoiceBanks banks = VoiceBanks::parse("GrandPno,0,0\r\n");
  EXPECT_EQ(banks.name(0, 1), "");
  EXPECT_EQ(banks.name(127, 8), "");
  EXPECT_FALSE(banks.has_voice(0, 1));
}

TEST(VoiceBanks, ARowIsStartedByEveryChangeOfTheProgramNumber) {
  const VoiceBanks banks = VoiceBanks::parse("A,0,0\r\nB,0,7\r\nC,0,0\r\n");
  EXPECT_EQ(banks.name(1, 0), "B");
  EXPECT_EQ(banks.name(2, 0), "C");
}

TEST(VoiceBanks, RecordsMayTakeSeveralLinesAndQuotedNamesHoldCommas) {
  const VoiceBanks banks = VoiceBanks::parse("\"Piano, soft\"\n 18 \n 0 \nNext,0,1");
  EXPECT_EQ(banks.name(0, 0), "Piano, soft");
  EXPECT_EQ(banks.bank(0, 0), 18);
  EXPECT_EQ(banks.name(1, 0), "Next");
}

TEST(VoiceBanks, AnEmptyFileHasNoVoices) {
  EXPECT_EQ(VoiceBanks::parse("").name(0, 0), "");
}

TEST(VoiceBanks, ARecordCutShortFails) {
  EXPECT_EQ(error_of_voices("GrandPno,0"), RuntimeError::kInputPastEndOfFile);
  EXPECT_EQ(error_of_voices("GrandPno,0,0\r\n\r\n"), RuntimeError::kInputPastEndOfFile);
}

TEST(VoiceBanks, MoreRowsThanProgramsBreakTheBound) {
  std::string records;
  for (int program = 0; program < 128; ++program) records += program_of(program, 1);
  EXPECT_EQ(VoiceBanks::parse(records).name(127, 0), "P127V1");
  EXPECT_EQ(error_of_voices(records + program_of(128, 1)), RuntimeError::kSubscriptOutOfRange);
}

TEST(VoiceBanks, ANumberThatDoesNotFitOverflows) {
  EXPECT_EQ(error_of_voices("A,40000,0"), RuntimeError::kOverflow);
}

TEST(VoiceBanks, AMissingFileIsNotFound) {
  const test::TempFolder folder;
  EXPECT_THROW(VoiceBanks::read(folder.file("instrubank.ini")), RuntimeError);
  EXPECT_THROW(DrumKits::read(folder.file("drumbank.ini")), RuntimeError);
}

TEST(VoiceBanks, TheGridAndTheBankTableHaveTheirBounds) {
  const VoiceBanks banks;
  EXPECT_THROW(banks.name(128, 0), RuntimeError);
  EXPECT_THROW(banks.name(0, 9), RuntimeError);
  EXPECT_EQ(banks.bank(9, 127), 0);
  EXPECT_THROW(banks.bank(10, 0), RuntimeError);
  EXPECT_THROW(banks.bank(0, 128), RuntimeError);
}

const char* const kNineKits =
    "standard 1,0\r\nstandard 2,1\r\nroom,8\r\nrock,16\r\nelectro,24\r\nanalog,25\r\n"
    "jazz,32\r\nbrush,40\r\nclassic,48\r\n";

TEST(DrumKits, NineRecordsAreRead) {
  const DrumKits kits = DrumKits::parse(kNineKits);
  ASSERT_EQ(kits.kits().size(), 9U);
  EXPECT_EQ(kits.kits()[0], (DrumKit{"standard 1", 0}));
  EXPECT_EQ(kits.kits()[8], (DrumKit{"classic", 48}));
  EXPECT_EQ(kits.index_of(25), 5);
  EXPECT_EQ(kits.index_of(2), -1);
}

TEST(DrumKits, ARecordMayStandOnTwoLines) {
  std::string lines;
  for (int i = 1; i <= 9; ++i) lines += "kit\n " + std::to_string(i) + " \n";
  EXPECT_EQ(DrumKits::parse(lines).kits()[8], (DrumKit{"kit", 9}));
}

TEST(DrumKits, NothingAfterTheNinthRecordIsRead) {
  EXPECT_EQ(DrumKits::parse(std::string(kNineKits) + "broken,99999").kits().size(), 9U);
}

TEST(DrumKits, FewerThanNineRecordsFail) {
  EXPECT_THROW(DrumKits::parse("standard 1,0\r\n"), RuntimeError);
}

TEST(ShippedBanks, HoldEveryProgramWithItsVoicesInAscendingBankOrder) {
  const VoiceBanks banks = VoiceBanks::read(LUNAVOX_DATA "/instrubank.ini");
  for (int program = 0; program < 128; ++program) {
    ASSERT_TRUE(banks.has_voice(program, 0)) << program;
    for (int column = 1; column < 9 && banks.has_voice(program, column); ++column) {
      ASSERT_GT(banks.bank(column, program), banks.bank(column - 1, program)) << program;
    }
  }
  EXPECT_EQ(banks.name(0, 0), "GrandPno");
  EXPECT_EQ(banks.name(0, 4), "Dream");
  EXPECT_EQ(banks.bank(4, 0), 41);
  EXPECT_EQ(banks.name(127, 0), "Gunshot");
}

TEST(ShippedBanks, HoldNineDrumKits) {
  const DrumKits kits = DrumKits::read(LUNAVOX_DATA "/drumbank.ini");
  EXPECT_EQ(kits.kits()[0], (DrumKit{"standard 1", 0}));
  EXPECT_EQ(kits.kits()[8], (DrumKit{"classic", 48}));
}

TEST(VoiceName, IsFoundByBankAndProgram) {
  test::SongBench bench;
  bench.tracks.addinstrutrack();
  const VoiceBanks voices = VoiceBanks::parse("GrandPno,0,0\r\nDream,41,0\r\n");
  const DrumKits kits = DrumKits::parse(kNineKits);
  EXPECT_EQ(voice_name_of(bench.song, 2, voices, kits), "GrandPno");
  bench.song.bank.at(2) = 41;
  EXPECT_EQ(voice_name_of(bench.song, 2, voices, kits), "Dream");
  bench.song.values.at(1, kInstrument, 1) = 40;
  EXPECT_EQ(voice_name_of(bench.song, 1, voices, kits), "brush");
}

TEST(VoiceName, OfAVoiceThatIsNotListedIsTheSongsOwn) {
  test::SongBench bench;
  bench.tracks.addinstrutrack();
  bench.song.bank.at(2) = 99;
  bench.song.effects.set_text(1, 5, "Mystery");
  bench.song.values.at(1, kInstrument, 1) = 300;
  EXPECT_EQ(voice_name_of(bench.song, 2, VoiceBanks(), DrumKits()), "Mystery");
  EXPECT_EQ(voice_name_of(bench.song, 1, VoiceBanks(), DrumKits()), "standard 1");
}

}  // namespace
}  // namespace lunavox

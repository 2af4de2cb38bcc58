#include "files/voice_banks.h"

#include "grid/runtime_error.h"
#include "tests/support/error_of.h"
#include "tests/support/temp_folder.h"

#include <string>

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

std::optional<RuntimeError::Number> error_of_voices(const std::string& bytes) {
  return test::error_of([&] { VoiceBanks::parse(bytes); });
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
}

TEST(VoiceBanks, TheGridAndTheBankTableHaveTheirBounds) {
  const VoiceBanks banks;
  EXPECT_THROW(banks.name(128, 0), RuntimeError);
  EXPECT_THROW(banks.name(0, 9), RuntimeError);
  EXPECT_EQ(banks.bank(9, 127), 0);
  EXPECT_THROW(banks.bank(10, 0), RuntimeError);
  EXPECT_THROW(banks.bank(0, 128), RuntimeError);
}

TEST(VoiceBanks, TheShippedOnesHoldEveryProgramWithItsVoicesInAscendingBankOrder) {
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

}  // namespace
}  // namespace lunavox

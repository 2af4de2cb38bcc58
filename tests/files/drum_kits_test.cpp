#include "files/drum_kits.h"

#include "grid/runtime_error.h"
#include "tests/support/temp_folder.h"

#include <string>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

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

TEST(DrumKits, AMissingFileIsNotFound) {
  const test::TempFolder folder;
  EXPECT_THROW(DrumKits::read(folder.file("drumbank.ini")), RuntimeError);
}

TEST(DrumKits, TheShippedOnesAreNine) {
  const DrumKits kits = DrumKits::read(LUNAVOX_DATA "/drumbank.ini");
  EXPECT_EQ(kits.kits()[0], (DrumKit{"standard 1", 0}));
  EXPECT_EQ(kits.kits()[8], (DrumKit{"classic", 48}));
}

}  // namespace
}  // namespace lunavox

#include "files/config.h"

#include "grid/runtime_error.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::TempFolder;

TEST(Config, ALineWithoutADigitAsksForTheDevice) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "input=\r\nboot=1\r\n"));
  config.load();
  EXPECT_TRUE(config.asks_for_input());
}

TEST(Config, TheDigitIsTheDevice) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "input=3\r\nboot=1\r\n"));
  config.load();
  EXPECT_FALSE(config.asks_for_input());
  EXPECT_EQ(config.input_device(), 3);
}

TEST(Config, OnlyTheLastCharacterOfTheLineCounts) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "input=12\r\nboot=1\r\n"));
  config.load();
  EXPECT_EQ(config.input_device(), 2);
}

TEST(Config, ADeviceIsStoredAsItsLastDigit) {
  const TempFolder folder;
  Config config(folder.file("lvconfig.ini"));
  config.store_input_device(12);
  EXPECT_EQ(folder.read("lvconfig.ini"), "input=2\r\nboot=1\r\n");
  EXPECT_EQ(config.input_line(), "input=2");
  config.store_input_device(0);
  EXPECT_EQ(folder.read("lvconfig.ini"), "input=0\r\nboot=1\r\n");
}

TEST(Config, MenuaskMakesTheNextStartAsk) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "input=3\r\nboot=1\r\n"));
  config.load();
  config.menuask_click();
  EXPECT_EQ(folder.read("lvconfig.ini"), "input=\r\nboot=1\r\n");
  Config next(folder.file("lvconfig.ini"));
  next.load();
  EXPECT_TRUE(next.asks_for_input());
}

TEST(Config, StartUpWritesTheFileBackWithBootOne) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "  input=4 \nboot=0\nmore\n"));
  config.load();
  EXPECT_EQ(folder.read("lvconfig.ini"), "input=4\r\nboot=1\r\n");
}

TEST(Config, AFirstStartHasNoFileAndAsks) {
  const TempFolder folder;
  Config config(folder.file("none yet/lvconfig.ini"));
  config.load();
  EXPECT_TRUE(config.asks_for_input());
  EXPECT_EQ(folder.entries(), 0);
  config.store_input_device(1);
  EXPECT_EQ(folder.read("none yet/lvconfig.ini"), "input=1\r\nboot=1\r\n");
}

TEST(Config, AFileWithOneLineEndsTooEarly) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "input=3"));
  EXPECT_THROW(config.load(), RuntimeError);
}

TEST(Config, AnEmptyFirstLineIsDeviceZero) {
  const TempFolder folder;
  Config config(folder.write("lvconfig.ini", "\r\nboot=1\r\n"));
  config.load();
  EXPECT_FALSE(config.asks_for_input());
  EXPECT_EQ(config.input_device(), 0);
}

}  // namespace
}  // namespace lunavox

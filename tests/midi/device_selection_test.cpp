#include "midi/device_selection.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

const std::vector<std::string> kNames = {"Built-in synthesiser", "Stage Piano", "Piano", "1"};

TEST(DeviceSelection, AWholeNameInAnyCaseIsFoundBeforeAnEarlierPart) {
  EXPECT_EQ(select_device(kNames, "piano"), 2);
}

TEST(DeviceSelection, APartOfANameFindsTheFirstThatHoldsIt) {
  EXPECT_EQ(select_device(kNames, "IANO"), 1);
}

TEST(DeviceSelection, ANumberIsAPlaceInTheListFromZero) {
  EXPECT_EQ(select_device(kNames, "0"), 0);
  EXPECT_EQ(select_device(kNames, "2"), 2);
}

TEST(DeviceSelection, AWholeNameThatIsANumberCountsBeforeThePlace) {
  EXPECT_EQ(select_device(kNames, "1"), 3);
}

TEST(DeviceSelection, ANumberPastTheListMayStillBePartOfAName) {
  EXPECT_EQ(select_device({"Port A", "Port 20"}, "20"), 1);
}

TEST(DeviceSelection, NothingFitsGivesNothing) {
  EXPECT_EQ(select_device(kNames, "organ"), std::nullopt);
  EXPECT_EQ(select_device(kNames, "4"), std::nullopt);
  EXPECT_EQ(select_device(kNames, "-1"), std::nullopt);
  EXPECT_EQ(select_device(kNames, ""), std::nullopt);
  EXPECT_EQ(select_device({}, "0"), std::nullopt);
}

}  // namespace
}  // namespace lunavox

#include "grid/property.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HeardProperty : public testing::Test {
 protected:
  HeardProperty() {
    property.on_change([this](const int& value) { heard.push_back(value); });
  }

  Property<int> property{1};
  std::vector<int> heard;
};

TEST(Property, StartsWithTheValuesOwnDefault) {
  EXPECT_EQ(Property<int>().get(), 0);
  EXPECT_FALSE(Property<bool>().get());
  EXPECT_EQ(Property<std::string>("a").get(), "a");
}

TEST_F(HeardProperty, TellsItsListenersOfEachChange) {
  property = 2;
  property.set(3);
  EXPECT_EQ(property, 3);
  EXPECT_THAT(heard, ElementsAre(2, 3));
}

TEST_F(HeardProperty, SettingTheSameValueTellsNobody) {
  property = 1;
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(HeardProperty, ListenersAreToldInTheOrderTheyCame) {
  property.on_change([this](const int& value) { heard.push_back(10 * value); });
  property = 2;
  EXPECT_THAT(heard, ElementsAre(2, 20));
}

TEST_F(HeardProperty, AChangeInPlaceTellsTheListeners) {
  property.update([](int& value) { value += 4; });
  EXPECT_THAT(heard, ElementsAre(5));
}

TEST_F(HeardProperty, ACopyCarriesTheValueButNotTheListeners) {
  Property<int> copy = property;
  EXPECT_EQ(copy, property);
  copy = 7;
  EXPECT_NE(copy, property);
  EXPECT_THAT(heard, IsEmpty());
}

TEST_F(HeardProperty, AssigningAPropertyTellsTheListenersOfTheAssignedOne) {
  const Property<int> other{9};
  property = other;
  EXPECT_EQ(property.get(), 9);
  EXPECT_THAT(heard, ElementsAre(9));
}

}  // namespace
}  // namespace lunavox

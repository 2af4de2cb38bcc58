#include "edit/keyboard_layout.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(KeyboardLayout, TheFrenchHandleGivesAzerty) {
  EXPECT_EQ(layout_set_of(0x040C040C), LayoutSet::kAzerty);
}

TEST(KeyboardLayout, TheGermanHandleGivesQwertz) {
  EXPECT_EQ(layout_set_of(0x04070407), LayoutSet::kQwertz);
}

TEST(KeyboardLayout, TheAmericanHandleGivesQwerty) {
  EXPECT_EQ(layout_set_of(0x04090409), LayoutSet::kQwerty);
}

TEST(KeyboardLayout, TheFirstDigitOfTheRemainderDecides) {
  EXPECT_EQ(layout_set_of(6), LayoutSet::kAzerty);
  EXPECT_EQ(layout_set_of(123450061), LayoutSet::kAzerty);
  EXPECT_EQ(layout_set_of(80), LayoutSet::kQwertz);
  EXPECT_EQ(layout_set_of(0), LayoutSet::kQwerty);
  EXPECT_EQ(layout_set_of(1666), LayoutSet::kQwerty);
  EXPECT_EQ(layout_set_of(60000), LayoutSet::kQwerty);
}

TEST(KeyboardLayout, TheRemainderOfANegativeHandleIsNegativeAndItsMinusIsPassedOver) {
  EXPECT_EQ(layout_set_of(-6332), LayoutSet::kAzerty);
  EXPECT_EQ(layout_set_of(-128647), LayoutSet::kQwertz);
  EXPECT_EQ(layout_set_of(-1), LayoutSet::kQwerty);
}

TEST(KeyboardLayout, TheHandlesThatStandForTheSetsAreReadAsThem) {
  for (const LayoutSet layout : {LayoutSet::kQwerty, LayoutSet::kQwertz, LayoutSet::kAzerty}) {
    EXPECT_EQ(layout_set_of(layout_handle(layout)), layout);
  }
}

TEST(KeyboardLayout, EachSetHasItsSevenKeys) {
  EXPECT_EQ(layoutkeys_of(LayoutSet::kAzerty), (LayoutKeys{65, 90, 89, 81, 87, 188, 190}));
  EXPECT_EQ(layoutkeys_of(LayoutSet::kQwertz), (LayoutKeys{81, 87, 90, 65, 89, 77, 188}));
  EXPECT_EQ(layoutkeys_of(LayoutSet::kQwerty), (LayoutKeys{81, 87, 89, 65, 90, 77, 188}));
}

}  // namespace
}  // namespace lunavox

#include "edit/ui/keyboard_detection.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(KeyboardDetection, TheWishCountsBeforeTheSystem) {
  EXPECT_EQ(detect_layout("azerty"), LayoutSet::kAzerty);
  EXPECT_EQ(detect_layout("qwertz"), LayoutSet::kQwertz);
  EXPECT_EQ(detect_layout("qwerty"), LayoutSet::kQwerty);
}

TEST(KeyboardDetection, TheFirstLayoutOfTheSystemDecides) {
  EXPECT_EQ(layout_set_of_xkb("fr,us"), LayoutSet::kAzerty);
  EXPECT_EQ(layout_set_of_xkb("be"), LayoutSet::kAzerty);
  EXPECT_EQ(layout_set_of_xkb("de(nodeadkeys)"), LayoutSet::kQwertz);
  EXPECT_EQ(layout_set_of_xkb("us,de"), LayoutSet::kQwerty);
  EXPECT_EQ(layout_set_of_xkb(""), LayoutSet::kQwerty);
}

}  // namespace
}  // namespace lunavox

#include "grid/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using testing::ElementsAre;

TEST(Screen, TwoToFiveTracksFitAcrossTheSupportedWidths) {
  EXPECT_EQ(Screen(800, 600).tracks_across(), 2);
  EXPECT_EQ(Screen(1024, 768).tracks_across(), 3);
  EXPECT_EQ(Screen(1280, 1024).tracks_across(), 4);
  EXPECT_EQ(Screen(1600, 1200).tracks_across(), 5);
}

TEST(Screen, OtherWidthsFollowTheSameMeasure) {
  EXPECT_EQ(Screen(640, 480).tracks_across(), 2);
  EXPECT_EQ(Screen(1152, 864).tracks_across(), 4);
  EXPECT_EQ(Screen(1920, 1080).tracks_across(), 6);
  // The last pixel that is too narrow for a third track, and the first that is not.
  EXPECT_EQ(Screen(853, 600).tracks_across(), 2);
  EXPECT_EQ(Screen(854, 600).tracks_across(), 3);
}

TEST(Screen, FourWidthsAreSupported) {
  for (const int width : {800, 1024, 1280, 1600}) {
    EXPECT_TRUE(Screen(width, 600).width_supported()) << width;
  }
  for (const int width : {640, 799, 801, 1152, 1920}) {
    EXPECT_FALSE(Screen(width, 600).width_supported()) << width;
  }
}

TEST(Screen, HeightsFromSixHundredAreSupported) {
  EXPECT_FALSE(Screen(800, 599).height_supported());
  EXPECT_TRUE(Screen(800, 600).height_supported());
  EXPECT_TRUE(Screen(1600, 1200).height_supported());
}

TEST(Screen, WhileAllTracksFitTheGridLeavesRoomOf275Pixels) {
  Screen screen(800, 600);
  screen.fit(1);
  EXPECT_EQ(screen.tracks_height, 325);
  EXPECT_EQ(screen.defilchan_max, 1);
  screen.fit(2);
  EXPECT_EQ(screen.tracks_height, 325);
  EXPECT_EQ(screen.defilchan_max, 1);
}

TEST(Screen, OnceTracksOverflowTheGridLeavesRoomOf258Pixels) {
  Screen screen(800, 600);
  screen.fit(3);
  EXPECT_EQ(screen.tracks_height, 342);
  EXPECT_EQ(screen.defilchan_max, 2);
  screen.fit(2);
  EXPECT_EQ(screen.tracks_height, 325);
  EXPECT_EQ(screen.defilchan_max, 1);
}

TEST(Screen, FourTracksAt800By600ScrollUpToThree) {
  Screen screen(800, 600);
  screen.fit(4);
  EXPECT_EQ(screen.defilchan_max, 3);
}

TEST(Screen, TenTracksScrollSoFarThatTheLastOnesFillTheWidth) {
  Screen screen(1600, 1200);
  screen.fit(10);
  EXPECT_EQ(screen.defilchan_max, 6);
  EXPECT_EQ(screen.tracks_height, 942);
}

TEST(Screen, TheFirstVisibleTrackIsDrawnInWithTheMaximum) {
  Screen screen(800, 600);
  screen.fit(5);
  screen.defilchan = 4;
  screen.fit(4);
  EXPECT_EQ(screen.defilchan, 3);
  screen.fit(1);
  EXPECT_EQ(screen.defilchan, 1);
}

TEST(Screen, TheExtendedAreaIs191PixelsTaller) {
  Screen screen(800, 600);
  screen.fit(1);
  screen.area_click(true);
  EXPECT_TRUE(screen.area);
  EXPECT_EQ(screen.tracks_top, 208);
  EXPECT_EQ(screen.tracks_height, 516);
}

TEST(Screen, LeavingTheExtendedAreaKeepsTheTop) {
  Screen screen(800, 600);
  screen.fit(1);
  screen.area_click(true);
  screen.area_click(false);
  EXPECT_FALSE(screen.area);
  EXPECT_EQ(screen.tracks_top, 208);
  EXPECT_EQ(screen.tracks_height, 325);
}

TEST(Screen, SettingTheBoxAsItStandsChangesNothing) {
  Screen screen(800, 600);
  screen.fit(1);
  screen.area_click(false);
  EXPECT_EQ(screen.tracks_top, 0);
  EXPECT_EQ(screen.tracks_height, 325);
  screen.area_click(true);
  screen.area_click(true);
  EXPECT_EQ(screen.tracks_height, 516);
}

TEST(Screen, FittingTracksKeepsTheAllowanceOfTheExtendedArea) {
  Screen screen(800, 600);
  screen.fit(1);
  screen.area_click(true);
  screen.fit(3);
  EXPECT_EQ(screen.tracks_height, 533);
  screen.fit(2);
  EXPECT_EQ(screen.tracks_height, 516);
  screen.area_click(false);
  EXPECT_EQ(screen.tracks_height, 325);
}

TEST(Screen, TellsItsListenersOfTheNewMeasures) {
  Screen screen(800, 600);
  std::vector<int> heights;
  screen.tracks_height.on_change([&](const int& height) { heights.push_back(height); });
  screen.fit(1);
  screen.fit(2);
  screen.fit(3);
  EXPECT_THAT(heights, ElementsAre(325, 342));
}

}  // namespace
}  // namespace lunavox

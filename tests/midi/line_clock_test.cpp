#include "midi/line_clock.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(LineClock, ALineIsDueWhenMoreThanAPeriodHasPassed) {
  LineClock clock;
  clock.start(1000, 125);
  EXPECT_EQ(clock.next_due(), 1126U);
  EXPECT_FALSE(clock.take_line(1125));
  EXPECT_TRUE(clock.take_line(1126));
  EXPECT_FALSE(clock.take_line(1126));
  EXPECT_EQ(clock.next_due(), 1251U);
}

TEST(LineClock, ALatePassDoesNotMakeLinesDrift) {
  LineClock clock;
  clock.start(1000, 125);
  EXPECT_TRUE(clock.take_line(1200));
  EXPECT_FALSE(clock.take_line(1250));
  EXPECT_TRUE(clock.take_line(1251));
}

TEST(LineClock, LateLinesAreCaughtUpOneByOne) {
  LineClock clock;
  clock.start(1000, 125);
  int lines = 0;
  while (clock.take_line(1501)) ++lines;
  EXPECT_EQ(lines, 4);
}

TEST(LineClock, TheClockMayWrapAround) {
  LineClock clock;
  clock.start(0xFFFFFFF0, 125);
  EXPECT_EQ(clock.next_due(), 110U);
  EXPECT_FALSE(clock.take_line(109));
  EXPECT_TRUE(clock.take_line(110));
}

TEST(LineClock, AReadingFromBeforeTheStartIsNotDue) {
  LineClock clock;
  clock.start(1000, 125);
  EXPECT_FALSE(clock.take_line(999));
}

TEST(LineClock, APeriodOf0GivesALineAtEachLaterReading) {
  LineClock clock;
  clock.start(1000, 0);
  EXPECT_FALSE(clock.take_line(1000));
  EXPECT_TRUE(clock.take_line(1001));
  EXPECT_TRUE(clock.take_line(1001));
}

}  // namespace
}  // namespace lunavox

#include "edit/interpolation.h"

#include <random>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using ::testing::ElementsAre;
using Values = std::vector<std::int16_t>;
using Keys = std::vector<std::uint8_t>;

void apply(Values& values, const Segment& segment) {
  if (segment.first_row == segment.last_row) return;
  for (int row = segment.first_row; row <= segment.last_row; ++row) {
    values[static_cast<std::size_t>(row)] = value_on(segment, row);
  }
}

Values edited(Values values, const Keys& keys, int row) {
  const CurveChange change = curve_change(values, keys, row, static_cast<int>(values.size()) - 1);
  apply(values, change.before);
  apply(values, change.after);
  return values;
}

TEST(Interpolation, ARiseFrom0To127OverFourLinesRoundsEachLineToTheNearest) {
  EXPECT_THAT(edited({0, 0, 0, 0, 0, 127}, {0, 1, 0, 0, 0, 1}, 5),
              ElementsAre(0, 0, 32, 64, 95, 127));
}

TEST(Interpolation, HalvesGoToTheEvenNeighbour) {
  // 0.5, 1.5, 2.5 on the way from 0 to 3 in six steps.
  EXPECT_THAT(edited({0, 0, 9, 9, 9, 9, 9, 3}, {0, 1, 0, 0, 0, 0, 0, 1}, 7),
              ElementsAre(0, 0, 0, 1, 2, 2, 2, 3));
}

TEST(Interpolation, TheSlopeIsFormedBeforeItIsMultiplied) {
  // 1 / 49 * 24.5 would not differ, but 1 / 49 * 49 falls short of 1 unless the last value is kept;
  // rounding brings it back.
  const Segment segment{1, 50, 0, 1};
  EXPECT_EQ(value_on(segment, 25), 0);
  EXPECT_EQ(value_on(segment, 26), 1);
  EXPECT_EQ(value_on(segment, 50), 1);
}

TEST(Interpolation, TheSlopesOwnErrorTipsAHalf) {
  // 29 / 14 * 7 comes out a little above 14.5, 115 / 14 * 7 a little below 57.5. Multiplied before
  // it is divided each would be a half, which goes to the even neighbour: 14 and 58.
  EXPECT_EQ(value_on({1, 15, 0, 29}, 8), 15);
  EXPECT_EQ(value_on({1, 15, 0, 115}, 8), 57);
}

TEST(Interpolation, AFallIsRoundedLikeARise) {
  EXPECT_THAT(edited({0, 127, 1, 1, 1, 0}, {0, 1, 0, 0, 0, 1}, 5),
              ElementsAre(0, 127, 95, 64, 32, 0));
}

TEST(Interpolation, TheCurveHoldsItsLastKeyValueToTheEnd) {
  EXPECT_THAT(edited({0, 10, 10, 40, 10, 10}, {0, 1, 0, 1, 0, 0}, 3),
              ElementsAre(0, 10, 25, 40, 40, 40));
}

TEST(Interpolation, AKeyOnTheLastLineHasNothingBehindIt) {
  const CurveChange change = curve_change({0, 10, 10, 40}, {0, 1, 0, 1}, 3, 3);
  EXPECT_EQ(change.before, (Segment{1, 3, 10, 40}));
  EXPECT_EQ(change.after, (Segment{3, 3, 40, 40}));
}

TEST(Interpolation, ClearingTheOnlyKeyAfterTheFirstLineFlattensTheCurve) {
  EXPECT_THAT(edited({0, 20, 40, 60, 60, 60}, {0, 1, 0, 0, 0, 0}, 3),
              ElementsAre(0, 20, 20, 20, 20, 20));
}

TEST(Interpolation, ClearingAKeyBetweenTwoJoinsThem) {
  EXPECT_THAT(edited({0, 0, 50, 100, 50, 8}, {0, 1, 0, 0, 0, 1}, 3), ElementsAre(0, 0, 2, 4, 6, 8));
}

TEST(Interpolation, ClearingTheLastKeyHoldsTheOneBeforeIt) {
  EXPECT_THAT(edited({0, 10, 30, 50, 70, 70}, {0, 1, 0, 1, 0, 0}, 4),
              ElementsAre(0, 10, 30, 50, 50, 50));
}

TEST(Interpolation, TheFirstLineIsAKeyWhetherFlaggedOrNot) {
  EXPECT_THAT(edited({0, 10, 0, 30}, {0, 0, 0, 1}, 3), ElementsAre(0, 10, 20, 30));
}

TEST(Interpolation, AnUnflaggedFirstLineStillSetsTheCurveBehindIt) {
  EXPECT_THAT(edited({0, 10, 0, 0, 40}, {0, 0, 0, 0, 1}, 1), ElementsAre(0, 10, 20, 30, 40));
  EXPECT_THAT(edited({0, 10, 0, 0, 40}, {0, 0, 0, 0, 0}, 1), ElementsAre(0, 10, 10, 10, 10));
}

TEST(Interpolation, OnlyTheStretchesBesideTheEditedLineChange) {
  EXPECT_THAT(edited({0, 1, 77, 3, 0, 5, 0, 7, 99, 9}, {0, 1, 0, 1, 0, 1, 0, 1, 0, 1}, 5),
              ElementsAre(0, 1, 77, 3, 4, 5, 6, 7, 99, 9));
}

TEST(Interpolation, TheLengthOfAChangeIsFromThePreviousKeyToTheNext) {
  EXPECT_EQ(curve_change(Values(11), {0, 1, 0, 1, 0, 1, 0, 0, 1, 0, 0}, 5, 10).length(), 5);
  EXPECT_EQ(curve_change(Values(11), {0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0}, 5, 10).length(), 5);
}

// A second reading of the rule, slow and plain: from the keys alone, with exact fractions.
struct Reading {
  const Keys& keys;
  const Values& before;

  bool key(int row) const { return row == 1 || keys[static_cast<std::size_t>(row)] != 0; }
  int last() const { return static_cast<int>(keys.size()) - 1; }

  /// round(numerator / denominator), denominator > 0, halves to the even neighbour.
  static int rounded(int numerator, int denominator) {
    int whole = numerator / denominator;
    if (numerator % denominator < 0) --whole;  // down
    const int twice_rest = 2 * (numerator - whole * denominator);
    const bool up = twice_rest > denominator || (twice_rest == denominator && whole % 2 != 0);
    return up ? whole + 1 : whole;
  }

  int value(int row) const {
    int left = row;
    while (!key(left)) --left;
    int right = row;
    while (right <= last() && !key(right)) ++right;
    const int at_left = before[static_cast<std::size_t>(left)];
    if (right > last() || left == right) return at_left;
    const int at_right = before[static_cast<std::size_t>(right)];
    const int width = right - left;
    return rounded(at_left * width + (at_right - at_left) * (row - left), width);
  }
};

TEST(Interpolation, AnyCurveEditedLineByLineReadsAsItsKeysSay) {
  std::mt19937 random(20);
  const auto pick = [&](int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
  };
  for (int round = 0; round < 300; ++round) {
    const auto rows = static_cast<std::size_t>(pick(3, 60));
    const auto start = static_cast<std::int16_t>(pick(0, 127));
    Values curve(rows, start);
    Keys keys(rows, 0);
    keys[1] = 1;
    for (int edit = 0; edit < 40; ++edit) {
      const int row = pick(1, static_cast<int>(rows) - 1);
      const bool clear = row != 1 && pick(0, 2) == 0;
      keys[static_cast<std::size_t>(row)] = clear ? 0 : 1;
      if (!clear) curve[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(pick(0, 127));
      const Reading reading{keys, curve};
      Values expected(curve);
      for (int r = 1; r < static_cast<int>(rows); ++r) {
        expected[static_cast<std::size_t>(r)] = static_cast<std::int16_t>(reading.value(r));
      }
      curve = edited(curve, keys, row);
      ASSERT_EQ(curve, expected) << "round " << round << ", edit " << edit << ", row " << row;
    }
  }
}

}  // namespace
}  // namespace lunavox

#include "edit/physical_keys.h"

#include "edit/note_keys.h"

#include <vector>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

std::vector<int> codes(LayoutSet layout, const std::vector<PhysicalKey>& keys) {
  std::vector<int> found;
  for (const PhysicalKey key : keys) found.push_back(virtual_key(key, layout));
  return found;
}

const std::vector<PhysicalKey> kPunctuation = {
    PhysicalKey::kGrave,       PhysicalKey::kMinus,        PhysicalKey::kEqual,
    PhysicalKey::kLeftBracket, PhysicalKey::kRightBracket, PhysicalKey::kSemicolon,
    PhysicalKey::kQuote,       PhysicalKey::kBackslash,    PhysicalKey::kM,
    PhysicalKey::kComma,       PhysicalKey::kPeriod,       PhysicalKey::kSlash,
};

TEST(PhysicalKeys, PunctuationOfTheAmericanKeyboard) {
  EXPECT_EQ(codes(LayoutSet::kQwerty, kPunctuation),
            (std::vector<int>{192, 189, 187, 219, 221, 186, 222, 220, 'M', 188, 190, 191}));
}

TEST(PhysicalKeys, PunctuationOfTheGermanKeyboard) {
  EXPECT_EQ(codes(LayoutSet::kQwertz, kPunctuation),
            (std::vector<int>{220, 219, 221, 186, 187, 192, 222, 191, 'M', 188, 190, 189}));
}

TEST(PhysicalKeys, PunctuationOfTheFrenchKeyboard) {
  EXPECT_EQ(codes(LayoutSet::kAzerty, kPunctuation),
            (std::vector<int>{222, 219, 187, 221, 186, 'M', 192, 220, 188, 190, 191, 223}));
}

TEST(PhysicalKeys, TheNumberRowIsDigitsOnEveryLayout) {
  for (const LayoutSet layout : {LayoutSet::kQwerty, LayoutSet::kQwertz, LayoutSet::kAzerty}) {
    EXPECT_EQ(codes(layout, {PhysicalKey::kDigit1, PhysicalKey::kDigit2, PhysicalKey::kDigit9,
                             PhysicalKey::kDigit0}),
              (std::vector<int>{49, 50, 57, 48}));
  }
}

TEST(PhysicalKeys, LettersAreWhereTheLayoutHasThem) {
  const std::vector<PhysicalKey> places = {PhysicalKey::kQ, PhysicalKey::kW, PhysicalKey::kY,
                                           PhysicalKey::kA, PhysicalKey::kZ, PhysicalKey::kX,
                                           PhysicalKey::kL};
  EXPECT_EQ(codes(LayoutSet::kQwerty, places),
            (std::vector<int>{'Q', 'W', 'Y', 'A', 'Z', 'X', 'L'}));
  EXPECT_EQ(codes(LayoutSet::kQwertz, places),
            (std::vector<int>{'Q', 'W', 'Z', 'A', 'Y', 'X', 'L'}));
  EXPECT_EQ(codes(LayoutSet::kAzerty, places),
            (std::vector<int>{'A', 'Z', 'Y', 'Q', 'W', 'X', 'L'}));
}

TEST(PhysicalKeys, FunctionAndEditingKeysAreTheSameOnEveryLayout) {
  for (const LayoutSet layout : {LayoutSet::kQwerty, LayoutSet::kQwertz, LayoutSet::kAzerty}) {
    EXPECT_EQ(codes(layout, {PhysicalKey::kF2, PhysicalKey::kF7, PhysicalKey::kDelete,
                             PhysicalKey::kBackspace, PhysicalKey::kExtra, PhysicalKey::kSpace,
                             PhysicalKey::kLeftCtrl, PhysicalKey::kRightCtrl}),
              (std::vector<int>{113, 118, 46, 8, 226, 32, 17, 17}));
  }
}

TEST(PhysicalKeys, AnyOtherPlaceHasTheCodeThatPlaysNothing) {
  EXPECT_EQ(virtual_key(static_cast<PhysicalKey>(200), LayoutSet::kQwerty), 255);
  EXPECT_EQ(virtual_key(static_cast<PhysicalKey>(-3), LayoutSet::kQwerty), 255);
  EXPECT_EQ(virtual_key(static_cast<PhysicalKey>(0), LayoutSet::kQwerty), 255);
  EXPECT_FALSE(base_note(255, layoutkeys_of(LayoutSet::kQwerty)));
}

TEST(PhysicalKeys, AWindowSystemsKeyCodeIsEightAboveTheDevices) {
  EXPECT_EQ(physical_key_of_xkb(24), PhysicalKey::kQ);
  EXPECT_EQ(physical_key_of_xkb(94), PhysicalKey::kExtra);
}

/// The notes of a row of keys under a layout, 0 where a key plays none.
std::vector<int> notes(LayoutSet layout, int first, int last) {
  std::vector<int> found;
  for (int place = first; place <= last; ++place) {
    const int code = virtual_key(static_cast<PhysicalKey>(place), layout);
    found.push_back(base_note(code, layoutkeys_of(layout)).value_or(0));
  }
  return found;
}

TEST(PhysicalKeys, OnAFrenchKeyboardTheUpperAndTheLowerRowAreWhitePianoKeys) {
  EXPECT_EQ(notes(LayoutSet::kAzerty, 16, 27),
            (std::vector<int>{48, 50, 52, 53, 55, 57, 59, 60, 62, 64, 65, 67}));
  EXPECT_EQ(notes(LayoutSet::kAzerty, 44, 53),
            (std::vector<int>{36, 38, 40, 41, 43, 45, 47, 48, 50, 52}));
  EXPECT_EQ(notes(LayoutSet::kAzerty, 2, 13),
            (std::vector<int>{0, 49, 51, 0, 54, 56, 58, 0, 61, 63, 0, 66}));
  EXPECT_EQ(notes(LayoutSet::kAzerty, 30, 39),
            (std::vector<int>{0, 37, 39, 0, 42, 44, 46, 0, 49, 51}));
}

TEST(PhysicalKeys, TheLettersOfTheOtherLayoutsPlayTheSameNotesInTheSamePlaces) {
  for (const LayoutSet layout : {LayoutSet::kQwerty, LayoutSet::kQwertz}) {
    EXPECT_EQ(notes(layout, 16, 25), (std::vector<int>{48, 50, 52, 53, 55, 57, 59, 60, 62, 64}));
    EXPECT_EQ(notes(layout, 44, 51), (std::vector<int>{36, 38, 40, 41, 43, 45, 47, 48}));
  }
}

}  // namespace
}  // namespace lunavox

#include "edit/physical_keys.h"

#include <array>

namespace lunavox {
namespace {

/// Virtual-key codes of the writing keys, row by row from the left. Those of letters and digits are
/// their characters.
struct WritingKeys {
  std::array<int, 12> number_row;  ///< from the key of the 1
  std::array<int, 12> upper_row;   ///< from the key right of the tabulator
  std::array<int, 11> home_row;    ///< from the key right of caps lock
  std::array<int, 10> lower_row;   ///< from the American Z
  int grave;
  int backslash;
};

constexpr WritingKeys kQwerty = {
    {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', 189, 187},
    {'Q', 'W', 'E', 'R', 'T', 'Y', 'U', 'I', 'O', 'P', 219, 221},
    {'A', 'S', 'D', 'F', 'G', 'H', 'J', 'K', 'L', 186, 222},
    {'Z', 'X', 'C', 'V', 'B', 'N', 'M', 188, 190, 191},
    192,
    220,
};

constexpr WritingKeys kQwertz = {
    {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', 219, 221},
    {'Q', 'W', 'E', 'R', 'T', 'Z', 'U', 'I', 'O', 'P', 186, 187},
    {'A', 'S', 'D', 'F', 'G', 'H', 'J', 'K', 'L', 192, 222},
    {'Y', 'X', 'C', 'V', 'B', 'N', 'M', 188, 190, 189},
    220,
    191,
};

constexpr WritingKeys kAzerty = {
    {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', 219, 187},
    {'A', 'Z', 'E', 'R', 'T', 'Y', 'U', 'I', 'O', 'P', 221, 186},
    {'Q', 'S', 'D', 'F', 'G', 'H', 'J', 'K', 'L', 'M', 192},
    {'W', 'X', 'C', 'V', 'B', 'N', 188, 190, 191, 223},
    222,
    220,
};

const WritingKeys& writing_keys(LayoutSet layout) {
  switch (layout) {
    case LayoutSet::kAzerty:
      return kAzerty;
    case LayoutSet::kQwertz:
      return kQwertz;
    case LayoutSet::kQwerty:
      break;
  }
  return kQwerty;
}

/// The code in a row of keys that begins at a place, 0 when the place lies outside.
template <std::size_t Size>
int in_row(const std::array<int, Size>& row, PhysicalKey first, PhysicalKey key) {
  const int index = static_cast<int>(key) - static_cast<int>(first);
  if (index < 0 || index >= static_cast<int>(Size)) return 0;
  return row[static_cast<std::size_t>(index)];
}

/// A key that is the same on every layout, and its virtual-key code.
struct CommonKey {
  PhysicalKey place;
  int code;
};

constexpr std::array kCommonKeys = {
    CommonKey{PhysicalKey::kEscape, 27},     CommonKey{PhysicalKey::kBackspace, 8},
    CommonKey{PhysicalKey::kTab, 9},         CommonKey{PhysicalKey::kEnter, 13},
    CommonKey{PhysicalKey::kPadEnter, 13},   CommonKey{PhysicalKey::kLeftCtrl, 17},
    CommonKey{PhysicalKey::kRightCtrl, 17},  CommonKey{PhysicalKey::kLeftShift, 16},
    CommonKey{PhysicalKey::kRightShift, 16}, CommonKey{PhysicalKey::kLeftAlt, 18},
    CommonKey{PhysicalKey::kRightAlt, 18},   CommonKey{PhysicalKey::kCapsLock, 20},
    CommonKey{PhysicalKey::kSpace, 32},      CommonKey{PhysicalKey::kF1, 112},
    CommonKey{PhysicalKey::kF2, 113},        CommonKey{PhysicalKey::kF3, 114},
    CommonKey{PhysicalKey::kF4, 115},        CommonKey{PhysicalKey::kF5, 116},
    CommonKey{PhysicalKey::kF6, 117},        CommonKey{PhysicalKey::kF7, 118},
    CommonKey{PhysicalKey::kF8, 119},        CommonKey{PhysicalKey::kF9, 120},
    CommonKey{PhysicalKey::kF10, 121},       CommonKey{PhysicalKey::kF11, 122},
    CommonKey{PhysicalKey::kF12, 123},       CommonKey{PhysicalKey::kExtra, 226},
    CommonKey{PhysicalKey::kHome, 36},       CommonKey{PhysicalKey::kUp, 38},
    CommonKey{PhysicalKey::kPageUp, 33},     CommonKey{PhysicalKey::kLeft, 37},
    CommonKey{PhysicalKey::kRight, 39},      CommonKey{PhysicalKey::kEnd, 35},
    CommonKey{PhysicalKey::kDown, 40},       CommonKey{PhysicalKey::kPageDown, 34},
    CommonKey{PhysicalKey::kInsert, 45},     CommonKey{PhysicalKey::kDelete, 46},
};

}  // namespace

int virtual_key(PhysicalKey key, LayoutSet layout) {
  const WritingKeys& keys = writing_keys(layout);
  if (key == PhysicalKey::kGrave) return keys.grave;
  if (key == PhysicalKey::kBackslash) return keys.backslash;
  if (const int code = in_row(keys.number_row, PhysicalKey::kDigit1, key)) return code;
  if (const int code = in_row(keys.upper_row, PhysicalKey::kQ, key)) return code;
  if (const int code = in_row(keys.home_row, PhysicalKey::kA, key)) return code;
  if (const int code = in_row(keys.lower_row, PhysicalKey::kZ, key)) return code;
  for (const CommonKey& common : kCommonKeys) {
    if (common.place == key) return common.code;
  }
  return kOtherVirtualKey;
}

}  // namespace lunavox

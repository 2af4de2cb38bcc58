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

/// A key that is the same on every layout.
struct CommonKey {
  int place;
  int code;
};

constexpr std::array kCommonKeys = {
    CommonKey{1, 27},                                            // Escape
    CommonKey{14, 8},   CommonKey{15, 9},                        // Backspace, Tab
    CommonKey{28, 13},  CommonKey{96, 13},                       // Enter
    CommonKey{29, 17},  CommonKey{97, 17},                       // Ctrl
    CommonKey{42, 16},  CommonKey{54, 16},                       // Shift
    CommonKey{56, 18},  CommonKey{100, 18}, CommonKey{58, 20},   // Alt, Caps Lock
    CommonKey{57, 32},                                           // Space
    CommonKey{59, 112}, CommonKey{60, 113}, CommonKey{61, 114},  // F1 ...
    CommonKey{62, 115}, CommonKey{63, 116}, CommonKey{64, 117},
    CommonKey{65, 118}, CommonKey{66, 119}, CommonKey{67, 120},
    CommonKey{68, 121}, CommonKey{87, 122}, CommonKey{88, 123},  // ... F12
    CommonKey{86, 226},                                          // the extra key
    CommonKey{102, 36}, CommonKey{103, 38}, CommonKey{104, 33},  // Home, Up, Page Up
    CommonKey{105, 37}, CommonKey{106, 39}, CommonKey{107, 35},  // Left, Right, End
    CommonKey{108, 40}, CommonKey{109, 34},                      // Down, Page Down
    CommonKey{110, 45}, CommonKey{111, 46},                      // Insert, Delete
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
    if (common.place == static_cast<int>(key)) return common.code;
  }
  return kOtherVirtualKey;
}

}  // namespace lunavox

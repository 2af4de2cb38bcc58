#pragma once

#include "edit/keyboard_layout.h"

namespace lunavox {

/// A place on the keyboard, by the key code that Linux's input devices give it and named after the
/// American key there. Places that are not named here are valid too.
enum class PhysicalKey : int {
  kEscape = 1,
  kDigit1 = 2,
  kDigit2 = 3,
  kDigit3 = 4,
  kDigit5 = 6,
  kDigit6 = 7,
  kDigit7 = 8,
  kDigit9 = 10,
  kDigit0 = 11,
  kMinus = 12,
  kEqual = 13,
  kBackspace = 14,
  kTab = 15,
  kQ = 16,
  kW = 17,
  kE = 18,
  kR = 19,
  kT = 20,
  kY = 21,
  kU = 22,
  kI = 23,
  kO = 24,
  kP = 25,
  kLeftBracket = 26,
  kRightBracket = 27,
  kEnter = 28,
  kLeftCtrl = 29,
  kA = 30,
  kS = 31,
  kD = 32,
  kF = 33,
  kG = 34,
  kH = 35,
  kJ = 36,
  kK = 37,
  kL = 38,
  kSemicolon = 39,
  kQuote = 40,
  kGrave = 41,
  kLeftShift = 42,
  kBackslash = 43,
  kZ = 44,
  kX = 45,
  kC = 46,
  kV = 47,
  kB = 48,
  kN = 49,
  kM = 50,
  kComma = 51,
  kPeriod = 52,
  kSlash = 53,
  kRightShift = 54,
  kLeftAlt = 56,
  kSpace = 57,
  kCapsLock = 58,
  kF1 = 59,
  kF2 = 60,
  kF3 = 61,
  kF4 = 62,
  kF5 = 63,
  kF6 = 64,
  kF7 = 65,
  kF8 = 66,
  kF9 = 67,
  kF10 = 68,
  kExtra = 86,  ///< left of the bottom letter row, on European keyboards
  kF11 = 87,
  kF12 = 88,
  kPadEnter = 96,
  kRightCtrl = 97,
  kRightAlt = 100,
  kHome = 102,
  kUp = 103,
  kPageUp = 104,
  kLeft = 105,
  kRight = 106,
  kEnd = 107,
  kDown = 108,
  kPageDown = 109,
  kInsert = 110,
  kDelete = 111,
};

/// The place of a key by its X11 or Wayland (XKB) key code, which is the input device's plus 8.
constexpr PhysicalKey physical_key_of_xkb(int keycode) {
  return static_cast<PhysicalKey>(keycode - 8);
}

/// The code of keys that have none of their own: they play nothing.
inline constexpr int kOtherVirtualKey = 255;

/// The virtual-key code that a place on the keyboard has under a layout set. Shift and the other
/// modifiers make no difference: the number row is digits on every layout.
int virtual_key(PhysicalKey key, LayoutSet layout);

}  // namespace lunavox

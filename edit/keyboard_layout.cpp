#include "edit/keyboard_layout.h"

#include "grid/runtime_numbers.h"

#include <string>

namespace lunavox {

LayoutSet layout_set_of(std::int32_t handle) {
  // With the leading blank or the minus sign, so that the first digit is always the second
  // character. The remainder has the sign of the handle.
  const std::string remainder = print_number(handle % 10000);
  switch (remainder[1]) {
    case '6':
      return LayoutSet::kAzerty;
    case '8':
      return LayoutSet::kQwertz;
    default:
      return LayoutSet::kQwerty;
  }
}

LayoutKeys layoutkeys_of(LayoutSet layout) {
  constexpr int kComma = 188;
  constexpr int kPeriod = 190;
  switch (layout) {
    case LayoutSet::kAzerty:
      return {'A', 'Z', 'Y', 'Q', 'W', kComma, kPeriod};
    case LayoutSet::kQwertz:
      return {'Q', 'W', 'Z', 'A', 'Y', 'M', kComma};
    case LayoutSet::kQwerty:
      break;
  }
  return {'Q', 'W', 'Y', 'A', 'Z', 'M', kComma};
}

std::int32_t layout_handle(LayoutSet layout) {
  switch (layout) {
    case LayoutSet::kAzerty:
      return 0x040C040C;
    case LayoutSet::kQwertz:
      return 0x04070407;
    case LayoutSet::kQwerty:
      break;
  }
  return 0x04090409;
}

}  // namespace lunavox

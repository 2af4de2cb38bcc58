#include "edit/interpolation.h"

#include "grid/runtime_numbers.h"

#include <algorithm>

namespace lunavox {
namespace {

using Keys = std::vector<std::uint8_t>;

bool is_key(const Keys& keys, int row) {
  return keys.at(static_cast<std::size_t>(row)) != 0;
}

/// Row 1 is the floor whether or not it is flagged.
int previous_key(const Keys& keys, int row) {
  int i = row - 1;
  while (i >= 2 && !is_key(keys, i)) --i;
  return std::max(i, 1);
}

/// The last row is the ceiling whether or not it is flagged.
int next_key(const Keys& keys, int row, int last_row) {
  if (row == last_row) return row;
  int i = row + 1;
  while (i < last_row && !is_key(keys, i)) ++i;
  return i;
}

}  // namespace

CurveChange curve_change(const std::vector<std::int16_t>& values,
                         const std::vector<std::uint8_t>& keys, int row, int last_row) {
  const auto value = [&](int r) {
    return static_cast<int>(values.at(static_cast<std::size_t>(r)));
  };
  const int k1 = previous_key(keys, row);
  int k2 = row;
  const int k3 = next_key(keys, row, last_row);
  const int v1 = value(k1);
  int v2 = value(k2);
  int v3 = value(k3);
  if (!is_key(keys, k2)) {
    // The row has just been cleared: the curve runs through it to the next key, or stays flat.
    k2 = k3;
    v2 = v3;
    if (!is_key(keys, k3)) v2 = v1;
  }
  // Behind its last key a curve holds its value.
  if (!is_key(keys, k3)) v3 = v2;
  return {{k1, k2, v1, v2}, {k2, k3, v2, v3}};
}

std::int16_t value_on(const Segment& segment, int row) {
  const double slope = static_cast<double>(segment.last_value - segment.first_value) /
                       (segment.last_row - segment.first_row);
  const double risen = slope * (row - segment.first_row);
  return round_to_int16(risen + segment.first_value);
}

}  // namespace lunavox

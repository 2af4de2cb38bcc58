#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lunavox {

/// The device that a user means by a list number or a name: a whole name counts before a number, a
/// number before a part of a name, letter case never. Of several names that hold the part, the
/// first. None when nothing fits.
/// @param wanted such as "2" or "piano"
/// @return a place in the list, 0 and up
std::optional<int> select_device(const std::vector<std::string>& names, std::string_view wanted);

}  // namespace lunavox

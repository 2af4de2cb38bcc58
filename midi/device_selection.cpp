#include "midi/device_selection.h"

#include <algorithm>
#include <charconv>

namespace lunavox {
namespace {

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), [](char c) { return lower(c); });
  return result;
}

std::optional<int> whole_number(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

template <class Fits>
std::optional<int> first_that(const std::vector<std::string>& names, Fits fits) {
  const auto found = std::find_if(names.begin(), names.end(), fits);
  if (found == names.end()) return std::nullopt;
  return static_cast<int>(found - names.begin());
}

}  // namespace

std::optional<int> select_device(const std::vector<std::string>& names, std::string_view wanted) {
  const std::string sought = lower(wanted);
  if (sought.empty()) return std::nullopt;
  if (const auto whole =
          first_that(names, [&](const std::string& name) { return lower(name) == sought; })) {
    return whole;
  }
  if (const auto number = whole_number(wanted)) {
    const bool listed = *number >= 0 && *number < static_cast<int>(names.size());
    if (listed) return number;
  }
  return first_that(names, [&](const std::string& name) {
    return lower(name).find(sought) != std::string::npos;
  });
}

}  // namespace lunavox

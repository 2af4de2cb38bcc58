#include "midi/record_options.h"

#include <algorithm>
#include <string_view>

namespace lunavox {
namespace {

constexpr const char* kBlanks = " \t";
constexpr const char* kDigits = "0123456789";

/// Whether a text is a number and nothing else. The field would read the number that it begins
/// with, and any other text as 0, which is a good value here.
bool is_number(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
  if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
  const bool has_digit = text.find_first_of(kDigits) != text.npos;
  text.remove_prefix(std::min(text.find_first_not_of(kDigits), text.size()));
  if (text.starts_with('.')) text.remove_prefix(1);
  return has_digit && text.find_first_not_of(kDigits) == text.npos;
}

}  // namespace

bool RecordOptions::before_change(const std::string& text, Dialogs& dialogs) {
  if (is_number(text)) return before.enter(text, dialogs);
  dialogs.error(before.message());
  return false;
}

}  // namespace lunavox

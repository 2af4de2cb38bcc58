#include "midi/record_options.h"

namespace lunavox {
namespace {

/// Whether a text begins with a number. The field would take any other text for 0, which is a good
/// value here.
bool begins_with_number(const std::string& text) {
  const auto start = text.find_first_not_of(" \t+-");
  return start != std::string::npos && std::string(".0123456789").find(text[start]) != text.npos;
}

}  // namespace

bool RecordOptions::before_change(const std::string& text, Dialogs& dialogs) {
  if (begins_with_number(text)) return before.enter(text, dialogs);
  dialogs.error(before.message());
  return false;
}

}  // namespace lunavox

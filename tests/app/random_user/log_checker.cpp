#include "log_checker.h"

#include <sstream>

namespace lunavox::test {

std::string LogChecker::check(std::istream& log, const std::vector<LogMark>& marks) {
  auto mark = marks.begin();
  const auto meet_marks = [&] {
    for (; mark != marks.end() && mark->messages <= ledger_.messages(); ++mark) {
      ledger_.meet(mark->event);
    }
  };
  std::string line;
  meet_marks();
  while (std::getline(log, line)) {
    if (!take_line(line)) {
      return "line " + std::to_string(ledger_.messages() + 1) + " is no message: " + line;
    }
    meet_marks();
  }
  log.clear();  // it may grow
  if (mark != marks.end()) return "the log is shorter than what was sent";
  return ledger_.wrong();
}

bool LogChecker::take_line(const std::string& line) {
  std::istringstream words(line);
  double milliseconds = -1;
  std::string kind;
  std::string digits;
  words >> milliseconds >> kind >> digits;
  if (milliseconds < 0 || digits.find_first_not_of("0123456789ABCDEF") != std::string::npos) {
    return false;
  }
  if (kind == "sysex" && digits.starts_with("F0")) {
    ledger_.take_sysex();
    return true;
  }
  if (kind != "short" || digits.size() != 8) return false;
  ledger_.take_short(static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16)));
  return true;
}

}  // namespace lunavox::test

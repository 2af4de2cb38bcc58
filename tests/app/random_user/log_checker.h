#pragma once

#include "note_ledger.h"

#include <cstddef>
#include <istream>
#include <string>
#include <vector>

namespace lunavox::test {

struct LogMark {
  std::size_t messages = 0;  ///< messages of the log before it, from its beginning
  PlayEvent event = PlayEvent::kStops;
};

/// Reads the log that `--midi-log` writes and keeps account of the notes in it.
class LogChecker {
 public:
  /// Reads on to the log's end. What sounds there is looked for when the log has grown.
  /// @param marks  of the part that is read now, in the order of their places
  /// @return what is wrong, empty where nothing is
  std::string check(std::istream& log, const std::vector<LogMark>& marks);

  const NoteLedger& ledger() const { return ledger_; }

 private:
  bool take_line(const std::string& line);

  NoteLedger ledger_;
};

}  // namespace lunavox::test

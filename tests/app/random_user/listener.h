#pragma once

#include "log_checker.h"
#include "note_ledger.h"
#include "tests/support/editor_bench.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lunavox::test {

/// Listens to an editor: keeps account of the notes that it sends, notices when it begins to play
/// and stops, and counts how long it plays.
class Listener {
 public:
  explicit Listener(EditorBench& bench) : bench_(bench) {}

  /// Accounts for what was sent since the last time, and for a start or a stop meanwhile. To be
  /// called before the next one can follow.
  void listen();
  /// Something has happened to playing that the messages do not tell.
  void meet(PlayEvent event);

  /// The first thing that was wrong, empty where nothing was.
  const std::string& wrong() const { return ledger_.wrong(); }
  /// Milliseconds so far in which the song played or was recorded in real time.
  long long played_ms() const { return played_ms_; }
  /// What was met since the last call, for whoever reads the log. All messages are in its file.
  std::vector<LogMark> take_marks();

 private:
  void take_messages();

  EditorBench& bench_;
  NoteLedger ledger_;
  std::vector<LogMark> marks_;
  long long played_ms_ = 0;

  // When it was last listened.
  bool playing_song_ = false;
  bool recording_ = false;
  std::uint32_t heard_at_ = 0;  ///< the clock
};

}  // namespace lunavox::test
